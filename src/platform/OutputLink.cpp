#include "OutputLink.h"

#include "Path.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Uninterrupted.h"

#include <array>
#include <cerrno>
#include <climits>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace tunedex {

namespace {

constexpr int kMostLinks = 40; // MAXSYMLINKS of the kernel

std::optional<std::string> LinkTarget(const std::string& path) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length =
        Uninterrupted([&] { return readlink(path.c_str(), target.data(), target.size()); });
    if (length < 0) {
        return std::nullopt;
    }
    return std::string(target.data(), static_cast<std::size_t>(length));
}

// Follows a chain of links to its last path, which need not exist.
std::string EndOfLinks(std::string path) {
    for (int i = 0; i < kMostLinks; ++i) {
        const std::optional<std::string> target = LinkTarget(path);
        if (!target) {
            break;
        }
        path = target->starts_with('/') ? *target
                                        : std::string(FolderPrefixOf(path, PathStyle::Unix())) + *target;
    }
    return path;
}

} // namespace

bool NamesTrack(std::string_view path) {
    return EndsInIgnoringCase(path, ".MP3");
}

void CheckOutputLink(const std::string& path) {
    if (!LinkTarget(path)) {
        return;
    }
    struct stat status {};
    const bool refused = Uninterrupted([&] { return stat(path.c_str(), &status); }) != 0 && errno == EACCES;
    if (refused || NamesTrack(EndOfLinks(path))) {
        throw RunTimeError(ErrorNumber::PathFileAccess);
    }
}

} // namespace tunedex
