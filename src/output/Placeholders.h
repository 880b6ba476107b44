// The placeholders in the window title, page title and page footer.
#pragma once

#include "OutputList.h"

#include <array>
#include <string>
#include <string_view>

namespace tunedex {

// In menu order.
inline constexpr std::array<std::string_view, 8> kTitlePlaceholders = {"%D", "%T", "%C", "%N",
                                                                       "%S", "%P", "%%", "%L"};

// Replaces the placeholders in the three titles of the listing's settings. `lineBreak` replaces %L in the
// page title and footer.
void ExpandTitlePlaceholders(Listing& listing, std::string_view lineBreak);

// "4:05", from one hour on "1:02:05"; rounded half to even to whole seconds.
std::string PlayTimeText(double totalSeconds);

} // namespace tunedex
