// The folder setting that holds several folders, as the folder-list dialog shows and stores it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// One row per folder of a multi-folder value; none for a single folder or an empty list.
std::vector<std::string> FoldersOf(std::string_view folderValue);

// "%MULT%" and the folders joined by "%||%". There must be at least one.
std::string MultiFolderValue(const std::vector<std::string>& folders);

} // namespace tunedex
