#include "FileSystem.h"

#include "FolderStream.h"
#include "Path.h"
#include "RunTimeError.h"
#include "Uninterrupted.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <poll.h>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace tunedex {

namespace {

bool NotThere(int errorCode) {
    return errorCode == ENOENT || errorCode == ENOTDIR;
}

// Returns false when `stop` returns true before the descriptor is writable.
bool WaitUntilWritable(int descriptor, const StopTest& stop) {
    constexpr int kSliceMilliseconds = 20;
    while (!Stops(stop)) {
        pollfd waiting{descriptor, POLLOUT, 0};
        // A signal interrupts poll, so that the loop calls `stop` at once.
        if (poll(&waiting, 1, kSliceMilliseconds) > 0) {
            return true;
        }
    }
    return false;
}

bool HoldsNul(const std::string& path) {
    return path.find('\0') != std::string::npos;
}

} // namespace

std::optional<mode_t> ModeBehindLinks(int folder, const char* name) {
    struct stat status {};
    if (Uninterrupted([&] { return fstatat(folder, name, &status, 0); }) == 0) {
        return status.st_mode;
    }
    if (NotThere(errno) || errno == ELOOP) {
        return std::nullopt;
    }
    throw ErrorFromErrno(errno, FileTask::ReadFile);
}

bool FolderExists(const std::string& path) {
    if (path.empty()) {
        return true;
    }
    struct stat status {};
    if (HoldsNul(path)) {
        throw ErrorFromErrno(EINVAL, FileTask::TestFolder);
    }
    if (Uninterrupted([&] { return stat(path.c_str(), &status); }) == 0) {
        return S_ISDIR(status.st_mode);
    }
    if (NotThere(errno)) {
        return false;
    }
    throw ErrorFromErrno(errno, FileTask::TestFolder);
}

bool FileExists(const std::string& path) {
    struct stat status {};
    if (HoldsNul(path)) {
        throw ErrorFromErrno(EINVAL, FileTask::ReadFile);
    }
    if (Uninterrupted([&] { return stat(path.c_str(), &status); }) == 0) {
        return !S_ISDIR(status.st_mode);
    }
    if (NotThere(errno)) {
        return false;
    }
    throw ErrorFromErrno(errno, FileTask::ReadFile);
}

std::string AbsolutePath(const std::string& path) {
    namespace fs = std::filesystem;
    std::error_code failure;
    const fs::path whole = fs::absolute(path, failure);
    if (failure) {
        return path;
    }
    fs::path built = whole.root_path();
    for (const fs::path& part : whole.relative_path()) {
        if (part == "..") {
            // The parent of a link is that of its target.
            const fs::path target = fs::is_symlink(built, failure) ? fs::canonical(built, failure) : built;
            built = (failure ? built : target).parent_path();
        } else if (!part.empty() && part != ".") {
            built /= part;
        }
    }
    return built.string();
}

void CreateFolder(const std::string& path) {
    if (HoldsNul(path)) {
        throw ErrorFromErrno(EINVAL, FileTask::UseFolder);
    }
    if (Uninterrupted([&] { return mkdir(path.c_str(), 0777); }) != 0) {
        throw ErrorFromErrno(errno, FileTask::UseFolder);
    }
}

void CreateFolders(const std::string& folderPrefix) {
    for (const std::string& level : FolderLevels(folderPrefix, PathStyle::Native())) {
        if (!FolderExists(level)) {
            CreateFolder(level);
        }
    }
}

bool WriteWhole(int descriptor, std::string_view rest, const StopTest& stop, BrokenPipe brokenPipe) {
    while (!rest.empty()) {
        const ssize_t done = Uninterrupted([&] { return write(descriptor, rest.data(), rest.size()); });
        if (done >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(done));
            continue;
        }
        const bool readerGone = errno == EPIPE && brokenPipe == BrokenPipe::Stops;
        if (errno != EAGAIN && !readerGone) {
            throw ErrorFromErrno(errno, FileTask::WriteFile);
        }
        if (readerGone || !WaitUntilWritable(descriptor, stop)) {
            return false;
        }
    }
    return true;
}

void DeleteFile(const std::string& path) {
    if (HoldsNul(path)) {
        throw ErrorFromErrno(EINVAL, FileTask::ReadFile);
    }
    if (Uninterrupted([&] { return unlink(path.c_str()); }) != 0) {
        throw ErrorFromErrno(errno, FileTask::ReadFile);
    }
}

std::vector<std::string> FileNamesIn(const std::string& folder) {
    std::vector<std::string> names;
    FolderStream stream(folder);
    if (!stream) {
        if (NotThere(errno)) {
            return names;
        }
        throw ErrorFromErrno(errno, FileTask::UseFolder);
    }
    while (true) {
        const dirent* entry = stream.Next();
        if (entry == nullptr) {
            return names;
        }
        const std::optional<mode_t> mode = ModeBehindLinks(stream.Descriptor(), entry->d_name);
        if (mode && S_ISREG(*mode)) {
            names.emplace_back(entry->d_name);
        }
    }
}

bool FolderIsWritable(const std::string& path) {
    return access(path.c_str(), W_OK | X_OK) == 0;
}

std::string RunningProgram() {
    std::array<char, 4096> buffer{};
    const ssize_t length = readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (length < 0) {
        throw ErrorFromErrno(errno, FileTask::ReadFile);
    }
    return {buffer.data(), static_cast<std::size_t>(length)};
}

std::string RunningProgramFolder() {
    return std::string(FolderPrefixOf(RunningProgram(), PathStyle::Native()));
}

} // namespace tunedex
