// The environment variables that name a display.
#pragma once

#include <string>
#include <vector>

namespace tunedex {

struct DisplayVariable {
    std::string name;
    std::string value;
};

// Those of DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM that are set; an empty one counts as unset. Without
// any there is no display.
std::vector<DisplayVariable> DisplayVariables();

// What to print when the display that these variables name cannot be opened: each with its value, and the
// command that runs without them. Whole lines; values are cleaned for a terminal.
std::string UnusableDisplayText(const std::vector<DisplayVariable>& variables);

} // namespace tunedex
