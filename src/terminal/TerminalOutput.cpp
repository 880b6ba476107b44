#include "TerminalOutput.h"

#include "Interrupts.h"

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tunedex {

namespace {

constexpr std::chrono::milliseconds kRetryInterval{10};

bool HasMode(int descriptor, mode_t mode) {
    struct stat status {};
    return fstat(descriptor, &status) == 0 && (status.st_mode & S_IFMT) == mode;
}

} // namespace

UniqueFd OpenNonBlocking(int descriptor) {
    if (isatty(descriptor) != 1 && !HasMode(descriptor, S_IFIFO)) {
        return {};
    }
    const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
    return UniqueFd(open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
}

TerminalOutput::TerminalOutput(int descriptor)
    : descriptor_(descriptor), isTerminal_(isatty(descriptor) == 1), isSocket_(HasMode(descriptor, S_IFSOCK)),
      nonBlocking_(OpenNonBlocking(descriptor)) {}

unsigned TerminalOutput::Columns() const {
    winsize size{};
    return ioctl(descriptor_, TIOCGWINSZ, &size) == 0 ? size.ws_col : 0U;
}

void TerminalOutput::Write(std::string_view bytes) const {
    const int target = nonBlocking_ ? nonBlocking_.Get() : descriptor_;
    while (!bytes.empty() && WaitForOutput(target)) {
        // A ready pipe accepts PIPE_BUF bytes, so even without a second file description this does not block
        // unless another process writes to the pipe.
        const std::string_view piece = bytes.substr(0, PIPE_BUF);
        const ssize_t done = isSocket_ ? send(target, piece.data(), piece.size(), MSG_DONTWAIT | MSG_NOSIGNAL)
                                       : write(target, piece.data(), piece.size());
        if (done > 0) {
            bytes.remove_prefix(static_cast<std::size_t>(done));
        } else if (done < 0 && errno == EAGAIN) {
            // A terminal polls as ready with one byte free but needs two for a line end.
            if (!PauseUnlessInterrupted(kRetryInterval)) {
                return;
            }
        } else if (done == 0 || errno != EINTR || Interrupted()) {
            return;
        }
    }
}

} // namespace tunedex
