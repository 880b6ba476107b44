// The folder setting: one folder, or a multi-folder value, "%MULT%" and the folders joined by "%||%".
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

// The entries of a multi-folder value as stored, empty ones included; none for a single folder.
std::vector<std::string> FoldersOf(std::string_view folderValue);

// Joins folders to a multi-folder value.
std::string MultiFolderValue(const std::vector<std::string>& folders);

// The start of a walk.
struct StartFolder {
    std::string baseFolder; // as stored in the track records
    std::string path;       // ends in a separator
};

// The single folder, or the entries of a multi-folder value without the empty ones.
std::vector<StartFolder> StartFolders(std::string_view folderValue, PathStyle style);

} // namespace tunedex
