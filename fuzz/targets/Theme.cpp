// Input: a theme file.
#include "Themes.h"

#include "SettingsText.h"
#include "Targets.h"
#include "TextLines.h"

#include <sstream>

namespace tunedex::fuzz {

void RunTheme(Bytes bytes) {
    const Settings read = ReadSettingsText(TextOf(bytes));
    ThemeContent content;
    content.fonts = read.Font;
    content.colours = read.Colour;
    content.alternateRows = read.AltRows;
    content.widthUnit = read.TableWidthUnit;
    content.tableWidth = std::to_string(read.TableWidth);
    content.tablePadding = std::to_string(read.TablePadding);
    content.tableBorder = std::to_string(read.TableBorder);
    const std::string path = EmptyFolder() + "theme.thm";
    WriteThemeFile(path, content, {"1.0", "2026-11-21", "14:05"});
    // Loading a theme leaves all other settings unchanged.
    Settings again = read;
    again.Font = {};
    again.Colour = {};
    again.AltRows = !read.AltRows;
    again.TableWidthUnit = again.TableWidth = again.TablePadding = again.TableBorder = -1;
    std::ostringstream faults;
    ApplySettings(again, ReadTextLines(path, StrayBytes::Escaped), path, faults);
    RequireEqual(faults.str(), "", "a saved theme has no faulty line");
    Require(again == read, "a theme is unchanged by a round trip");
}

} // namespace tunedex::fuzz
