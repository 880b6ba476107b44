#include "TextFile.h"

#include "FileSystem.h"
#include "Path.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Uninterrupted.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tunedex {

namespace {

constexpr std::size_t kBufferBytes = 65536;
constexpr std::size_t kDirectBytes = 16384;

[[noreturn]] void Fail(int errorCode) {
    throw ErrorFromErrno(errorCode, FileTask::WriteFile);
}

bool FolderForbidsNewFiles(int errorCode) {
    return errorCode == EACCES || errorCode == EPERM || errorCode == EROFS;
}

// A shared folder like /tmp takes new files from everybody, but only owners may put one in an old one's
// place.
bool FolderForbidsReplacing(int folder, const struct stat& old) {
    struct stat status {};
    const uid_t user = geteuid();
    return fstat(folder, &status) == 0 && (status.st_mode & S_ISVTX) != 0 && user != 0 &&
           user != status.st_uid && user != old.st_uid;
}

int OpenAt(int folder, const std::string& name, int flags, mode_t mode) {
    return Uninterrupted([&] { return openat(folder, name.c_str(), flags | O_CLOEXEC | O_NOCTTY, mode); });
}

std::string LinkTarget(int folder, const std::string& name) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length =
        Uninterrupted([&] { return readlinkat(folder, name.c_str(), target.data(), target.size()); });
    if (length < 0) {
        Fail(errno);
    }
    return {target.data(), static_cast<std::size_t>(length)};
}

std::string NewAsideName() {
    static std::atomic<unsigned> counter{0};
    return ".tunedex-" + std::to_string(getpid()) + "-" + std::to_string(++counter) + ".tmp";
}

// Another owner's file keeps its owner where the system lets us; its permissions it keeps in any case.
void KeepOwnerAndPermissions(int descriptor, const struct stat& old) {
    if (old.st_uid != geteuid() || old.st_gid != getegid()) {
        (void)!fchown(descriptor, old.st_uid, old.st_gid);
    }
    if (Uninterrupted([&] { return fchmod(descriptor, old.st_mode & 07777U); }) != 0) {
        Fail(errno);
    }
}

} // namespace

TextFile::TextFile(const std::string& path, TextEncoding encoding) : encoding_(encoding) {
    if (path.find('\0') != std::string::npos) {
        Fail(EINVAL);
    }
    if (path.size() >= PATH_MAX) {
        Fail(ENAMETOOLONG);
    }
    try {
        Open(FindOld(path));
    } catch (...) {
        Discard();
        throw;
    }
}

// Opens the folder where a chain of symbolic links ends, and tells what is there under the last name:
// nothing, a file or a folder. A link to anything else counts as what it leads to.
std::optional<struct stat> TextFile::FindOld(std::string path) {
    constexpr int kMostLinks = 40; // as the kernel counts
    for (int i = 0; i <= kMostLinks; ++i) {
        const std::string prefix(FolderPrefixOf(path, PathStyle::Unix()));
        name_ = path.substr(prefix.size());
        if (name_.empty()) {
            Fail(path.empty() ? ENOENT : EISDIR);
        }
        CloseFolder();
        folder_ = OpenAt(AT_FDCWD, prefix.empty() ? "." : prefix, O_PATH | O_DIRECTORY, 0);
        if (folder_ < 0) {
            Fail(errno);
        }
        struct stat old {};
        if (Uninterrupted([&] { return fstatat(folder_, name_.c_str(), &old, AT_SYMLINK_NOFOLLOW); }) != 0) {
            if (errno != ENOENT) {
                Fail(errno);
            }
            return std::nullopt;
        }
        if (!S_ISLNK(old.st_mode)) {
            return old;
        }
        // The standard output's link tells of no path where that is a pipe, but leads there all the same.
        struct stat end {};
        if (Uninterrupted([&] { return fstatat(folder_, name_.c_str(), &end, 0); }) == 0 &&
            !S_ISREG(end.st_mode) && !S_ISDIR(end.st_mode)) {
            return end;
        }
        const std::string target = LinkTarget(folder_, name_);
        path = target.starts_with('/') ? target : prefix + target;
    }
    Fail(ELOOP);
}

