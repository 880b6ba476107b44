// Theme files ("*.thm" in the folder "Themes"): named sets of fonts, colours and table measures.
#pragma once

#include "Settings.h"
#include "SettingsFuncs.h"

#include <array>
#include <ostream>
#include <string>
#include <vector>

namespace tunedex {

// The theme folder in `programFolder`; both end in a separator.
std::string ThemeFolder(const std::string& programFolder);
std::string ThemePath(const std::string& programFolder, const std::string& name);
// The existing file of a listed theme, its extension in any case; ThemePath() if there is none.
std::string StoredThemePath(const std::string& programFolder, const std::string& name);

// The names of the themes, in directory order; none without the folder.
std::vector<std::string> ListThemes(const std::string& programFolder);

// Whether `name` can name a theme: not blank, not "." or "..", no separator, no NUL, and with the extension
// no longer than a file name may be.
bool IsThemeName(const std::string& name);

// The settings in a theme. The table measures are texts, as typed in the editor's fields.
struct ThemeContent {
    std::array<FontSetting, kFontCount> fonts;
    std::array<std::string, kColourCount> colours;
    bool alternateRows = false;
    std::int16_t widthUnit = 0;
    std::string tableWidth;
    std::string tablePadding;
    std::string tableBorder;
};

// Reads a theme file over `settings`, as LoadSettings() does; the grouping by album, the code page of tags
// and the modern mode stay as they are.
LoadOutcome LoadThemeFile(Settings& settings, const std::string& path, const std::string& programFolder,
                          std::ostream& faults);

// Creates or replaces the file. Raises the error of a file that cannot be written.
void WriteThemeFile(const std::string& path, const ThemeContent& content, const FileStamp& stamp);

} // namespace tunedex
