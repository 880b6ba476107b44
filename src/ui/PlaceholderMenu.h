// The descriptions in the Placeholders menu.
#pragma once

#include "Placeholders.h"

#include <array>

namespace tunedex {

inline constexpr std::array<const char*, kTitlePlaceholders.size()> kPlaceholderMeanings = {
    "Current date",
    "Current time",
    "Number of files",
    "Number of non-tagged files",
    "Total size of all files",
    "Total play-time of all files",
    "Percent sign",
    "Line break",
};

} // namespace tunedex
