// A test by which long work or a wait learns that it should end early.
#pragma once

#include <functional>

namespace tunedex {

// Returns true once the work should end, and on every later call. Called often, on the thread that does the
// work. An empty test never stops.
using StopTest = std::function<bool()>;

inline bool Stops(const StopTest& stop) {
    return stop && stop();
}

} // namespace tunedex
