// Splitting and joining paths. A path is bytes as the file system holds them; the separator is a value, so
// that the rules of both kinds of platform can be tested on either.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

struct PathStyle {
    char separator;
    bool driveLetters; // whether "C:" may begin a path

    static constexpr PathStyle Unix() { return {'/', false}; }
    static constexpr PathStyle Windows() { return {'\\', true}; }
#ifdef _WIN32
    static constexpr PathStyle Native() {
        return Windows();
    }
#else
    static constexpr PathStyle Native() {
        return Unix();
    }
#endif
};

bool EndsInSeparator(std::string_view path, PathStyle style);
std::string WithSeparator(std::string_view path, PathStyle style);
// Without any separator at its end, the root folder aside.
std::string WithoutSeparator(std::string_view path, PathStyle style);

// The last piece of a path split at its separators: the file's name.
std::string_view FileNameOf(std::string_view path, PathStyle style);
// Every piece but the last, without a separator at the end: C:\Music for C:\Music\a.mp3, C: for C:\a.mp3.
std::string_view FolderPathOf(std::string_view path, PathStyle style);
// Every piece but the last, each followed by a separator; empty for a bare name.
std::string_view FolderPrefixOf(std::string_view path, PathStyle style);

// The folders on the way down to `folderPrefix`, outermost first, each with its separator: C:\, C:\a\,
// C:\a\b\.
std::vector<std::string> FolderLevels(std::string_view folderPrefix, PathStyle style);

} // namespace tunedex
