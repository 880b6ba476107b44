// An unattended run in the terminal.
#pragma once

#include "Application.h"

#include <string>
#include <vector>

namespace tunedex {

// Starts up and creates the list. Returns the exit status (ExitStatusOf). Raises the
// error if start-up fails.
int RunTerminal(Application& application, const std::vector<std::string>& arguments);

} // namespace tunedex
