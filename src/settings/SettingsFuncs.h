// Settings files ("*.cfg") and the lines they share with theme files: lines of KEY=value, KEY(n)=value,
// comments that begin with "#", and empty lines.
#pragma once

#include "Settings.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

class TextFile;

inline constexpr std::string_view kSettingsFileName = "Tunedex.cfg";

// What a written file's head says about its making.
struct FileStamp {
    std::string version; // the program's version text, "1.0"
    std::string date;    // in the user's short formats
    std::string time;
};

enum class LoadOutcome {
    Loaded,
    DefaultsApplied, // there is no default settings file
    Missing,         // there is no such file; the settings are unchanged
};

// Reads a settings or theme file over `settings`; keys that it lacks keep their values. An empty path means
// the default file in `programFolder` (which ends in a separator). A line that cannot be applied is skipped,
// with a line on `faults` that names file, line and reason. Raises the error of a file that cannot be read.
LoadOutcome LoadSettings(Settings& settings, const std::string& path, const std::string& programFolder,
                         std::ostream& faults);

// The same for lines already read; `name` is what faults call the file.
void ApplySettings(Settings& settings, const std::vector<std::string>& lines, std::string_view name,
                   std::ostream& faults);

// Applies one line. `key` is in upper case; `index` is the digit of an indexed key, 0 for a key without
// brackets, -1 where there is no digit in them. Unknown keys are ignored. Raises error 6 for a number out of
// range, 9 for an index out of range or missing parts.
void ParseSetting(Settings& settings, std::string_view key, std::string_view value, int index);

// The path that a save to `path` writes: the default file for an empty path, else with ".cfg" unless it ends
// so.
std::string SettingsPath(const std::string& path, const std::string& programFolder);

// Writes every setting whose value fits on a line. Returns the keys of those that hold CR or LF and are left
// out. Raises the error of a file that cannot be written; the old file is then still there.
std::vector<std::string> SaveSettings(const Settings& settings, const std::string& path,
                                      const std::string& programFolder, const FileStamp& stamp);

// The five comment lines that begin a settings or theme file; `kind` ends the second.
void WriteFileHead(TextFile& file, std::string_view kind, const FileStamp& stamp);

// Values as files hold them.
std::string FlagText(bool flag);
std::string FontText(const FontSetting& font);
std::string TableWidthText(std::int16_t unit, std::string_view width);

} // namespace tunedex
