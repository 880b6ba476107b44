// Looking for a file that is optional.
#pragma once

#include "FileSystem.h"
#include "RunTimeError.h"

#include <string>

namespace tunedex {

// Whether the path is an existing file that can be examined. Raises nothing: for an optional file, a path
// that leads nowhere and one that is forbidden are the same.
inline bool FileIsThere(const std::string& path) {
    try {
        return FileExists(path);
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace tunedex
