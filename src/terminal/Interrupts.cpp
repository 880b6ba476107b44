#include "Interrupts.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <fcntl.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tunedex {

namespace {

constexpr std::array<int, 3> kInterrupts = {SIGINT, SIGTERM, SIGHUP};
constexpr int kForever = -1;

// Set by the signal handler. The eventfd is created before the handler is installed and is never read, so
// after the first signal every poll() of it returns at once. Relying on EINTR would miss a signal that
// arrives just before the poll or is delivered to another thread.
volatile std::sig_atomic_t interrupted = 0;
volatile std::sig_atomic_t interruptEvent = -1;

void OnInterrupt(int /*signal*/) {
    const int errorCode = errno;
    interrupted = 1;
    const std::uint64_t one = 1;
    (void)!write(interruptEvent, &one, sizeof one);
    errno = errorCode;
}

// Waits until the descriptor is ready, a signal arrives or the time is up.
void Wait(int descriptor, short events, int milliseconds) {
    std::array<pollfd, 2> waiting{{{descriptor, events, 0}, {interruptEvent, POLLIN, 0}}};
    while (!Interrupted() && poll(waiting.data(), waiting.size(), milliseconds) < 0 && errno == EINTR) {
    }
}

} // namespace

void CatchInterrupts() {
    if (interruptEvent < 0) {
        interruptEvent = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    }
    struct sigaction action {};
    action.sa_handler = OnInterrupt;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int number : kInterrupts) {
        struct sigaction before {};
        if (sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN) {
            sigaction(number, &action, nullptr);
        }
    }
}

bool Interrupted() {
    return interrupted != 0;
}

bool WaitForInput(int descriptor) {
    if (descriptor >= 0) { // poll() ignores negative descriptors; the read reports the error
        Wait(descriptor, POLLIN, kForever);
    }
    return !Interrupted();
}

bool WaitForOutput(int descriptor) {
    if (descriptor < 0) {
        return true; // the write reports the error
    }
    Wait(descriptor, POLLOUT, kForever);
    pollfd now{descriptor, POLLOUT, 0};
    return !Interrupted() || poll(&now, 1, 0) > 0;
}

bool PauseUnlessInterrupted(std::chrono::milliseconds duration) {
    Wait(-1, 0, static_cast<int>(duration.count()));
    return !Interrupted();
}

} // namespace tunedex
