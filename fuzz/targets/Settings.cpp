// The bytes are a settings file.
#include "SettingsFuncs.h"
#include "SettingsText.h"
#include "Targets.h"
#include "TextFile.h"
#include "TextLines.h"

#include <sstream>

namespace tunedex::fuzz {

void RunSettings(Bytes bytes) {
    const Settings read = ReadSettingsText(TextOf(bytes));
    // What was read is written and read again as it is; only the table's spacing is never written.
    const std::string& folder = EmptyFolder();
    SaveSettings(read, "", folder, {"1.0", "2026-11-21", "14:05"});
    Settings again;
    std::ostringstream faults;
    Require(LoadSettings(again, "", folder, faults) == LoadOutcome::Loaded, "a saved file is there");
    RequireEqual(faults.str(), "", "a saved file has no faulty line");
    again.TableSpacing = read.TableSpacing;
    Require(again == read, "settings survive saving and loading");
}

} // namespace tunedex::fuzz
