// An unattended run without a screen.
#pragma once

#include "Application.h"

#include <string>
#include <vector>

namespace tunedex {

// Starts up, creates the list and ends. Returns the exit status: 0 when the list was written, 1 when not.
// Raises the error of a start-up that fails.
int RunTerminal(Application& application, const std::vector<std::string>& arguments);

} // namespace tunedex
