// The style block in a page's head.
#pragma once

#include "Settings.h"

#include <string>
#include <string_view>

namespace tunedex {

// Appends the block, line by line.
void WriteStyleBlock(std::string& page, const Settings& settings);

// The CSS name of an HTML font size "1" to "7"; "small" for anything else.
std::string_view CssSizeName(std::string_view size);

} // namespace tunedex
