// Looks up optional files.
#pragma once

#include "FileSystem.h"
#include "RunTimeError.h"

#include <string>

namespace tunedex {

// Whether the path is an existing file. Raises nothing: an optional file that cannot be examined counts as
// missing.
inline bool FileIsThere(const std::string& path) {
    try {
        return FileExists(path);
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace tunedex
