#include "Themes.h"

#include "FileSystem.h"
#include "Path.h"
#include "Text.h"
#include "TextFile.h"

namespace tunedex {

namespace {

constexpr std::string_view kThemeFolderName = "Themes";
constexpr std::string_view kThemeExtension = ".thm";
constexpr std::size_t kLongestFileName = 255; // bytes; NAME_MAX of the common file systems

std::string IndexedKey(std::string_view key, std::size_t index) {
    return std::string(key) + "(" + std::to_string(index) + ")=";
}

} // namespace

std::string ThemeFolder(const std::string& programFolder) {
    return programFolder + std::string(kThemeFolderName) + PathStyle::Native().separator;
}

std::string ThemePath(const std::string& programFolder, const std::string& name) {
    return ThemeFolder(programFolder) + name + std::string(kThemeExtension);
}

std::string StoredThemePath(const std::string& programFolder, const std::string& name) {
    std::string usual = ThemePath(programFolder, name);
    if (FileExists(usual)) {
        return usual;
    }
    for (const std::string& file : FileNamesIn(ThemeFolder(programFolder))) {
        if (file.size() == name.size() + kThemeExtension.size() && file.starts_with(name) &&
            EndsInIgnoringCase(file, ".THM")) {
            return ThemeFolder(programFolder) + file;
        }
    }
    return usual;
}

std::vector<std::string> ListThemes(const std::string& programFolder) {
    std::vector<std::string> themes;
    for (std::string& name : FileNamesIn(ThemeFolder(programFolder))) {
        if (EndsInIgnoringCase(name, ".THM")) {
            name.resize(name.size() - kThemeExtension.size());
            themes.push_back(std::move(name));
        }
    }
    return themes;
}

bool IsThemeName(const std::string& name) {
    const PathStyle style = PathStyle::Native();
    return !TrimBlanks(name).empty() && name.size() + kThemeExtension.size() <= kLongestFileName &&
           name != "." && name != ".." && name.find(style.separator) == std::string::npos &&
           name.find('\0') == std::string::npos;
}

LoadOutcome LoadThemeFile(Settings& settings, const std::string& path, const std::string& programFolder,
                          std::ostream& faults) {
    const bool groupByAlbum = settings.GroupByAlbum;
    const std::string codePage = settings.TagCodePage;
    const bool modern = settings.Modern;
    const LoadOutcome outcome = LoadSettings(settings, path, programFolder, settings, faults);
    settings.GroupByAlbum = groupByAlbum;
    settings.TagCodePage = codePage;
    settings.Modern = modern;
    return outcome;
}

void WriteThemeFile(const std::string& path, const ThemeContent& content, const FileStamp& stamp) {
    TextFile file(path, TextEncoding::SettingsLine);
    WriteFileHead(file, "Theme Definition File", stamp);
    file.WriteLine("");
    file.WriteLine("# FONT SETTINGS");
    for (std::size_t i = 0; i < content.fonts.size(); ++i) {
        file.WriteLine(IndexedKey("Font", i) + FontText(content.fonts.at(i)));
    }
    file.WriteLine("");
    file.WriteLine("# COLOUR SETTINGS");
    for (std::size_t i = 0; i < content.colours.size(); ++i) {
        file.WriteLine(IndexedKey("Colour", i) + content.colours.at(i));
    }
    file.WriteLine("AltRows=" + FlagText(content.alternateRows));
    file.WriteLine("");
    file.WriteLine("# TABLE SETTINGS");
    file.WriteLine("TableWidth=" + TableWidthText(content.widthUnit, content.tableWidth));
    file.WriteLine("TablePadding=" + content.tablePadding);
    file.WriteLine("TableBorder=" + content.tableBorder);
    file.Close();
}

} // namespace tunedex
