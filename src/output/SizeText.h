// Formats file sizes for listings.
#pragma once

#include "Locale.h"

#include <cstdint>
#include <string>

namespace tunedex {

// `bytes` in the unit of `sizeType` (0 bytes, 1 kB, 2 MB; any other: empty), two decimals for kB and MB, ties
// rounded away from zero, with the locale's separators: "1,234,567 b.", "1,205.63 kB". `bytes` is 0 to 2^56.
std::string SizeText(std::int64_t bytes, std::int16_t sizeType, const Locale& locale);

} // namespace tunedex
