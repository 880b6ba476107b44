// Input: a settings file.
#include "SettingsFuncs.h"
#include "SettingsText.h"
#include "Targets.h"
#include "TextFile.h"
#include "TextLines.h"

#include <sstream>

namespace tunedex::fuzz {

void RunSettings(Bytes bytes) {
    const Settings read = ReadSettingsText(TextOf(bytes));
    // Round trip. TableSpacing is never written.
    const std::string& folder = EmptyFolder();
    SaveSettings(read, "", folder, {"1.0", "2026-11-21", "14:05"});
    Settings again;
    std::ostringstream faults;
    Require(LoadSettings(again, "", folder, {}, faults) == LoadOutcome::Loaded, "a saved file is found");
    RequireEqual(faults.str(), "", "a saved file has no faulty line");
    again.TableSpacing = read.TableSpacing;
    Require(again == read, "settings are unchanged by a round trip");
}

} // namespace tunedex::fuzz
