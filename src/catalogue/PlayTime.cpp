#include "PlayTime.h"

#include "Numbers.h"

namespace tunedex {

std::string MinutesAndSeconds(std::int64_t seconds) {
    return std::to_string(seconds / 60) + ":" + PadNumber(seconds % 60, 2);
}

std::string HoursMinutesAndSeconds(std::int64_t seconds) {
    constexpr std::int64_t kHour = 3600;
    if (seconds < kHour) {
        return MinutesAndSeconds(seconds);
    }
    return std::to_string(seconds / kHour) + ":" + PadNumber(seconds % kHour / 60, 2) + ":" +
           PadNumber(seconds % 60, 2);
}

} // namespace tunedex
