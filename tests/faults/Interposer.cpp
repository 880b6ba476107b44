// An LD_PRELOAD library that wraps file system calls and makes one of them fail. Environment variables:
//
//   TUNEDEX_FAULT_PREFIX  only calls on paths below this one are counted
//   TUNEDEX_FAULT_CALL    the kind of call that fails, e.g. "write"; empty: count only
//   TUNEDEX_FAULT_N       the number of the failing call, from 1
//   TUNEDEX_FAULT_ERROR   its errno, or "short" for a read or write of half the requested length
//   TUNEDEX_FAULT_STAYS   if set, all later calls of that kind fail too
//   TUNEDEX_FAULT_KILL    if set, the process is killed at that call instead
//   TUNEDEX_FAULT_RUN     a shell command to run before that call, which then does not fail
//   TUNEDEX_FAULT_SLOW    microseconds to add to each open of a folder or file and each pread; with
//                         TUNEDEX_FAULT_N only to the first N of each
//   TUNEDEX_FAULT_DENY    a path that access() reports as not writable, like that of an installed program
//   TUNEDEX_FAULT_REPORT  a file that receives, at exit, the number of calls of each kind, of faults and of
//                         files still open, and the largest number of concurrent slow calls of each kind
//
// Sleeps return at once.
#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

enum Kind {
    kOpen,
    kOpenDir,
    kRead,
    kWrite,
    kClose,
    kReadDir,
    kMkDir,
    kUnlink,
    kRename,
    kStat,
    kChMod,
    kXAttr,
    kTruncate,
    kOther,
    kKinds
};
constexpr std::array<const char*, kKinds> kNames = {"open",    "opendir", "read",     "write",  "close",
                                                    "readdir", "mkdir",   "unlink",   "rename", "stat",
                                                    "chmod",   "xattr",   "truncate", "other"};

constexpr int kMostDescriptors = 4096;
constexpr int kShort = -1;

std::array<std::atomic<int>, kKinds> counts{};
std::atomic<int> struck{0};
std::array<std::atomic<int>, kKinds> waiting{};
std::array<std::atomic<int>, kKinds> waitingAtMost{};
std::array<std::atomic<bool>, kMostDescriptors> watched{};

const char* Setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

int NumberOf(const char* text) {
    return static_cast<int>(std::strtol(text, nullptr, 10));
}

struct Plan {
    std::string_view prefix = Setting("TUNEDEX_FAULT_PREFIX");
    std::string_view call = Setting("TUNEDEX_FAULT_CALL");
    int n = NumberOf(Setting("TUNEDEX_FAULT_N"));
    int error = std::strcmp(Setting("TUNEDEX_FAULT_ERROR"), "short") == 0
                    ? kShort
                    : NumberOf(Setting("TUNEDEX_FAULT_ERROR"));
    bool stays = *Setting("TUNEDEX_FAULT_STAYS") != '\0';
    bool kills = *Setting("TUNEDEX_FAULT_KILL") != '\0';
    const char* command = Setting("TUNEDEX_FAULT_RUN");
    long slow = NumberOf(Setting("TUNEDEX_FAULT_SLOW"));
    std::string_view deny = Setting("TUNEDEX_FAULT_DENY");
};

const Plan& ThePlan() {
    static const Plan plan;
    return plan;
}

template <typename Function> Function Next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool Concerns(int descriptor) {
    return descriptor >= 0 && descriptor < kMostDescriptors &&
           watched.at(static_cast<std::size_t>(descriptor));
}

bool Concerns(int folder, const char* path) {
    const std::string_view text(path);
    const std::string_view prefix = ThePlan().prefix;
    return !prefix.empty() && (text.starts_with('/') ? text.starts_with(prefix) : Concerns(folder));
}

// The descriptor in a path like /proc/self/fd/7; -1 for other paths.
int DescriptorIn(const char* path) {
    constexpr std::string_view kLinks = "/proc/self/fd/";
    return std::string_view(path).starts_with(kLinks) ? NumberOf(path + kLinks.size()) : -1;
}

