#include "CheckFile.h"

#include "SettingsFuncs.h"
#include "TextLines.h"

namespace tunedex {

bool CheckSettingsFile(const std::string& path, std::ostream& output) {
    const std::vector<std::string> lines = ReadTextLines(path, StrayBytes::Escaped);
    Settings settings;
    const std::size_t faults = ApplySettings(settings, lines, path, output);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (HasUnknownKey(lines[i])) {
            output << path << ':' << i + 1 << ": unknown key, ignored\n";
        }
    }
    if (faults == 0) {
        output << path << ": no faulty line\n";
    }
    return faults == 0;
}

} // namespace tunedex
