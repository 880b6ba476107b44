// The speed of a phase of a run.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace tunedex {

struct RunRate {
    std::int64_t filesPerSecond;
    std::int32_t secondsLeft; // at this speed
};

// None within the first second, which says little, and without a file done.
std::optional<RunRate> RateOf(std::int32_t done, std::int32_t total, std::chrono::milliseconds elapsed);

} // namespace tunedex
