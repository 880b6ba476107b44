// The folder setting: one folder, or a multi-folder value of "%MULT%" and folders joined by "%||%".
#pragma once

#include "Path.h"

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

inline constexpr std::string_view kMultiFolderMark = "%MULT%";

inline bool IsMultiFolder(std::string_view folderValue) {
    return folderValue.starts_with(kMultiFolderMark);
}

// The entries of a multi-folder value as they are stored, empty ones included; none for a single folder.
std::vector<std::string> FoldersOf(std::string_view folderValue);

// The multi-folder value of these folders.
std::string MultiFolderValue(const std::vector<std::string>& folders);

// Where a walk begins.
struct StartFolder {
    std::string baseFolder; // as records hold it
    std::string path;       // ends in a separator
};

// The start folders of a folder setting: the single one, or the entries of a multi-folder value, empty ones
// left out.
std::vector<StartFolder> StartFolders(std::string_view folderValue, PathStyle style);

} // namespace tunedex
