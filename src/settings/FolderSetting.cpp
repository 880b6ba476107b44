#include "FolderSetting.h"

#include "Text.h"

namespace tunedex {

namespace {

constexpr std::string_view kMultiFolderSeparator = "%||%";

} // namespace

std::vector<std::string> FoldersOf(std::string_view folderValue) {
    if (!IsMultiFolder(folderValue)) {
        return {};
    }
    // Required: every mark is removed, not only the first.
    return Split(ReplaceAll(folderValue, kMultiFolderMark, ""), kMultiFolderSeparator);
}

std::string MultiFolderValue(const std::vector<std::string>& folders) {
    std::string value(kMultiFolderMark);
    for (std::size_t i = 0; i < folders.size(); ++i) {
        value += i > 0 ? kMultiFolderSeparator : "";
        value += folders[i];
    }
    return value;
}

std::vector<StartFolder> StartFolders(std::string_view folderValue, PathStyle style) {
    if (!IsMultiFolder(folderValue)) {
        return {{std::string(folderValue), WithSeparator(folderValue, style)}};
    }
    std::vector<StartFolder> folders;
    const std::vector<std::string> entries = FoldersOf(folderValue);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (entries[i].empty()) {
            continue;
        }
        // Required: only the last entry's base folder is stored without the added separator. Do not "fix".
        const bool last = i + 1 == entries.size();
        std::string path = WithSeparator(entries[i], style);
        folders.push_back({last ? entries[i] : path, path});
    }
    return folders;
}

} // namespace tunedex
