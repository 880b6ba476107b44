// Where an output file's symbolic link may lead.
#pragma once

#include <string>
#include <string_view>

namespace tunedex {

// Whether a file of this name would be catalogued: it ends in ".mp3", in any case.
bool NamesTrack(std::string_view path);

// Raises error 75 when `path` is a symbolic link that the system refuses to follow, or one that leads to a
// name for which NamesTrack holds, whether that file exists or not. Creates and opens nothing: it lets a run
// fail early, and the writer of the file checks again what the kernel has opened.
void CheckOutputLink(const std::string& path);

} // namespace tunedex
