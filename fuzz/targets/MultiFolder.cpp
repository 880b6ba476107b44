// Input: a folder setting.
#include "FolderSetting.h"

#include "Targets.h"
#include "Text.h"

#include <algorithm>

namespace tunedex::fuzz {

namespace {

void CheckStarts(const std::string& value, PathStyle style) {
    const std::string separator(1, style.separator);
    const std::vector<StartFolder> starts = StartFolders(value, style);
    for (const StartFolder& start : starts) {
        Require(start.path.ends_with(separator), "a start folder ends in a separator");
        Require(start.path == start.baseFolder || start.path == start.baseFolder + separator,
                "a base folder is its start folder");
    }
    if (!IsMultiFolder(value)) {
        Require(starts.size() == 1 && starts[0].baseFolder == value, "a single folder is not changed");
        return;
    }
    // The same steps on the list as one text, without the empty entries.
    std::string list = ReplaceAll(value, "%MULT%", "");
    std::vector<std::string> entries = Split(list, "%||%");
    if (std::any_of(entries.begin(), entries.end(),
                    [&](const std::string& entry) { return entry.ends_with("%||" + separator); })) {
        return; // in one text, the end of such a folder looks like a list separator
    }
    list = ReplaceAll(ReplaceAll(list, separator + "%||%", "%||%"), "%||%", separator + "%||%");
    std::vector<std::string> normalised = Split(list, "%||%");
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!entries[i].empty() && i < normalised.size()) {
            expected.push_back(normalised[i]);
        }
    }
    Require(starts.size() == expected.size(), "every non-empty entry is a start folder");
    for (std::size_t i = 0; i < starts.size(); ++i) {
        RequireEqual(starts[i].baseFolder, expected[i], "a normalised start folder");
    }
}

} // namespace

void RunMultiFolder(Bytes bytes) {
    const std::string value = TextOf(bytes);
    for (const std::string& folders : {value, "%MULT%" + value}) {
        CheckStarts(folders, PathStyle::Unix());
        CheckStarts(folders, PathStyle::Windows());
    }
    const std::vector<std::string> rows = FoldersOf(value);
    Require(IsMultiFolder(value) || rows.empty(), "only a list has rows");
    if (!rows.empty()) {
        const std::string again = MultiFolderValue(rows);
        // Removing the mark can create another: "%MU%MULT%LT%".
        const bool marked = ReplaceAll(value, "%MULT%", "").find("%MULT%") != std::string::npos;
        Require(marked || FoldersOf(again) == rows, "a list is unchanged by a round trip");
    }
}

} // namespace tunedex::fuzz
