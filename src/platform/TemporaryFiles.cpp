#include "TemporaryFiles.h"

#include "FolderStream.h"
#include "RunTimeError.h"
#include "Uninterrupted.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>

namespace tunedex {

namespace {

constexpr std::string_view kPrefix = ".tunedex-";
constexpr std::string_view kSuffix = ".tmp";
constexpr std::time_t kStaleSeconds = 24L * 60 * 60;

std::string NewName() {
    static std::atomic<unsigned> counter{0};
    return std::string(kPrefix) + std::to_string(getpid()) + "-" + std::to_string(++counter) +
           std::string(kSuffix);
}

bool IsNumber(std::string_view text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool IsTemporaryName(std::string_view name) {
    if (!name.starts_with(kPrefix) || !name.ends_with(kSuffix) ||
        name.size() < kPrefix.size() + kSuffix.size()) {
        return false;
    }
    name.remove_prefix(kPrefix.size());
    name.remove_suffix(kSuffix.size());
    const std::size_t hyphen = name.find('-');
    return hyphen != std::string_view::npos && IsNumber(name.substr(0, hyphen)) &&
           IsNumber(name.substr(hyphen + 1));
}

bool Lock(int descriptor) {
    return Uninterrupted([&] { return flock(descriptor, LOCK_EX | LOCK_NB); }) == 0;
}

// O_WRONLY: NFS grants an exclusive lock only on a file opened for writing.
bool IsStale(int folder, const char* name) {
    struct stat status {};
    const UniqueFd file(Uninterrupted(
        [&] { return openat(folder, name, O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY); }));
    return file && Uninterrupted([&] { return fstat(file.Get(), &status); }) == 0 &&
           S_ISREG(status.st_mode) && std::time(nullptr) - status.st_mtim.tv_sec > kStaleSeconds &&
           Lock(file.Get());
}

} // namespace

TemporaryFile CreateTemporaryFile(int folder, mode_t mode) {
    TemporaryFile file;
    do {
        file.name = NewName();
        file.descriptor = UniqueFd(Uninterrupted([&] {
            return openat(folder, file.name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOCTTY,
                          mode);
        }));
    } while (!file.descriptor && errno == EEXIST);
    if (file.descriptor) {
        // On a file system without locks, stale files cannot be recognised and are kept.
        (void)Lock(file.descriptor.Get());
    }
    return file;
}

void RemoveStaleTemporaryFiles(int folder) {
    FolderStream stream(
        UniqueFd(Uninterrupted([&] { return openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); })));
    if (!stream) {
        return;
    }
    try {
        while (const dirent* const entry = stream.Next()) {
            if (IsTemporaryName(entry->d_name) && IsStale(folder, entry->d_name)) {
                Uninterrupted([&] { return unlinkat(folder, entry->d_name, 0); });
            }
        }
    } catch (const RunTimeError&) {
        // Best effort: stale files must not prevent a new one.
    }
}

bool CleanedFolders::Add(int folder) {
    struct stat status {};
    return fstat(folder, &status) == 0 && folders_.emplace(status.st_dev, status.st_ino).second;
}

} // namespace tunedex
