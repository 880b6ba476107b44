#include "SettingsText.h"

#include "Fuzzing.h"
#include "RunTimeError.h"
#include "SettingsFuncs.h"
#include "Text.h"
#include "TextLines.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace tunedex::fuzz {

namespace {

// A simple parser of one line. Returns whether the setting was applied.
bool ApplyPlainly(Settings& settings, const std::string& line) {
    const std::size_t e = line.find('=') + 1; // 1-based; 0: none
    const std::size_t p = line.find('(') + 1;
    if (e == 0) {
        return false;
    }
    std::string key = line.substr(0, e - 1);
    int index = 0;
    if (p > 0 && p < e) {
        key = line.substr(0, p - 1);
        const char digit = line.at(p);
        index = digit >= '0' && digit <= '9' ? digit - '0' : -1;
    }
    try {
        ParseSetting(settings, UpperCase(key), line.substr(e), index);
    } catch (const RunTimeError&) {
        return false;
    }
    return true;
}

} // namespace

Settings ReadSettingsText(const std::string& bytes) {
    const std::vector<std::string> lines = SplitTextLines(bytes, StrayBytes::Escaped);
    Settings settings;
    std::ostringstream faults;
    ApplySettings(settings, lines, "file", faults);
    Settings expected;
    std::ptrdiff_t faulty = 0;
    for (const std::string& line : lines) {
        Require(line.find_first_of("\r\n") == std::string::npos, "a line contains no line end");
        RequireEqual(DecodeFileLine(EncodeFileLine(line, StrayBytes::Escaped), StrayBytes::Escaped), line,
                     "a line is unchanged by a round trip");
        if (!line.empty() && line.front() != '#' && !ApplyPlainly(expected, line)) {
            ++faulty;
        }
    }
    Require(settings == expected, "lines are applied in order");
    const std::string said = faults.str();
    Require(std::count(said.begin(), said.end(), '\n') == faulty, "exactly the faulty lines are reported");
    return settings;
}

} // namespace tunedex::fuzz