void Watch(int descriptor, bool on) {
    if (descriptor >= 0 && descriptor < kMostDescriptors) {
        watched.at(static_cast<std::size_t>(descriptor)) = on;
    }
}

void RunCommand(const char* command) {
    const pid_t child = fork();
    if (child == 0) {
        unsetenv("LD_PRELOAD");
        execl("/bin/sh", "sh", "-c", command, nullptr);
        _exit(127);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (status != 0) {
        abort(); // otherwise a test without a fault would pass
    }
}

// Counts a call and returns whether it must fail.
bool Strikes(Kind kind) {
    const Plan& plan = ThePlan();
    const int number = ++counts.at(kind);
    if (plan.call != kNames.at(kind) || !(number == plan.n || (plan.stays && number > plan.n))) {
        return false;
    }
    ++struck;
    if (plan.kills) {
        kill(getpid(), SIGKILL);
    }
    if (*plan.command != '\0') {
        RunCommand(plan.command);
        return false;
    }
    return true;
}

// For calls that cannot be short.
bool Fails(Kind kind) {
    if (!Strikes(kind) || ThePlan().error == kShort) {
        return false;
    }
    errno = ThePlan().error;
    return true;
}

std::size_t Shortened(std::size_t count) {
    return std::max<std::size_t>(1, count / 2);
}

// Simulates a slow disk. Uses the system call, because nanosleep() is wrapped below.
void Wait(Kind kind) {
    const Plan& plan = ThePlan();
    if (plan.slow == 0 || (plan.n > 0 && counts.at(kind) > plan.n)) {
        return;
    }
    const int now = ++waiting.at(kind);
    int most = waitingAtMost.at(kind);
    while (now > most && !waitingAtMost.at(kind).compare_exchange_weak(most, now)) {
    }
    const std::timespec time{0, plan.slow * 1000};
    syscall(SYS_nanosleep, &time, nullptr);
    --waiting.at(kind);
}

mode_t ModeOf(int flags, va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

int Open(int folder, const char* path, int flags, mode_t mode) {
    const bool concerned = Concerns(folder, path);
    if (concerned && Fails(kOpen)) {
        return -1;
    }
    if (concerned) {
        Wait(kOpen);
    }
    static const auto next = Next<int (*)(int, const char*, int, mode_t)>("openat");
    const int descriptor = next(folder, path, flags, mode);
    Watch(descriptor, concerned && descriptor >= 0);
    return descriptor;
}

ssize_t Short(Kind kind, int descriptor, std::size_t& count) {
    if (!Concerns(descriptor) || !Strikes(kind)) {
        return 0;
    }
    if (ThePlan().error == kShort) {
        count = Shortened(count);
        return 0;
    }
    errno = ThePlan().error;
    return -1;
}

// Writes the report at exit, with system calls that are not counted.
struct Reporter {
    Reporter() = default;
    Reporter(const Reporter&) = delete;
    Reporter& operator=(const Reporter&) = delete;
    ~Reporter() {
        const char* path = Setting("TUNEDEX_FAULT_REPORT");
        if (*path == '\0') {
            return;
        }
        std::string text;
        for (std::size_t kind = 0; kind < kKinds; ++kind) {
            text += std::string(kNames.at(kind)) + " " + std::to_string(counts.at(kind)) + "\n";
        }
        const auto open =
            std::count_if(watched.begin(), watched.end(), [](const auto& is) { return is.load(); });
        text += "opendir-at-once " + std::to_string(waitingAtMost.at(kOpenDir)) + "\nread-at-once " +
                std::to_string(waitingAtMost.at(kRead)) + "\n";
        text += "struck " + std::to_string(struck) + "\nleft-open " + std::to_string(open) + "\n";
        const auto file =
            static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_TRUNC, 0666));
        (void)!syscall(SYS_write, file, text.data(), text.size());
        syscall(SYS_close, file);
    }
};

