#include "SettingsFuncs.h"

#include "CodePages.h"
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

// Rows other than plain values: the comment line before a group, and settings with a syntax of their own.
struct Group {};
struct Fonts {};
struct Colours {};
struct TableWidth {};
struct CodePageSetting {};

// The settings in file order.
struct Row {
    std::string_view key;
    std::variant<Group, Fonts, Colours, TableWidth, CodePageSetting, TextMember, FlagMember, NumberMember>
        value;
    bool onlyWhenSet = false; // a file without the line means an empty text or no
};

template <typename... Functions> struct Overloaded : Functions... { using Functions::operator()...; };
template <typename... Functions> Overloaded(Functions...) -> Overloaded<Functions...>;

constexpr std::array kRows = {
    Row{"# MAIN SETTINGS", Group{}},
    Row{"Directory", &Settings::Directory},
    Row{"OutputFile", &Settings::OutputFile},
    Row{"WindowTitle", &Settings::WindowTitle},
    Row{"PageTitle", &Settings::PageTitle},
    Row{"PageFooter", &Settings::PageFooter},
    Row{"# GENERAL SETTINGS", Group{}},
    Row{"Recurse", &Settings::Recurse},
    Row{"Spanning", &Settings::Spanning},
    Row{"SizeType", &Settings::SizeType},
    Row{"SortOrder", &Settings::SortOrder},
    Row{"ErrorWarnings", &Settings::ErrorWarnings},
    Row{"ErrorLog", &Settings::ErrorLog},
    Row{"ConfirmQuit", &Settings::ConfirmQuit},
    Row{"DocumentType", &Settings::DocumentType},
    Row{"# LINK SETTINGS", Group{}},
    Row{"DoLinks", &Settings::DoLinks},
    Row{"LinkType", &Settings::LinkType},
    Row{"LinkPrefix", &Settings::LinkPrefix},
    Row{"# HTML LAYOUT - COLUMN SETTINGS", Group{}},
    Row{"ActiveColumns", &Settings::ActiveColumns},
    Row{"InactiveColumns", &Settings::InactiveColumns},
    Row{"Merge", &Settings::Merge},
    Row{"MoveTheArtists", &Settings::MoveTheArtists},
    Row{"# HTML LAYOUT - FONT SETTINGS", Group{}},
    Row{"Font", Fonts{}},
    Row{"FontCSS", &Settings::FontCSS},
    Row{"FontHTML", &Settings::FontHTML},
    Row{"# HTML LAYOUT - COLOUR SETTINGS", Group{}},
    Row{"Colour", Colours{}},
    Row{"AltRows", &Settings::AltRows},
    Row{"ColourCSS", &Settings::ColourCSS},
    Row{"ColourHTML", &Settings::ColourHTML},
    Row{"# HTML LAYOUT - TABLE SETTINGS", Group{}},
    Row{"TableWidth", TableWidth{}},
    Row{"TablePadding", &Settings::TablePadding},
    Row{"TableBorder", &Settings::TableBorder},
    Row{"GroupByAlbum", &Settings::GroupByAlbum, true},
    Row{"TagCodePage", CodePageSetting{}, true},
    Row{"Modern", &Settings::Modern, true},
};

// Required: read from files, never written.
constexpr Row kTableSpacingRow{"TableSpacing", &Settings::TableSpacing};

