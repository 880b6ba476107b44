#include "Interrupts.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <poll.h>

namespace tunedex {

namespace {

constexpr std::array<int, 3> kInterrupts = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t interrupted = 0; // all that the signal handler may touch

void OnInterrupt(int /*signal*/) {
    interrupted = 1;
}

// Blocks the signals while it lives.
class BlockedInterrupts {
  public:
    BlockedInterrupts() {
        sigset_t signals;
        sigemptyset(&signals);
        for (const int number : kInterrupts) {
            sigaddset(&signals, number);
        }
        pthread_sigmask(SIG_BLOCK, &signals, &before_);
    }
    BlockedInterrupts(const BlockedInterrupts&) = delete;
    BlockedInterrupts& operator=(const BlockedInterrupts&) = delete;
    ~BlockedInterrupts() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

    // ppoll with the signals let in. Returns what it returns.
    int Poll(pollfd& waiting, const timespec* timeout) const { return ppoll(&waiting, 1, timeout, &before_); }

  private:
    sigset_t before_;
};

} // namespace

void CatchInterrupts() {
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
    if (descriptor < 0) {
        return !Interrupted(); // never ready for ppoll; the read reports the error
    }
    pollfd waiting{descriptor, POLLIN, 0};
    if (poll(&waiting, 1, 0) == 0) { // ready input needs no signal mask: half the system calls
        const BlockedInterrupts blocked;
        while (!Interrupted() && blocked.Poll(waiting, nullptr) < 0 && errno == EINTR) {
        }
    }
    return !Interrupted();
}

bool WaitForOutput(int descriptor) {
    if (descriptor < 0) {
        return true;
    }
    pollfd waiting{descriptor, POLLOUT, 0};
    int ready = poll(&waiting, 1, 0);
    if (ready == 0) {
        const BlockedInterrupts blocked;
        while (!Interrupted() && (ready = blocked.Poll(waiting, nullptr)) < 0 && errno == EINTR) {
        }
    }
    return ready > 0;
}

bool PauseUnlessInterrupted(std::chrono::milliseconds duration) {
    const BlockedInterrupts blocked;
    pollfd nothing{-1, 0, 0};
    const timespec time{duration.count() / 1000, duration.count() % 1000 * 1'000'000};
    if (!Interrupted()) {
        blocked.Poll(nothing, &time);
    }
    return !Interrupted();
}

} // namespace tunedex