const Reporter reporter;

} // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open(AT_FDCWD, path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open(AT_FDCWD, path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open(folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open(folder, path, flags, mode);
}

DIR* opendir(const char* path) {
    const bool concerned = Concerns(AT_FDCWD, path);
    if (concerned && Fails(kOpenDir)) {
        return nullptr;
    }
    if (concerned) {
        Wait(kOpenDir);
    }
    static const auto next = Next<DIR* (*)(const char*)>("opendir");
    DIR* const stream = next(path);
    if (stream != nullptr) {
        Watch(dirfd(stream), concerned);
    }
    return stream;
}

int closedir(DIR* stream) {
    static const auto next = Next<int (*)(DIR*)>("closedir");
    Watch(dirfd(stream), false);
    return next(stream);
}

struct dirent* readdir(DIR* stream) {
    static const auto next = Next<struct dirent* (*)(DIR*)>("readdir");
    return Concerns(dirfd(stream)) && Fails(kReadDir) ? nullptr : next(stream);
}

struct dirent64* readdir64(DIR* stream) {
    static const auto next = Next<struct dirent64* (*)(DIR*)>("readdir64");
    return Concerns(dirfd(stream)) && Fails(kReadDir) ? nullptr : next(stream);
}

ssize_t read(int descriptor, void* buffer, std::size_t count) {
    static const auto next = Next<ssize_t (*)(int, void*, std::size_t)>("read");
    return Short(kRead, descriptor, count) < 0 ? -1 : next(descriptor, buffer, count);
}

ssize_t pread(int descriptor, void* buffer, std::size_t count, off_t offset) {
    static const auto next = Next<ssize_t (*)(int, void*, std::size_t, off_t)>("pread");
    if (Concerns(descriptor)) {
        Wait(kRead);
    }
    return Short(kRead, descriptor, count) < 0 ? -1 : next(descriptor, buffer, count, offset);
}

ssize_t pread64(int descriptor, void* buffer, std::size_t count, off64_t offset) {
    return pread(descriptor, buffer, count, offset);
}

ssize_t write(int descriptor, const void* buffer, std::size_t count) {
    static const auto next = Next<ssize_t (*)(int, const void*, std::size_t)>("write");
    return Short(kWrite, descriptor, count) < 0 ? -1 : next(descriptor, buffer, count);
}

int close(int descriptor) {
    static const auto next = Next<int (*)(int)>("close");
    const bool concerned = Concerns(descriptor);
    Watch(descriptor, false);
    const int result = next(descriptor);
    // The descriptor is released whatever close() returns.
    return concerned && Fails(kClose) ? -1 : result;
}

int mkdir(const char* path, mode_t mode) {
    static const auto next = Next<int (*)(const char*, mode_t)>("mkdir");
    return Concerns(AT_FDCWD, path) && Fails(kMkDir) ? -1 : next(path, mode);
}

int unlink(const char* path) {
    static const auto next = Next<int (*)(const char*)>("unlink");
    return Concerns(AT_FDCWD, path) && Fails(kUnlink) ? -1 : next(path);
}

int unlinkat(int folder, const char* path, int flags) {
    static const auto next = Next<int (*)(int, const char*, int)>("unlinkat");
    return Concerns(folder, path) && Fails(kUnlink) ? -1 : next(folder, path, flags);
}

int renameat(int from, const char* old, int to, const char* path) {
    static const auto next = Next<int (*)(int, const char*, int, const char*)>("renameat");
    return Concerns(from, old) && Fails(kRename) ? -1 : next(from, old, to, path);
}

int stat(const char* path, struct stat* status) {
    static const auto next = Next<int (*)(const char*, struct stat*)>("stat");
    return Concerns(AT_FDCWD, path) && Fails(kStat) ? -1 : next(path, status);
}

int fstat(int descriptor, struct stat* status) {
    static const auto next = Next<int (*)(int, struct stat*)>("fstat");
    return Concerns(descriptor) && Fails(kStat) ? -1 : next(descriptor, status);
}

