// Detects whether reading blocks on disk I/O.
#pragma once

#include <chrono>
#include <cstdint>

namespace tunedex {

// Voluntary context switches of the calling thread so far. Elapsed time does not tell a slow disk from a busy
// CPU; a thread that finds its data in the page cache does not switch voluntarily. Takes about 0.5 us.
std::int64_t WaitsOfThread();

// Detects from the time it takes to open folders that they come from disk and not from the page cache. An
// open from the page cache takes about 10 us: too short to be preempted in many of a row.
class WaitDetector {
  public:
    static constexpr std::chrono::microseconds kSlowOpen{100};
    // Folders per window, and how many of them must be slow.
    static constexpr int kFolders = 8;
    static constexpr int kMany = 4;

    // Call for each folder. Returns true at the end of a window in which many were slow, false at all other
    // calls.
    bool AfterOpen(std::chrono::nanoseconds elapsed);

  private:
    int folders_ = 0;
    int slow_ = 0;
};

} // namespace tunedex
