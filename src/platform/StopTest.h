// Asked by code that waits or works for long, to learn whether it should end early.
#pragma once

#include <functional>

namespace tunedex {

// Returns true once the work should end, and from then on. Called often and on the thread that does the work.
// An empty one never ends anything.
using StopTest = std::function<bool()>;

inline bool Stops(const StopTest& stop) {
    return stop && stop();
}

} // namespace tunedex
