// What a run knows of its collection as a whole.
#pragma once

#include <cstdint>

namespace tunedex {

struct RunTotals {
    std::int32_t FoundCount = 0;    // files of the counting pass
    std::int32_t StoredCount = 0;   // records of the collecting pass
    std::int32_t UntaggedCount = 0; // of those, without a tag
    double TotalBytes = 0;
    double TotalSeconds = 0; // the sum of each file's whole seconds
};

} // namespace tunedex
