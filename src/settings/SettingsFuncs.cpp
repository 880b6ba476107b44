#include "SettingsFuncs.h"

#include "FaultyLine.h"
#include "FileSystem.h"
#include "Numbers.h"
#include "RunTimeError.h"
#include "Text.h"
#include "TextFile.h"
#include "TextLines.h"

#include <algorithm>
#include <array>
#include <variant>

namespace tunedex {

namespace {

constexpr std::string_view kFontSeparator = "%|%";

using TextMember = std::string Settings::*;
using FlagMember = bool Settings::*;
using NumberMember = std::int16_t Settings::*;

// The settings that are one key and one plain value, in the order in which a file holds them. A row without a
// member stands for settings that need code of their own, or begins a group with its comment.
enum class Special { None, Fonts, Colours, TableWidth, Group };

struct Row {
    std::string_view key;
    std::variant<std::monostate, TextMember, FlagMember, NumberMember> member;
    Special special = Special::None;
};

constexpr Row Group(std::string_view comment) {
    return {comment, {}, Special::Group};
}

constexpr std::array kRows = {
    Group("# MAIN SETTINGS"),
    Row{"Directory", &Settings::Directory},
    Row{"OutputFile", &Settings::OutputFile},
    Row{"WindowTitle", &Settings::WindowTitle},
    Row{"PageTitle", &Settings::PageTitle},
    Row{"PageFooter", &Settings::PageFooter},
    Group("# GENERAL SETTINGS"),
    Row{"Recurse", &Settings::Recurse},
    Row{"Spanning", &Settings::Spanning},
    Row{"SizeType", &Settings::SizeType},
    Row{"SortOrder", &Settings::SortOrder},
    Row{"ErrorWarnings", &Settings::ErrorWarnings},
    Row{"ErrorLog", &Settings::ErrorLog},
    Row{"ConfirmQuit", &Settings::ConfirmQuit},
    Row{"DocumentType", &Settings::DocumentType},
    Group("# LINK SETTINGS"),
    Row{"DoLinks", &Settings::DoLinks},
    Row{"LinkType", &Settings::LinkType},
    Row{"LinkPrefix", &Settings::LinkPrefix},
    Group("# HTML LAYOUT - COLUMN SETTINGS"),
    Row{"ActiveColumns", &Settings::ActiveColumns},
    Row{"InactiveColumns", &Settings::InactiveColumns},
    Row{"Merge", &Settings::Merge},
    Row{"MoveTheArtists", &Settings::MoveTheArtists},
    Group("# HTML LAYOUT - FONT SETTINGS"),
    Row{"Font", {}, Special::Fonts},
    Row{"FontCSS", &Settings::FontCSS},
    Row{"FontHTML", &Settings::FontHTML},
    Group("# HTML LAYOUT - COLOUR SETTINGS"),
    Row{"Colour", {}, Special::Colours},
    Row{"AltRows", &Settings::AltRows},
    Row{"ColourCSS", &Settings::ColourCSS},
    Row{"ColourHTML", &Settings::ColourHTML},
    Group("# HTML LAYOUT - TABLE SETTINGS"),
    Row{"TableWidth", {}, Special::TableWidth},
    Row{"TablePadding", &Settings::TablePadding},
    Row{"TableBorder", &Settings::TableBorder},
};

// Read from files that hold it, but no file is given it.
constexpr Row kTableSpacingRow{"TableSpacing", &Settings::TableSpacing};

const Row* FindRow(std::string_view upperCaseKey) {
    const auto matches = [&](const Row& row) {
        return row.special != Special::Group && UpperCase(row.key) == upperCaseKey;
    };
    if (matches(kTableSpacingRow)) {
        return &kTableSpacingRow;
    }
    const auto* const found = std::find_if(kRows.begin(), kRows.end(), matches);
    return found == kRows.end() ? nullptr : &*found;
}

std::size_t CheckedIndex(int index, std::size_t count) {
    if (index < 0 || static_cast<std::size_t>(index) >= count) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(index);
}

FontSetting ParseFont(std::string_view value) {
    const std::vector<std::string> parts = Split(value, kFontSeparator);
    if (parts.size() < 4) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return {parts[0], parts[1], LeadingNumber(parts[2]) != 0, LeadingNumber(parts[3]) != 0};
}

void ParseTableWidth(Settings& settings, std::string_view value) {
    if (value.size() < 2) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    // Character by character, as the second one is skipped whatever it is.
    const std::size_t first = StepAt(value, 0).length;
    if (first >= value.size()) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    const std::size_t second = StepAt(value, first).length;
    const std::int16_t unit = ToInt16(LeadingNumber(value.substr(0, first)));
    settings.TableWidth = ToInt16(LeadingNumber(value.substr(first + second)));
    settings.TableWidthUnit = unit;
}

void ApplyLine(Settings& settings, std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    const std::string_view value = line.substr(equals + 1);
    const std::size_t bracket = line.find('(');
    if (bracket >= equals) {
        ParseSetting(settings, UpperCase(line.substr(0, equals)), value, 0);
        return;
    }
    const char digit = line[bracket + 1];
    const int index = digit >= '0' && digit <= '9' ? digit - '0' : -1;
    ParseSetting(settings, UpperCase(line.substr(0, bracket)), value, index);
}

void WriteRow(TextFile& file, const Settings& settings, const Row& row) {
    const std::string key(row.key);
    switch (row.special) {
    case Special::Group:
        file.WriteLine("");
        file.WriteLine(key);
        return;
    case Special::Fonts:
        for (std::size_t i = 0; i < settings.Font.size(); ++i) {
            file.WriteLine(key + "(" + std::to_string(i) + ")=" + FontText(settings.Font.at(i)));
        }
        return;
    case Special::Colours:
        for (std::size_t i = 0; i < settings.Colour.size(); ++i) {
            file.WriteLine(key + "(" + std::to_string(i) + ")=" + settings.Colour.at(i));
        }
        return;
    case Special::TableWidth:
        file.WriteLine(key + "=" +
                       TableWidthText(settings.TableWidthUnit, std::to_string(settings.TableWidth)));
        return;
    case Special::None:
        break;
    }
    if (const auto* text = std::get_if<TextMember>(&row.member)) {
        file.WriteLine(key + "=" + settings.*(*text));
    } else if (const auto* flag = std::get_if<FlagMember>(&row.member)) {
        file.WriteLine(key + "=" + FlagText(settings.*(*flag)));
    } else if (const auto* number = std::get_if<NumberMember>(&row.member)) {
        file.WriteLine(key + "=" + std::to_string(settings.*(*number)));
    }
}

} // namespace

std::string FlagText(bool flag) {
    return flag ? "1" : "0";
}

std::string FontText(const FontSetting& font) {
    const std::string separator(kFontSeparator);
    return font.face + separator + font.size + separator + FlagText(font.bold) + separator +
           FlagText(font.italic);
}

std::string TableWidthText(std::int16_t unit, std::string_view width) {
    return std::to_string(unit) + "/" + std::string(width);
}

void ParseSetting(Settings& settings, std::string_view key, std::string_view value, int index) {
    const Row* row = FindRow(key);
    if (row == nullptr) {
        return;
    }
    switch (row->special) {
    case Special::Fonts:
        settings.Font.at(CheckedIndex(index, kFontCount)) = ParseFont(value);
        return;
    case Special::Colours:
        settings.Colour.at(CheckedIndex(index, kColourCount)) = value;
        return;
    case Special::TableWidth:
        ParseTableWidth(settings, value);
        return;
    case Special::Group:
    case Special::None:
        break;
    }
    if (const auto* text = std::get_if<TextMember>(&row->member)) {
        settings.*(*text) = value;
    } else if (const auto* flag = std::get_if<FlagMember>(&row->member)) {
        settings.*(*flag) = LeadingNumber(value) != 0;
    } else if (const auto* number = std::get_if<NumberMember>(&row->member)) {
        settings.*(*number) = ToInt16(LeadingNumber(value));
    }
}

void ApplySettings(Settings& settings, const std::vector<std::string>& lines, std::string_view name,
                   std::ostream& faults) {
    std::size_t number = 0;
    for (const std::string& line : lines) {
        ++number;
        if (line.empty() || line.front() == '#') {
            continue;
        }
        try {
            ApplyLine(settings, line);
        } catch (const RunTimeError& error) {
            const bool noEquals = line.find('=') == std::string::npos;
            ReportFaultyLine(faults, name, number, noEquals ? "no \"=\" in it" : error.Description());
        }
    }
}

std::string SettingsPath(const std::string& path, const std::string& programFolder) {
    if (path.empty()) {
        return programFolder + std::string(kSettingsFileName);
    }
    return EndsInIgnoringCase(path, ".CFG") ? path : path + ".cfg";
}

LoadOutcome LoadSettings(Settings& settings, const std::string& path, const std::string& programFolder,
                         std::ostream& faults) {
    const std::string defaultPath = SettingsPath("", programFolder);
    const std::string file = path.empty() ? defaultPath : path;
    if (!FileExists(file)) {
        if (file != defaultPath) {
            return LoadOutcome::Missing;
        }
        settings.SetDefaults();
        return LoadOutcome::DefaultsApplied;
    }
    ApplySettings(settings, ReadTextLines(file), file, faults);
    return LoadOutcome::Loaded;
}

void WriteFileHead(TextFile& file, std::string_view kind, const FileStamp& stamp) {
    const std::string rule = "#" + std::string(49, '-');
    file.WriteLine(rule);
    file.WriteLine("#  Tunedex (Win32) " + std::string(kind));
    file.WriteLine("#  Generated by program version: " + stamp.version);
    file.WriteLine("#  Generation date/time: " + stamp.date + " - " + stamp.time);
    file.WriteLine(rule);
}

void SaveSettings(const Settings& settings, const std::string& path, const std::string& programFolder,
                  const FileStamp& stamp) {
    TextFile file(SettingsPath(path, programFolder), TextEncoding::FileLine);
    WriteFileHead(file, "Configuration File", stamp);
    for (const Row& row : kRows) {
        WriteRow(file, settings, row);
    }
    file.Close();
}

} // namespace tunedex
