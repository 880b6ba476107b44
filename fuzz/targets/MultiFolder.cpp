// The bytes are a folder setting.
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
        Require(start.path.ends_with(separator), "a walk begins at a folder with its separator");
        Require(start.path == start.baseFolder || start.path == start.baseFolder + separator,
                "a record's base folder is where its walk began");
    }
    if (!IsMultiFolder(value)) {
        Require(starts.size() == 1 && starts[0].baseFolder == value, "a single folder stands for itself");
        return;
    }
    // The steps on the whole list, empty entries left out.
    std::string list = ReplaceAll(value, "%MULT%", "");
    std::vector<std::string> entries = Split(list, "%||%");
    if (std::any_of(entries.begin(), entries.end(),
                    [&](const std::string& entry) { return entry.ends_with("%||" + separator); })) {
        return; // on the whole list, dropping its separator makes such a folder's end pass for the list's
    }
    list = ReplaceAll(ReplaceAll(list, separator + "%||%", "%||%"), "%||%", separator + "%||%");
    std::vector<std::string> normalised = Split(list, "%||%");
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!entries[i].empty() && i < normalised.size()) {
            expected.push_back(normalised[i]);
        }
    }
    Require(starts.size() == expected.size(), "every entry is a start folder, the empty ones aside");
    for (std::size_t i = 0; i < starts.size(); ++i) {
        RequireEqual(starts[i].baseFolder, expected[i], "a start folder as it is normalised");
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
        // Removing the mark can make one: "%MU%MULT%LT%".
        const bool marked = ReplaceAll(value, "%MULT%", "").find("%MULT%") != std::string::npos;
        Require(marked || FoldersOf(again) == rows, "a list survives being shown and stored");
    }
}

} // namespace tunedex::fuzz
