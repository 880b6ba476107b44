// Settings files ("*.cfg") and the syntax that they share with theme files: KEY=value, KEY(n)=value, comments
// that begin with "#", and empty lines.
#pragma once

#include "Settings.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

class TextFile;

inline constexpr std::string_view kSettingsFileName = "Tunedex.cfg";

// Program version and time in the head of a written file.
struct FileStamp {
    std::string version; // "1.0"
    std::string date;    // in the locale's short formats
    std::string time;
};

enum class LoadOutcome {
    Loaded,
    DefaultsApplied, // the default settings file does not exist
    Missing,         // another file does not exist; the settings are unchanged
};

// Reads a settings or theme file over `settings`; members whose keys it lacks keep their values, except
// GroupByAlbum, TagCodePage and Modern, which become false, empty and false: a file names them only when they
// are set. An empty path means the default file in `programFolder` (which ends in a separator); if that does
// not exist, `settings` becomes `defaults`. An invalid line is skipped and reported on `faults`. Raises the
// error of a file that cannot be read.
LoadOutcome LoadSettings(Settings& settings, const std::string& path, const std::string& programFolder,
                         const Settings& defaults, std::ostream& faults);

// The same for lines already read; `name` is the file's name in reports.
// Returns how many lines were invalid.
std::size_t ApplySettings(Settings& settings, const std::vector<std::string>& lines, std::string_view name,
                          std::ostream& faults);

// Applies one setting. `key` is in upper case; `index` is the digit after its bracket: 0 for a key without a
// bracket, -1 for no digit. Unknown keys are ignored. Raises error 5 for a table width of less than two
// characters, 6 for a number out of range, 9 for an index out of range or a font with missing parts.
void ParseSetting(Settings& settings, std::string_view key, std::string_view value, int index);

// Whether a line has the form of a setting with a key that no setting has. ApplySettings ignores such lines
// without a report.
bool HasUnknownKey(std::string_view line);

// The file that SaveSettings() writes: the default file for an empty path, else `path`, with ".cfg" appended
// unless it ends in that.
std::string SettingsPath(const std::string& path, const std::string& programFolder);

// Writes all settings except those that hold CR or LF, and returns the keys of these. Raises the error of a
// file that cannot be written; the old file is then kept.
std::vector<std::string> SaveSettings(const Settings& settings, const std::string& path,
                                      const std::string& programFolder, const FileStamp& stamp);

// Writes the five comment lines at the start of a settings or theme file; `kind` ends the second.
void WriteFileHead(TextFile& file, std::string_view kind, const FileStamp& stamp);

// Values in file syntax.
std::string FlagText(bool flag);
std::string FontText(const FontSetting& font);
std::string TableWidthText(std::int16_t unit, std::string_view width);

} // namespace tunedex
