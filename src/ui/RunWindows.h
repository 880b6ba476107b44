// Runs the program with its windows.
#pragma once

#include "Application.h"

namespace tunedex {

// Runs until the user quits or, in automatic mode, until the list is written. Returns the exit status: 0; 1
// if the list was not written in automatic mode or the statistics could not be saved; 2 if the program could
// not start. If the display cannot be opened, ends the process with status 2 and the reason on standard
// error.
int RunWindows(int argc, char** argv, Application& application, bool automatic);

} // namespace tunedex
