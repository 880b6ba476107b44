// Runs the program with its windows.
#pragma once

#include "Application.h"

#include <string>

namespace tunedex {

// Opens `file`, settings or a theme, in the main window unless it is empty or the mode automatic.
// Runs until the user quits or, in automatic mode, until the list is written. Returns the exit status: 0; 1
// if the list was not written in automatic mode or the statistics could not be saved; 2 if the program could
// not start. If the display cannot be opened, ends the process with status 2 and the reason on standard
// error.
int RunWindows(int argc, char** argv, Application& application, bool automatic, const std::string& file = {});

} // namespace tunedex
