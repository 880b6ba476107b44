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
// O_NONBLOCK: opening a FIFO without a reader would block.
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

// In a sticky folder such as /tmp, everybody may create files but only the owners may rename over one.
bool FolderForbidsReplacing(int folder, const struct stat& old) {
    struct stat status {};
    const uid_t user = geteuid();
    return fstat(folder, &status) == 0 && (status.st_mode & S_ISVTX) != 0 && user != 0 &&
           user != status.st_uid && user != old.st_uid;
}

// The path of an open file with links resolved; empty with errno set on failure.
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
    constexpr int kMostTries = 8; // another process may create or remove the file between two checks
    for (int i = 0; i < kMostTries; ++i) {
        // Open first, without O_CREAT or O_TRUNC: the kernel follows links and checks permissions, and the
        // file stays unchanged.
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

// Returns false when the file exists by now.
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
    // A dangling link. Creating its target lets the kernel resolve it with all its checks.
    UniqueFd made = OpenToWrite(path, O_CREAT);
    if (!made) {
        Fail(errno);
    }
    OpenExisting(std::move(made), path, true);
    return true;
}

// `created`: we just created the file. It is empty unless another process was faster.
void FileReplacement::OpenExisting(UniqueFd file, const std::string& path, bool created) {
    struct stat status {};
    // A new file that fstat rejects is written in place; raising would leave it behind, empty.
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

// Sets name_ and opens folder_. Returns false with errno set when the folder cannot be opened.
bool FileReplacement::OpenFolderOf(const std::string& path) {
    const std::string prefix(FolderPrefixOf(path, PathStyle::Unix()));
    name_ = path.substr(prefix.size());
    folder_ = UniqueFd(Uninterrupted(
        [&] { return open(prefix.empty() ? "." : prefix.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC); }));
    return static_cast<bool>(folder_);
}

// Whether the path, without following a link there, is this file; sets folder_ and name_ to it. Returns false
// with errno set.
bool FileReplacement::IsAt(const std::string& path, const struct stat& file) {
    struct stat status {};
    const auto look = [&] { return fstatat(folder_.Get(), name_.c_str(), &status, AT_SYMLINK_NOFOLLOW); };
    if (!OpenFolderOf(path) || Uninterrupted(look) != 0) {
        return false;
    }
    errno = ENOENT;
    return status.st_dev == file.st_dev && status.st_ino == file.st_ino;
}

// Sets folder_ and name_ to those of the open file; resets folder_ where no path leads to it. A file that was
// just created is then written in place, since there is no old content to lose.
void FileReplacement::Locate(const std::string& path, int file, const struct stat& status, bool created) {
    std::string real;
    if (!IsAt(path, status)) {
        real = PathOfDescriptor(file);
        if (real.empty() || !IsAt(real, status)) {
            const int failure = errno;
            folder_.Reset();
            // Fail: a file without a known name could be a track.
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

// Creates the temporary file that will replace the open file `old`. Returns false when `old` must be written
// in place.
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

// Creates the temporary file for a name that does not exist yet.
void FileReplacement::CreateFresh() {
    if (!CreateTemporary(kPrivateMode)) {
        Fail(errno);
    }
    if (GiveNewFilePermissions(written_.Get(), folder_.Get())) {
        return;
    }
    // A file system without fchmod, for example FAT: set the mode on creation.
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
    if (!written_.Close()) {
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
