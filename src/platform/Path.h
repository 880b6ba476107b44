// Splits and joins paths. A path is the bytes that the file system stores. The separator is a parameter so
// that both path styles can be tested on any platform.
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
// Removes all trailing separators, except that of a root folder.
std::string WithoutSeparator(std::string_view path, PathStyle style);

// The text after the last separator: the file name.
std::string_view FileNameOf(std::string_view path, PathStyle style);
// The text before the last separator: C:\Music for C:\Music\a.mp3. Required: C: for C:\a.mp3, without the
// separator of the root.
std::string_view FolderPathOf(std::string_view path, PathStyle style);
// The path up to and including the last separator; empty for a bare name.
std::string_view FolderPrefixOf(std::string_view path, PathStyle style);

// `folderPrefix` and its parent folders, outermost first, each with its separator: C:\, C:\a\, C:\a\b\.
std::vector<std::string> FolderLevels(std::string_view folderPrefix, PathStyle style);

} // namespace tunedex