int fstatat(int folder, const char* path, struct stat* status, int flags) {
    static const auto next = Next<int (*)(int, const char*, struct stat*, int)>("fstatat");
    return Concerns(folder, path) && Fails(kStat) ? -1 : next(folder, path, status, flags);
}

int access(const char* path, int mode) {
    static const auto next = Next<int (*)(const char*, int)>("access");
    if ((mode & W_OK) != 0 && path == ThePlan().deny) {
        errno = EACCES;
        return -1;
    }
    return next(path, mode);
}

int fchmod(int descriptor, mode_t mode) {
    static const auto next = Next<int (*)(int, mode_t)>("fchmod");
    return Concerns(descriptor) && Fails(kChMod) ? -1 : next(descriptor, mode);
}

int fchown(int descriptor, uid_t owner, gid_t group) {
    static const auto next = Next<int (*)(int, uid_t, gid_t)>("fchown");
    return Concerns(descriptor) && Fails(kChMod) ? -1 : next(descriptor, owner, group);
}

ssize_t getxattr(const char* path, const char* name, void* value, std::size_t size) {
    static const auto next = Next<ssize_t (*)(const char*, const char*, void*, std::size_t)>("getxattr");
    return Concerns(DescriptorIn(path)) && Fails(kXAttr) ? -1 : next(path, name, value, size);
}

ssize_t fgetxattr(int descriptor, const char* name, void* value, std::size_t size) {
    static const auto next = Next<ssize_t (*)(int, const char*, void*, std::size_t)>("fgetxattr");
    return Concerns(descriptor) && Fails(kXAttr) ? -1 : next(descriptor, name, value, size);
}

int fsetxattr(int descriptor, const char* name, const void* value, std::size_t size, int flags) {
    static const auto next = Next<int (*)(int, const char*, const void*, std::size_t, int)>("fsetxattr");
    return Concerns(descriptor) && Fails(kXAttr) ? -1 : next(descriptor, name, value, size, flags);
}

ssize_t flistxattr(int descriptor, char* names, std::size_t size) {
    static const auto next = Next<ssize_t (*)(int, char*, std::size_t)>("flistxattr");
    return Concerns(descriptor) && Fails(kXAttr) ? -1 : next(descriptor, names, size);
}

int fremovexattr(int descriptor, const char* name) {
    static const auto next = Next<int (*)(int, const char*)>("fremovexattr");
    return Concerns(descriptor) && Fails(kXAttr) ? -1 : next(descriptor, name);
}

int ftruncate(int descriptor, off_t length) {
    static const auto next = Next<int (*)(int, off_t)>("ftruncate");
    return Concerns(descriptor) && Fails(kTruncate) ? -1 : next(descriptor, length);
}

int ftruncate64(int descriptor, off64_t length) {
    return ftruncate(descriptor, length);
}

int flock(int descriptor, int operation) {
    static const auto next = Next<int (*)(int, int)>("flock");
    return Concerns(descriptor) && Fails(kOther) ? -1 : next(descriptor, operation);
}

ssize_t readlink(const char* path, char* buffer, std::size_t size) {
    static const auto next = Next<ssize_t (*)(const char*, char*, std::size_t)>("readlink");
    const bool concerned = Concerns(AT_FDCWD, path) || Concerns(DescriptorIn(path));
    return concerned && Fails(kOther) ? -1 : next(path, buffer, size);
}

DIR* fdopendir(int descriptor) {
    static const auto next = Next<DIR* (*)(int)>("fdopendir");
    return Concerns(descriptor) && Fails(kOpenDir) ? nullptr : next(descriptor);
}

int nanosleep(const struct timespec* /*duration*/, struct timespec* /*left*/) {
    return 0;
}

int clock_nanosleep(clockid_t /*clock*/, int /*flags*/, const struct timespec* /*time*/,
                    struct timespec* /*left*/) {
    return 0;
}

} // extern "C"
