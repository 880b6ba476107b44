// The ID3v1 genre list with its common extension to 148 names.
#pragma once

#include <string_view>

namespace tunedex {

// The name of genre `number` (0 to 255); empty from 148 on.
std::string_view GenreName(unsigned number);

} // namespace tunedex