void TextFile::Open(const std::optional<struct stat>& old) {
    const bool exists = old.has_value();
    if (exists && S_ISDIR(old->st_mode)) {
        Fail(EISDIR);
    }
    // A new name in the folder could take the place of a file that its owner made read-only: ask first.
    if (exists && Uninterrupted([&] { return faccessat(folder_, name_.c_str(), W_OK, AT_EACCESS); }) != 0) {
        Fail(errno);
    }
    if (!exists || (S_ISREG(old->st_mode) && !FolderForbidsReplacing(folder_, *old))) {
        do {
            aside_ = NewAsideName();
            descriptor_ = OpenAt(folder_, aside_, O_WRONLY | O_CREAT | O_EXCL, 0666);
        } while (descriptor_ < 0 && errno == EEXIST);
        if (descriptor_ < 0) {
            aside_.clear();
        }
        if (descriptor_ < 0 && !(exists && FolderForbidsNewFiles(errno))) {
            Fail(errno);
        }
    }
    if (descriptor_ < 0) {
        // Opening a FIFO that nobody reads would wait for ever; writing to one that somebody reads may wait.
        descriptor_ = OpenAt(folder_, name_, O_WRONLY | O_TRUNC | O_NONBLOCK, 0);
        if (descriptor_ < 0 || fcntl(descriptor_, F_SETFL, 0) != 0) {
            Fail(errno);
        }
    } else if (exists) {
        KeepOwnerAndPermissions(descriptor_, *old);
    }
}

TextFile::~TextFile() {
    Discard();
}

void TextFile::Discard() noexcept {
    if (descriptor_ >= 0) {
        close(descriptor_);
        descriptor_ = -1;
    }
    if (!aside_.empty()) {
        Uninterrupted([&] { return unlinkat(folder_, aside_.c_str(), 0); });
        aside_.clear();
    }
    CloseFolder();
}

void TextFile::CloseFolder() noexcept {
    if (folder_ >= 0) {
        close(folder_);
        folder_ = -1;
    }
}

void TextFile::Write(std::string_view text) {
    // A large piece that no encoding changes goes to the system from where it is.
    if (text.size() >= kDirectBytes && (encoding_ == TextEncoding::Utf8 || IsAscii(text))) {
        Flush();
        WriteWhole(descriptor_, text);
        return;
    }
    switch (encoding_) {
    case TextEncoding::Windows1252References:
        AppendWindows1252(buffer_, text, Substitute::DecimalReference);
        break;
    case TextEncoding::Windows1252Questions:
        AppendWindows1252(buffer_, text, Substitute::QuestionMark);
        break;
    case TextEncoding::Utf8:
        buffer_ += text;
        break;
    case TextEncoding::FileLine:
        buffer_ += EncodeFileLine(text);
        break;
    case TextEncoding::SettingsLine:
        buffer_ += EncodeFileLine(text, StrayBytes::Escaped);
        break;
    }
    FlushIfFull();
}

void TextFile::WriteLine(std::string_view text) {
    Write(text);
    WriteRaw("\r\n");
}

void TextFile::WriteRaw(std::string_view bytes) {
    buffer_ += bytes;
    FlushIfFull();
}

void TextFile::FlushIfFull() {
    if (buffer_.size() >= kBufferBytes) {
        Flush();
    }
}

void TextFile::Flush() {
    WriteWhole(descriptor_, buffer_);
    buffer_.clear();
}

void TextFile::Close() {
    Flush();
    const int descriptor = descriptor_;
    descriptor_ = -1;
    // After EINTR the descriptor is gone all the same, and what was written is with the system.
    if (close(descriptor) != 0 && errno != EINTR) {
        Fail(errno);
    }
    if (!aside_.empty()) {
        const auto rename = [&] { return renameat(folder_, aside_.c_str(), folder_, name_.c_str()); };
        if (Uninterrupted(rename) != 0) {
            Fail(errno);
        }
        aside_.clear();
    }
    Discard();
}

} // namespace tunedex
