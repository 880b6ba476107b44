#include "FileReplacement.h"

#include "FilePermissions.h"
#include "OutputLink.h"
#include "Path.h"
#include "RunTimeError.h"
#include "TemporaryFiles.h"
#include "Uninterrupted.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <utility>

namespace tunedex {

namespace {

constexpr mode_t kPrivateMode = 0600;
constexpr mode_t kNewMode = 0666;
// Without O_NONBLOCK, opening a FIFO that nobody reads would block.
constexpr int kWriteFlags = O_WRONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;

[[noreturn]] void Fail(int errorCode) {
    throw ErrorFromErrno(errorCode, FileTask::WriteFile);
}

bool IsForbidden(int errorCode) {
    return errorCode == EACCES || errorCode == EPERM || errorCode == EROFS;
}

bool IsUnreachable(int errorCode) {
    return IsForbidden(errorCode) || errorCode == ENOENT || errorCode == ENOTDIR || errorCode == ENAMETOOLONG;
}

UniqueFd OpenToWrite(const std::string& path, int moreFlags) {
    return UniqueFd(Uninterrupted([&] { return open(path.c_str(), kWriteFlags | moreFlags, kNewMode); }));
}

// A shared folder like /tmp takes new files from everybody, but only owners may replace an old one.
bool FolderForbidsReplacing(int folder, const struct stat& old) {
    struct stat status {};
    const uid_t user = geteuid();
    return fstat(folder, &status) == 0 && (status.st_mode & S_ISVTX) != 0 && user != 0 &&
           user != status.st_uid && user != old.st_uid;
}

// The path of an open file, without links, as the kernel knows it; empty, with errno left, where it cannot be
// learnt.
std::string PathOfDescriptor(int descriptor) {
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    std::array<char, PATH_MAX> path{};
    const ssize_t length = Uninterrupted([&] { return readlink(link.c_str(), path.data(), path.size()); });
    return {path.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0))};
}

} // namespace

FileReplacement::FileReplacement(const std::string& path, CleanedFolders* cleaned) : cleaned_(cleaned) {
    if (path.find('\0') != std::string::npos) {
        Fail(EINVAL);
    }
    try {
        Open(path);
    } catch (...) {
        Discard();
        throw;
    }
}

FileReplacement::~FileReplacement() {
    Discard();
}

void FileReplacement::Open(const std::string& path) {
    constexpr int kMostTries = 8; // others may create and remove the file between two looks at it
    for (int i = 0; i < kMostTries; ++i) {
        // Opened before anything else: this follows links, judges permissions and leaves the file as it is.
        UniqueFd old = OpenToWrite(path, 0);
        if (old) {
            OpenExisting(std::move(old), path, false);
            return;
        }
        if (errno != ENOENT) {
            Fail(errno);
        }
        if (OpenNew(path)) {
            return;
        }
    }
    Fail(ENOENT);
}

// Returns false when there is a file after all.
bool FileReplacement::OpenNew(const std::string& path) {
    if (!OpenFolderOf(path)) {
        Fail(errno);
    }
    if (name_.empty()) {
        Fail(path.empty() ? ENOENT : EISDIR);
    }
    struct stat status {};
    const auto look = [&] { return fstatat(folder_.Get(), name_.c_str(), &status, AT_SYMLINK_NOFOLLOW); };
    if (Uninterrupted(look) != 0) {
        if (errno != ENOENT) {
            Fail(errno);
        }
        CreateFresh();
        return true;
    }
    if (!S_ISLNK(status.st_mode)) {
        return false;
    }
    // A dangling link. Only creating its file lets the kernel follow it, with all its checks.
    UniqueFd made = OpenToWrite(path, O_CREAT);
    if (!made) {
        Fail(errno);
    }
    OpenExisting(std::move(made), path, true);
    return true;
}

// `created`: the file was not there before, and is empty unless somebody was quicker.
void FileReplacement::OpenExisting(UniqueFd file, const std::string& path, bool created) {
    struct stat status {};
    // A new file that cannot be examined is written in place: raising would leave it behind, empty.
    if (Uninterrupted([&] { return fstat(file.Get(), &status); }) != 0 && !created) {
        Fail(errno);
    }
    if (S_ISREG(status.st_mode)) {
        Locate(path, file.Get(), status, created);
        if (folder_ && ReplaceOld(file.Get(), status)) {
            RemovePlaceholder();
            return;
        }
        if (Uninterrupted([&] { return ftruncate(file.Get(), 0); }) != 0) {
            Fail(errno);
        }
    }
    written_ = std::move(file);
}

