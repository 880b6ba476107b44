#include "Settings.h"

namespace tunedex {

void Settings::SetDefaults() {
    *this = Settings();
    WindowTitle = "MP3 List (%D)";
    PageTitle = "MP3 Listing (%C files)";
    PageFooter = "Created on %D at %T";

    Recurse = true;
    Spanning = 100;
    SizeType = 2;
    SortOrder = 1;
    ErrorWarnings = true;
    ConfirmQuit = true;
    DocumentType = "HTML";

    LinkPrefix = "file:///";

    ActiveColumns = "Number|Artist|Album|Title|Duration";
    InactiveColumns = "Bitrate|File Size|Frequency|Genre|Mode|MPEG Type|Year|Filename|Folder Path|Full Path";
    Merge = 2;
    MoveTheArtists = true;

    Font[kPageFont] = {"Times New Roman, serif", "3", true, false};
    Font[kHeaderFont] = {"Tahoma, Arial, sans-serif", "2", true, false};
    Font[kCellFont] = {"Tahoma, Arial, sans-serif", "1", false, false};
    FontCSS = true;

    Colour = {"000000", "FFFFFF", "FFFF00", "000066", "000000",
              "CECECE", "000000", "DEDEDE", "0000FF", "000000"};
    AltRows = true;
    ColourCSS = true;

    TableWidthUnit = 1;
    TableWidth = 99;
    TablePadding = 2;
    TableBorder = 1;
}

} // namespace tunedex
