// Playing times as texts. All of the program formats them here.
#pragma once

#include <cstdint>
#include <string>

namespace tunedex {

// Minutes without padding or limit, then two digits of seconds: "4:05", "75:03".
std::string MinutesAndSeconds(std::int64_t seconds);

// The same below an hour, hours in front from then on: "59:59", "1:02:05".
std::string HoursMinutesAndSeconds(std::int64_t seconds);

} // namespace tunedex
