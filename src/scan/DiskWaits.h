// Detects whether a thread blocks on disk I/O.
#pragma once

#include <cstdint>

namespace tunedex {

// Voluntary context switches of the calling thread so far. Elapsed time does not tell a slow disk from a busy
// CPU; a thread that finds its data in the page cache does not switch voluntarily.
std::int64_t WaitsOfThread();

// Detects that the folders a thread lists come from disk and not from the page cache. Create and use it on
// that thread.
class WaitDetector {
  public:
    WaitDetector() : waitsBefore_(WaitsOfThread()) {}

    // Call after each listed folder. Returns true at the end of a window of folders in which the thread
    // blocked often, false at all other calls.
    bool ManyWaits();

  private:
    std::int64_t waitsBefore_;
    int folders_ = 0;
};

} // namespace tunedex
