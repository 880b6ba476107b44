// What main.cpp needs of the windows. OpenWindows.cpp implements it; in a build without windows,
// NoWindows.cpp.
#pragma once

#include "Application.h"

#include <string>

namespace tunedex {

// Whether this build has windows and the environment names a display.
bool CanOpenWindows();

// Runs the program with its windows and returns its exit status (RunWindows). Where CanOpenWindows() is
// false, prints the reason on standard error and returns kExitCannotStart.
int OpenWindows(int argc, char** argv, Application& application, bool automatic, const std::string& file);

} // namespace tunedex
