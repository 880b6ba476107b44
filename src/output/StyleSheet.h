// The style block in the head of a page.
#pragma once

#include "PagePolicy.h"
#include "Settings.h"

#include <string>
#include <string_view>

namespace tunedex {

// Appends the block to `page`, with CR LF line ends; nothing unless FontCSS or ColourCSS is set. Fonts and
// colours are written as they are.
void WriteStyleBlock(std::string& page, const Settings& settings, const PagePolicy& policy = kClassicPages);

// The CSS name of an HTML font size "1" to "7"; "small" for anything else.
std::string_view CssSizeName(std::string_view size);

} // namespace tunedex