const Row* FindRow(std::string_view upperCaseKey) {
    const auto matches = [&](const Row& row) { return UpperCase(row.key) == upperCaseKey; };
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

std::string ParseCodePage(std::string_view value) {
    std::string name(value);
    if (!name.empty() && !IsCodePage(name)) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    return name;
}

void ParseTableWidth(Settings& settings, std::string_view value) {
    if (value.size() < 2) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    // Required: the second character is skipped, whatever it is.
    const std::size_t first = StepAt(value, 0).length;
    if (first >= value.size()) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    const std::size_t second = StepAt(value, first).length;
    const std::int16_t unit = ToInt16(LeadingNumber(value.substr(0, first)));
    settings.TableWidth = ToInt16(LeadingNumber(value.substr(first + second)));
    settings.TableWidthUnit = unit;
}

bool IsComment(std::string_view line) {
    return line.empty() || line.front() == '#';
}

// The key of a line, in upper case and without its index.
std::string KeyOf(std::string_view line) {
    return UpperCase(line.substr(0, line.find_first_of("=(")));
}

void ApplyLine(Settings& settings, std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    const std::string_view value = line.substr(equals + 1);
    const std::size_t bracket = line.find('(');
    if (bracket >= equals) {
        ParseSetting(settings, KeyOf(line), value, 0);
        return;
    }
    // Required: the index is one digit and the rest is ignored, so "Colour(12)" sets Colour(1).
    const char digit = line[bracket + 1];
    const int index = digit >= '0' && digit <= '9' ? digit - '0' : -1;
    ParseSetting(settings, KeyOf(line), value, index);
}

// Of a row that is written only when set.
bool IsSet(const Settings& settings, const Row& row) {
    const auto* const flag = std::get_if<FlagMember>(&row.value);
    return flag == nullptr ? !settings.TagCodePage.empty() : settings.**flag;
}

// Writes settings as lines and collects the keys of those that hold a line break.
class SettingWriter {
  public:
    explicit SettingWriter(TextFile& file) : file_(file) {}

    void Write(const Settings& settings, const Row& row) {
        const std::string key(row.key);
        std::visit(Overloaded{
                       [&](Group) {
                           file_.WriteLine("");
                           file_.WriteLine(key);
                       },
                       [&](Fonts) {
                           for (std::size_t i = 0; i < settings.Font.size(); ++i) {
                               WriteValue(IndexedKey(key, i), FontText(settings.Font.at(i)));
                           }
                       },
                       [&](Colours) {
                           for (std::size_t i = 0; i < settings.Colour.size(); ++i) {
                               WriteValue(IndexedKey(key, i), settings.Colour.at(i));
                           }
                       },
                       [&](TableWidth) {
                           WriteValue(key, TableWidthText(settings.TableWidthUnit,
                                                          std::to_string(settings.TableWidth)));
                       },
                       [&](CodePageSetting) { WriteValue(key, settings.TagCodePage); },
                       [&](TextMember text) { WriteValue(key, settings.*text); },
                       [&](FlagMember flag) { WriteValue(key, FlagText(settings.*flag)); },
                       [&](NumberMember number) { WriteValue(key, std::to_string(settings.*number)); },
                   },
                   row.value);
    }

    const std::vector<std::string>& LeftOut() const { return leftOut_; }

  private:
    static std::string IndexedKey(const std::string& key, std::size_t index) {
        return key + "(" + std::to_string(index) + ")";
    }
    void WriteValue(const std::string& key, const std::string& value) {
        if (value.find_first_of("\r\n") != std::string::npos) {
            leftOut_.push_back(key);
        } else {
            file_.WriteLine(key + "=" + value);
        }
    }

    TextFile& file_;
    std::vector<std::string> leftOut_;
};

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
    std::visit(Overloaded{
                   [](Group) {},
                   [&](Fonts) { settings.Font.at(CheckedIndex(index, kFontCount)) = ParseFont(value); },
                   [&](Colours) { settings.Colour.at(CheckedIndex(index, kColourCount)) = value; },
                   [&](TableWidth) { ParseTableWidth(settings, value); },
                   [&](CodePageSetting) { settings.TagCodePage = ParseCodePage(value); },
                   [&](TextMember text) { settings.*text = value; },
                   [&](FlagMember flag) { settings.*flag = LeadingNumber(value) != 0; },
                   [&](NumberMember number) { settings.*number = ToInt16(LeadingNumber(value)); },
               },
               row->value);
}

std::size_t ApplySettings(Settings& settings, const std::vector<std::string>& lines, std::string_view name,
                          std::ostream& faults) {
    std::size_t number = 0;
    std::size_t faulty = 0;
    for (const std::string& line : lines) {
        ++number;
        if (IsComment(line)) {
            continue;
        }
        try {
            ApplyLine(settings, line);
        } catch (const RunTimeError& error) {
            ++faulty;
            const bool noEquals = line.find('=') == std::string::npos;
            ReportFaultyLine(faults, name, number, noEquals ? "no \"=\" in it" : error.Description());
        }
    }
    return faulty;
}

bool HasUnknownKey(std::string_view line) {
    return !IsComment(line) && line.find('=') != std::string_view::npos && FindRow(KeyOf(line)) == nullptr;
}

std::string SettingsPath(const std::string& path, const std::string& programFolder) {
    if (path.empty()) {
        return programFolder + std::string(kSettingsFileName);
    }
    return EndsInIgnoringCase(path, ".CFG") ? path : path + ".cfg";
}

LoadOutcome LoadSettings(Settings& settings, const std::string& path, const std::string& programFolder,
                         const Settings& defaults, std::ostream& faults) {
    const std::string defaultPath = SettingsPath("", programFolder);
    const std::string file = path.empty() ? defaultPath : path;
    if (!FileExists(file)) {
        if (file != defaultPath) {
            return LoadOutcome::Missing;
        }
        settings = defaults;
        return LoadOutcome::DefaultsApplied;
    }
    const std::vector<std::string> lines = ReadTextLines(file, StrayBytes::Escaped);
    settings.GroupByAlbum = false;
    settings.TagCodePage.clear();
    settings.Modern = false;
    ApplySettings(settings, lines, file, faults);
    return LoadOutcome::Loaded;
}

void WriteFileHead(TextFile& file, std::string_view kind, const FileStamp& stamp) {
    const std::string rule = "#" + std::string(49, '-');
    file.WriteLine(rule);
    // Required: "(Win32)" on every system, as in all existing files.
    file.WriteLine("#  Tunedex (Win32) " + std::string(kind));
    file.WriteLine("#  Generated by program version: " + stamp.version);
    file.WriteLine("#  Generation date/time: " + stamp.date + " - " + stamp.time);
    file.WriteLine(rule);
}

std::vector<std::string> SaveSettings(const Settings& settings, const std::string& path,
                                      const std::string& programFolder, const FileStamp& stamp) {
    TextFile file(SettingsPath(path, programFolder), TextEncoding::SettingsLine);
    WriteFileHead(file, "Configuration File", stamp);
    SettingWriter writer(file);
    for (const Row& row : kRows) {
        if (!row.onlyWhenSet || IsSet(settings, row)) {
            writer.Write(settings, row);
        }
    }
    file.Close();
    return writer.LeftOut();
}

} // namespace tunedex
