#include "FilePermissions.h"

#include "RunTimeError.h"
#include "Uninterrupted.h"

#include <cerrno>
#include <string>
#include <string_view>
#include <sys/xattr.h>
#include <unistd.h>

namespace tunedex {

namespace {

// Extended attributes in which the kernel stores POSIX access-control lists.
constexpr const char* kAccessList = "system.posix_acl_access";
constexpr const char* kDefaultList = "system.posix_acl_default";
constexpr std::string_view kUserPrefix = "user.";
constexpr mode_t kModeBits = 07777;
constexpr mode_t kCreationMode = 0666;

// Returns false for a refusal, which the caller handles by writing in place; raises any other error. EINVAL
// means a list that names users unknown to this user namespace.
bool RefusedOrRaise(int errorCode) {
    switch (errorCode) {
    case EPERM:
    case EACCES:
    case EROFS:
    case EOPNOTSUPP:
    case ENOSYS:
    case EINVAL:
        return false;
    default:
        throw ErrorFromErrno(errorCode, FileTask::WriteFile);
    }
}

bool IsAbsent(int errorCode) {
    return errorCode == ENODATA || errorCode == EOPNOTSUPP;
}

// Reads a value of unknown length. `get(buffer, size)` returns the length, or -1 with errno set; with size 0
// it only measures. On failure returns false and keeps errno.
template <typename Get> bool ReadWhole(std::string& value, Get get) {
    while (true) {
        ssize_t length = Uninterrupted([&] { return get(nullptr, 0); });
        if (length <= 0) {
            value.clear();
            return length == 0;
        }
        value.resize(static_cast<std::size_t>(length));
        length = Uninterrupted([&] { return get(value.data(), value.size()); });
        if (length >= 0) {
            value.resize(static_cast<std::size_t>(length));
            return true;
        }
        if (errno != ERANGE) { // ERANGE: grew between the two calls
            return false;
        }
    }
}

bool SetAttribute(int file, const char* name, const std::string& value) {
    return Uninterrupted([&] { return fsetxattr(file, name, value.data(), value.size(), 0); }) == 0;
}

// The new file may have inherited a list from the folder's default list that the old file does not have.
bool RemoveAttribute(int file, const char* name) {
    const auto measure = [&] { return fgetxattr(file, name, nullptr, 0); };
    if (Uninterrupted(measure) < 0 && IsAbsent(errno)) {
        return true;
    }
    const auto remove = [&] { return fremovexattr(file, name); };
    return Uninterrupted(remove) == 0 || IsAbsent(errno) || RefusedOrRaise(errno);
}

bool CopyAttribute(int from, int to, const char* name) {
    std::string value;
    const auto get = [&](char* bytes, std::size_t size) { return fgetxattr(from, name, bytes, size); };
    if (!ReadWhole(value, get)) {
        return IsAbsent(errno) ? RemoveAttribute(to, name) : RefusedOrRaise(errno);
    }
    return SetAttribute(to, name, value) || RefusedOrRaise(errno);
}

bool CopyUserAttributes(int from, int to) {
    std::string names;
    if (!ReadWhole(names, [&](char* bytes, std::size_t size) { return flistxattr(from, bytes, size); })) {
        return IsAbsent(errno) || RefusedOrRaise(errno);
    }
    for (std::size_t start = 0; start < names.size();) {
        const std::string name(names.c_str() + start);
        start += name.size() + 1;
        if (name.starts_with(kUserPrefix) && !CopyAttribute(from, to, name.c_str())) {
            return false;
        }
    }
    return true;
}

bool SetMode(int file, mode_t mode) {
    return Uninterrupted([&] { return fchmod(file, mode); }) == 0;
}

bool Measure(int file, struct stat& status) {
    return Uninterrupted([&] { return fstat(file, &status); }) == 0;
}

// Only root may change the owner; a user may still change to a group of which they are a member.
void CopyOwner(const struct stat& old, const struct stat& made, int to) {
    if ((old.st_uid != made.st_uid || old.st_gid != made.st_gid) && fchown(to, old.st_uid, old.st_gid) != 0) {
        (void)!fchown(to, static_cast<uid_t>(-1), old.st_gid);
    }
}

} // namespace

bool CopyPermissions(int from, const struct stat& old, int to) {
    struct stat made {};
    if (!Measure(to, made)) {
        throw ErrorFromErrno(errno, FileTask::WriteFile);
    }
    CopyOwner(old, made, to);
    if (!CopyAttribute(from, to, kAccessList) || !CopyUserAttributes(from, to)) {
        return false;
    }
    // Set the mode last: fchown and a list change it. On mounts with a fixed mode it is already equal and
    // fchmod, which would fail, is skipped.
    if (!Measure(to, made)) {
        throw ErrorFromErrno(errno, FileTask::WriteFile);
    }
    const mode_t mode = old.st_mode & kModeBits;
    return (made.st_mode & kModeBits) == mode || SetMode(to, mode) || RefusedOrRaise(errno);
}

bool GiveNewFilePermissions(int file, int folder) {
    // fgetxattr fails on an O_PATH descriptor; its /proc path works.
    const std::string path = "/proc/self/fd/" + std::to_string(folder);
    std::string list;
    const auto get = [&](char* bytes, std::size_t size) {
        return getxattr(path.c_str(), kDefaultList, bytes, size);
    };
    if (ReadWhole(list, get)) {
        // Like the kernel: the access list is the default list, narrowed by the creation mode.
        struct stat status {};
        return SetAttribute(file, kAccessList, list) && Measure(file, status) &&
               SetMode(file, status.st_mode & kCreationMode);
    }
    if (!IsAbsent(errno)) {
        return false;
    }
    // The umask can only be read by setting it. A file that another thread creates meanwhile gets fewer
    // permissions, never more.
    const mode_t mask = umask(S_IRWXG | S_IRWXO);
    umask(mask);
    return SetMode(file, kCreationMode & ~mask);
}

} // namespace tunedex
