// Counts and sums of one run.
#pragma once

#include <cstdint>

namespace tunedex {

struct RunTotals {
    std::int32_t FoundCount = 0;    // MP3 files found by the counting pass
    std::int32_t StoredCount = 0;   // records stored by the collecting pass
    std::int32_t UntaggedCount = 0; // of those, records without a tag
    double TotalBytes = 0;
    double TotalSeconds = 0; // sum of whole seconds per file
};

} // namespace tunedex
