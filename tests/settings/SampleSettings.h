// Settings for the tests of settings and theme files. Most members differ from those of a new record.
#pragma once

#include "Settings.h"

namespace tunedex {

inline Settings SampleSettings() {
    Settings settings;
    settings.Directory = "/music";
    settings.OutputFile = "/out/list.htm";
    settings.WindowTitle = "Window (%D)";
    settings.PageTitle = "Title (%C files)";
    settings.PageFooter = "Footer at %T";

    settings.Recurse = true;
    settings.Spanning = 100;
    settings.SizeType = 2;
    settings.SortOrder = 1;
    settings.ErrorWarnings = true;
    settings.ConfirmQuit = true;
    settings.DocumentType = "XHTML";

    settings.DoLinks = true;
    settings.LinkType = 1;
    settings.LinkPrefix = "file:///";

    settings.ActiveColumns = "Number|Artist|Title";
    settings.InactiveColumns = "Album|Full Path";
    settings.Merge = 1;
    settings.MoveTheArtists = true;

    settings.Font[kPageFont] = {"Page, serif", "3", true, false};
    settings.Font[kHeaderFont] = {"Header", "2", false, true};
    settings.Font[kCellFont] = {"Cell, sans-serif", "1", false, false};
    settings.FontCSS = true;

    settings.Colour = {"000000", "111111", "222222", "333333", "444444",
                       "555555", "666666", "777777", "888888", "999999"};
    settings.AltRows = true;
    settings.ColourHTML = true;

    settings.TableWidthUnit = 1;
    settings.TableWidth = 99;
    settings.TablePadding = 2;
    settings.TableBorder = 3;
    return settings;
}

} // namespace tunedex
