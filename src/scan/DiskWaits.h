// Whether a thread has to wait for what it reads.
#pragma once

#include <cstdint>

namespace tunedex {

// How often the calling thread has given up the processor by itself. Time alone would not tell a slow disk
// from a busy processor; but who finds everything in memory has nothing to wait for.
std::int64_t WaitsOfThread();

// Tells whether many of the folders that a thread lists come from the disk.
class WaitDetector {
  public:
    WaitDetector() : waitsBefore_(WaitsOfThread()) {}

    // One more folder has been listed. True once in a few dozen, if many of those came from the disk.
    bool ManyWaits();

  private:
    std::int64_t waitsBefore_;
    int folders_ = 0;
};

} // namespace tunedex
