#include "DefaultSettings.h"

#include "Columns.h"

namespace tunedex {

namespace {

// The choosable columns that are shown by default, or those that are not.
std::string ColumnList(bool shown) {
    std::string list;
    for (const ColumnKind& kind : kColumns) {
        if (IsChoosable(kind.key) && kind.shown == shown) {
            list += list.empty() ? "" : "|";
            list += kind.name;
        }
    }
    return list;
}

} // namespace

void SetDefaults(Settings& settings) {
    settings = Settings();
    settings.WindowTitle = "MP3 List (%D)";
    settings.PageTitle = "MP3 Listing (%C files)";
    settings.PageFooter = "Created on %D at %T";

    settings.Recurse = true;
    settings.Spanning = 100;
    settings.SizeType = 2;
    settings.SortOrder = 1;
    settings.ErrorWarnings = true;
    settings.ConfirmQuit = true;
    settings.DocumentType = "HTML";

    settings.LinkPrefix = "file:///";

    settings.ActiveColumns = ColumnList(true);
    settings.InactiveColumns = ColumnList(false);
    settings.Merge = 2;
    settings.MoveTheArtists = true;

    settings.Font[kPageFont] = {"Times New Roman, serif", "3", true, false};
    settings.Font[kHeaderFont] = {"Tahoma, Arial, sans-serif", "2", true, false};
    settings.Font[kCellFont] = {"Tahoma, Arial, sans-serif", "1", false, false};
    settings.FontCSS = true;

    settings.Colour = {"000000", "FFFFFF", "FFFF00", "000066", "000000",
                       "CECECE", "000000", "DEDEDE", "0000FF", "000000"};
    settings.AltRows = true;
    settings.ColourCSS = true;

    settings.TableWidthUnit = 1;
    settings.TableWidth = 99;
    settings.TablePadding = 2;
    settings.TableBorder = 1;
}

Settings DefaultSettings() {
    Settings settings;
    SetDefaults(settings);
    return settings;
}

} // namespace tunedex
