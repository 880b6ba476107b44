// Retries a system call that fails with EINTR. Not for close(): Linux releases the descriptor even when it
// returns EINTR.
#pragma once

#include <cerrno>

namespace tunedex {

// `call` returns -1 and sets errno on failure.
template <typename Call> auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

} // namespace tunedex
