#include "RecentPaths.h"

#include "Text.h"

#include <algorithm>

namespace tunedex {

namespace {

constexpr std::string_view kSeparator = "|";

// A path can contain every character, so the separator and the escape character are escaped.
std::string Escaped(std::string_view path) {
    return ReplaceAll(ReplaceAll(path, "%", "%25"), kSeparator, "%7C");
}

std::string Unescaped(std::string_view text) {
    return ReplaceAll(ReplaceAll(text, "%7C", kSeparator), "%25", "%");
}

} // namespace

std::vector<std::string> RecentPaths::Paths() const {
    std::vector<std::string> paths;
    for (const std::string& text : Split(registry_.Read(value_), kSeparator)) {
        if (!text.empty() && paths.size() < kMost) {
            paths.push_back(Unescaped(text));
        }
    }
    return paths;
}

void RecentPaths::Add(const std::string& path) {
    if (path.empty()) {
        return;
    }
    std::vector<std::string> paths = Paths();
    paths.erase(std::remove(paths.begin(), paths.end(), path), paths.end());
    paths.insert(paths.begin(), path);
    paths.resize(std::min(paths.size(), kMost));
    Store(paths);
}

void RecentPaths::Clear() {
    Store({});
}

void RecentPaths::Store(const std::vector<std::string>& paths) {
    std::string value;
    for (const std::string& path : paths) {
        value += value.empty() ? "" : kSeparator;
        value += Escaped(path);
    }
    registry_.Write(value_, value);
}

} // namespace tunedex
