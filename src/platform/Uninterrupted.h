// System calls that a signal may interrupt: they are made again, and nobody hears of it. Not for close, after
// which the descriptor is gone whatever it returns.
#pragma once

#include <cerrno>

namespace tunedex {

// The result of `call`, which returns -1 and sets errno when it fails.
template <typename Call> auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) {
        result = call();
    }
    return result;
}

} // namespace tunedex
