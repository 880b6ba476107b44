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

// The kernel keeps POSIX access-control lists under these names.
constexpr const char* kAccessList = "system.posix_acl_access";
constexpr const char* kDefaultList = "system.posix_acl_default";
constexpr std::string_view kUserPrefix = "user.";
constexpr mode_t kModeBits = 07777;
constexpr mode_t kCreationMode = 0666;

// False for a refusal, which the caller can deal with; anything else is an error. EINVAL: a list that names
// users unknown to this user namespace.
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

// Fills `value` through `get(buffer, size)`, which returns the length, that alone for a size of 0, or -1.
// Returns false and leaves errno when it fails.
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
        if (errno != ERANGE) { // it has grown in between
            return false;
        }
    }
}

bool SetAttribute(int file, const char* name, const std::string& value) {
    return Uninterrupted([&] { return fsetxattr(file, name, value.data(), value.size(), 0); }) == 0;
}

// A folder's default list gives a new file a list that the old file need not have.
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

// Only root may give a file away; a user may still give it to a group that he is a member of.
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
    // The mode last: a change of owner or list changes it. Where a mount gives every file the same mode,
    // nothing differs and nothing need be set.
    if (!Measure(to, made)) {
        throw ErrorFromErrno(errno, FileTask::WriteFile);
    }
    const mode_t mode = old.st_mode & kModeBits;
    return (made.st_mode & kModeBits) == mode || SetMode(to, mode) || RefusedOrRaise(errno);
}

bool GiveNewFilePermissions(int file, int folder) {
    // An O_PATH descriptor gives no attributes itself; the name that leads through it does.
    const std::string path = "/proc/self/fd/" + std::to_string(folder);
    std::string list;
    const auto get = [&](char* bytes, std::size_t size) {
        return getxattr(path.c_str(), kDefaultList, bytes, size);
    };
    if (ReadWhole(list, get)) {
        // As the kernel does for a new file: the list, narrowed by the mode that the file is created with.
        struct stat status {};
        return SetAttribute(file, kAccessList, list) && Measure(file, status) &&
               SetMode(file, status.st_mode & kCreationMode);
    }
    if (!IsAbsent(errno)) {
        return false;
    }
    // The mask can be read only by setting it. A file that another thread creates meanwhile is no less
    // private than it should be.
    const mode_t mask = umask(S_IRWXG | S_IRWXO);
    umask(mask);
    return SetMode(file, kCreationMode & ~mask);
}

} // namespace tunedex