// Splits the path into folder_, opened, and name_. Returns false and leaves errno for a folder that cannot be
// opened.
bool FileReplacement::OpenFolderOf(const std::string& path) {
    const std::string prefix(FolderPrefixOf(path, PathStyle::Unix()));
    name_ = path.substr(prefix.size());
    folder_ = UniqueFd(Uninterrupted(
        [&] { return open(prefix.empty() ? "." : prefix.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); }));
    return static_cast<bool>(folder_);
}

// Whether the path itself, not what a link there leads to, is this very file; folder_ and name_ are then
// those of the path. Otherwise leaves errno.
bool FileReplacement::IsAt(const std::string& path, const struct stat& file) {
    struct stat status {};
    const auto look = [&] { return fstatat(folder_.Get(), name_.c_str(), &status, AT_SYMLINK_NOFOLLOW); };
    if (!OpenFolderOf(path) || Uninterrupted(look) != 0) {
        return false;
    }
    errno = ENOENT;
    return status.st_dev == file.st_dev && status.st_ino == file.st_ino;
}

// Finds the folder and the name of the open file, or leaves no folder where no path leads to it. A failure to
// find a file that was just created is no reason to fail: nothing is lost by writing it in place.
void FileReplacement::Locate(const std::string& path, int file, const struct stat& status, bool created) {
    std::string real;
    if (!IsAt(path, status)) {
        real = PathOfDescriptor(file);
        if (real.empty() || !IsAt(real, status)) {
            const int failure = errno;
            folder_.Reset();
            // A file whose name is unknown could be a track.
            if (!created && (real.empty() || !IsUnreachable(failure))) {
                Fail(failure);
            }
        }
    }
    placeholder_ = created && folder_ && status.st_size == 0;
    if (NamesTrack(real)) {
        Fail(EACCES);
    }
}

// Prepares the temporary file that will replace the open file `old`. Returns false where that is to be
// written in place.
bool FileReplacement::ReplaceOld(int old, const struct stat& status) {
    if (FolderForbidsReplacing(folder_.Get(), status)) {
        return false;
    }
    if (!CreateTemporary(kPrivateMode)) {
        if (!IsForbidden(errno)) {
            Fail(errno);
        }
        return false;
    }
    if (!CopyPermissions(old, status, written_.Get())) {
        RemoveTemporary();
        return false;
    }
    return true;
}

// Prepares the temporary file for a name that is new.
void FileReplacement::CreateFresh() {
    if (!CreateTemporary(kPrivateMode)) {
        Fail(errno);
    }
    if (GiveNewFilePermissions(written_.Get(), folder_.Get())) {
        return;
    }
    // A file system on which modes cannot be changed, FAT say: it is given the mode when it is created.
    RemoveTemporary();
    if (!CreateTemporary(kNewMode)) {
        Fail(errno);
    }
}

bool FileReplacement::CreateTemporary(mode_t mode) {
    if (cleaned_ == nullptr || cleaned_->Add(folder_.Get())) {
        RemoveStaleTemporaryFiles(folder_.Get());
    }
    TemporaryFile file = CreateTemporaryFile(folder_.Get(), mode);
    if (!file.descriptor) {
        return false;
    }
    written_ = std::move(file.descriptor);
    temporary_ = std::move(file.name);
    return true;
}

void FileReplacement::RemoveTemporary() noexcept {
    written_.Reset();
    if (!temporary_.empty()) {
        Uninterrupted([&] { return unlinkat(folder_.Get(), temporary_.c_str(), 0); });
        temporary_.clear();
    }
}

void FileReplacement::RemovePlaceholder() noexcept {
    if (std::exchange(placeholder_, false)) {
        Uninterrupted([&] { return unlinkat(folder_.Get(), name_.c_str(), 0); });
    }
}

void FileReplacement::Discard() noexcept {
    RemoveTemporary();
    RemovePlaceholder();
    folder_.Reset();
}

void FileReplacement::Commit() {
    // After EINTR the descriptor is gone all the same, and what was written is with the system.
    if (close(written_.Release()) != 0 && errno != EINTR) {
        Fail(errno);
    }
    if (!temporary_.empty()) {
        const auto rename = [&] {
            return renameat(folder_.Get(), temporary_.c_str(), folder_.Get(), name_.c_str());
        };
        if (Uninterrupted(rename) != 0) {
            Fail(errno);
        }
        temporary_.clear();
    }
    placeholder_ = false;
    folder_.Reset();
}

} // namespace tunedex
