// Checks where the symbolic link of an output file leads.
#pragma once

#include <string>
#include <string_view>

namespace tunedex {

// Whether the name ends in ".mp3" in any case, so that a scan would catalogue the file.
bool NamesTrack(std::string_view path);

// Raises error 75 when `path` is a symbolic link that the system refuses to follow, or that leads to a name
// for which NamesTrack holds, whether or not that file exists. Creates and opens nothing. It lets a run fail
// early; FileReplacement repeats the check on the file that it opened.
void CheckOutputLink(const std::string& path);

} // namespace tunedex
