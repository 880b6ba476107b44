// The program with windows.
#pragma once

#include "Application.h"

namespace tunedex {

// Runs the program until the user quits, or in automatic mode until the list is made, and returns its exit
// status: 0, 1 for a list that was not written in automatic mode or statistics that could not be saved, 2
// when the program could not start (a display that cannot be opened, say; the reason is then on standard
// error).
int RunWindows(int argc, char** argv, Application& application, bool automatic);

} // namespace tunedex
