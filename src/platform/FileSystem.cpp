#include "FileSystem.h"

#include "Path.h"
#include "RunTimeError.h"

#include <array>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace tunedex {

namespace {

bool NotThere(int errorCode) {
    return errorCode == ENOENT || errorCode == ENOTDIR;
}

bool HoldsNul(const std::string& path) {
    return path.find('\0') != std::string::npos;
}

} // namespace

bool FolderExists(const std::string& path) {
    if (path.empty()) {
        return true;
    }
    struct stat status {};
    if (HoldsNul(path)) {
        throw ErrorFromErrno(EINVAL, FileTask::TestFolder);
    }
    if (stat(path.c_str(), &status) == 0) {
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
    if (stat(path.c_str(), &status) == 0) {
        return !S_ISDIR(status.st_mode);
    }
    if (NotThere(errno)) {
        return false;
    }
    throw ErrorFromErrno(errno, FileTask::ReadFile);
}

void CreateFolder(const std::string& path) {
    if (HoldsNul(path)) {
        throw ErrorFromErrno(EINVAL, FileTask::UseFolder);
    }
    if (mkdir(path.c_str(), 0777) != 0) {
        throw ErrorFromErrno(errno, FileTask::UseFolder);
    }
}

void DeleteFile(const std::string& path) {
    if (HoldsNul(path)) {
        throw ErrorFromErrno(EINVAL, FileTask::ReadFile);
    }
    if (unlink(path.c_str()) != 0) {
        throw ErrorFromErrno(errno, FileTask::ReadFile);
    }
}

std::vector<std::string> FileNamesIn(const std::string& folder) {
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> stream(opendir(folder.c_str()), closedir);
    if (!stream) {
        if (NotThere(errno)) {
            return names;
        }
        throw ErrorFromErrno(errno, FileTask::UseFolder);
    }
    while (true) {
        errno = 0;
        const dirent* entry = readdir(stream.get());
        if (entry == nullptr) {
            if (errno != 0) {
                throw ErrorFromErrno(errno, FileTask::UseFolder);
            }
            return names;
        }
        struct stat status {};
        const bool isFile =
            fstatat(dirfd(stream.get()), entry->d_name, &status, 0) == 0 && S_ISREG(status.st_mode);
        if (isFile) {
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
