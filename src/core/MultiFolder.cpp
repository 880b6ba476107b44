#include "MultiFolder.h"

#include "Settings.h"
#include "Text.h"

namespace tunedex {

std::vector<std::string> FoldersOf(std::string_view folderValue) {
    if (!IsMultiFolder(folderValue) || folderValue == kMultiFolderMark) {
        return {};
    }
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

} // namespace tunedex
