// The placeholders of window title, page title and footer.
#pragma once

#include "OutputList.h"

#include <array>
#include <string>
#include <string_view>

namespace tunedex {

// In the order in which menus offer them.
inline constexpr std::array<std::string_view, 8> kTitlePlaceholders = {"%D", "%T", "%C", "%N",
                                                                       "%S", "%P", "%%", "%L"};

// Replaces the placeholders in WindowTitle, PageTitle and PageFooter of the listing's settings.
void ExpandTitlePlaceholders(Listing& listing, std::string_view lineBreak);

// Whole seconds as minutes:seconds, from an hour on as hours:minutes:seconds.
std::string PlayTimeText(double totalSeconds);

} // namespace tunedex
