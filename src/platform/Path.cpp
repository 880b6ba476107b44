#include "Path.h"

namespace tunedex {

bool EndsInSeparator(std::string_view path, PathStyle style) {
    return !path.empty() && path.back() == style.separator;
}

std::string WithSeparator(std::string_view path, PathStyle style) {
    std::string result(path);
    if (!EndsInSeparator(path, style)) {
        result += style.separator;
    }
    return result;
}

std::string WithoutSeparator(std::string_view path, PathStyle style) {
    const std::size_t root = style.driveLetters && path.size() > 2 && path[1] == ':' ? 3 : 1;
    while (path.size() > root && EndsInSeparator(path, style)) {
        path.remove_suffix(1);
    }
    return std::string(path);
}

std::string_view FolderPrefixOf(std::string_view path, PathStyle style) {
    const std::size_t last = path.rfind(style.separator);
    return last == std::string_view::npos ? std::string_view() : path.substr(0, last + 1);
}

std::string_view FileNameOf(std::string_view path, PathStyle style) {
    return path.substr(FolderPrefixOf(path, style).size());
}

std::string_view FolderPathOf(std::string_view path, PathStyle style) {
    std::string_view prefix = FolderPrefixOf(path, style);
    if (!prefix.empty()) {
        prefix.remove_suffix(1);
    }
    return prefix;
}

std::vector<std::string> FolderLevels(std::string_view folderPrefix, PathStyle style) {
    std::vector<std::string> levels;
    for (std::size_t end = folderPrefix.find(style.separator); end != std::string_view::npos;
         end = folderPrefix.find(style.separator, end + 1)) {
        levels.emplace_back(folderPrefix.substr(0, end + 1));
    }
    return levels;
}

} // namespace tunedex
