#include "RunRate.h"

#include <algorithm>
#include <limits>

namespace tunedex {

std::optional<RunRate> RateOf(std::int32_t done, std::int32_t total, std::chrono::milliseconds elapsed) {
    if (elapsed < std::chrono::seconds(1) || done <= 0) {
        return std::nullopt;
    }
    const std::int64_t rate = std::int64_t{done} * 1000 / elapsed.count();
    const std::int64_t left = (std::int64_t{total} - done) * elapsed.count() / done / 1000;
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    return RunRate{rate, static_cast<std::int32_t>(std::clamp<std::int64_t>(left, 0, kMost))};
}

} // namespace tunedex
