// The environment variables that name a display.
#pragma once

#include <string>
#include <vector>

namespace tunedex {

struct DisplayVariable {
    std::string name;
    std::string value;
};

// Those of DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM that are set and not empty. If none is, there is no
// display.
std::vector<DisplayVariable> DisplayVariables();

// The message for a display that cannot be opened: each variable with its value, and the command that runs
// without them. Complete lines; values are safe to print on a terminal.
std::string UnusableDisplayText(const std::vector<DisplayVariable>& variables);

} // namespace tunedex
