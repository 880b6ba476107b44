// The progress line of a run in a terminal.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace tunedex {

struct Progress {
    std::string_view status;             // what is being done
    std::int32_t done = 0;               // files
    std::int32_t total = 0;              // 0: unknown
    std::chrono::milliseconds elapsed{}; // since the first of them
};

// "[####......] 1234/5000  456/s  0:08 left  Reading", cut to `columns` - 1 characters (0: not cut). Without
// a total, only the count. Rate and time left appear after a second. The bar is coloured if asked.
std::string ProgressText(const Progress& progress, unsigned columns, bool coloured);

} // namespace tunedex
