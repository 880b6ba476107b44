// The style rules for the columns of an HTML5 page.
#pragma once

#include "Html5Columns.h"
#include "Settings.h"

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// Appends the rules for tables that match the selector `table`, which begins with "#tracks": widths,
// alignments, and at which width of the window each column folds away, the least important one first. A
// column without its flag in `shown` is not drawn.
void WriteHtml5ColumnRules(std::string& style, const std::vector<Html5Column>& columns,
                           const std::vector<bool>& shown, std::string_view table, const Settings& settings);

} // namespace tunedex
