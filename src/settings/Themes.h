// Theme files ("*.thm"): a named set of fonts, colours and table measures, one file each in the folder
// "Themes".
#pragma once

#include "Settings.h"
#include "SettingsFuncs.h"

#include <array>
#include <string>
#include <vector>

namespace tunedex {

// The folder of themes below the program's folder, with its separator.
std::string ThemeFolder(const std::string& programFolder);
std::string ThemePath(const std::string& programFolder, const std::string& name);
// The path of the file that is listed under that name, whatever the case of its extension; ThemePath() where
// there is none.
std::string StoredThemePath(const std::string& programFolder, const std::string& name);

// The names of the themes, in the order in which the folder returns them; none when there is no folder.
std::vector<std::string> ListThemes(const std::string& programFolder);

// Whether a file of that name can be a theme in the folder: not a path, not empty once trimmed of blanks, no
// NUL, and with the extension no longer than a file name may be.
bool IsThemeName(const std::string& name);

// What a theme holds of the settings, the table's width as the text of the editor's box.
struct ThemeContent {
    std::array<FontSetting, kFontCount> fonts;
    std::array<std::string, kColourCount> colours;
    bool alternateRows = false;
    std::int16_t widthUnit = 0;
    std::string tableWidth;
    std::string tablePadding;
    std::string tableBorder;
};

// Creates or replaces the file. Raises the error of a file that cannot be written.
void WriteThemeFile(const std::string& path, const ThemeContent& content, const FileStamp& stamp);

} // namespace tunedex
