// The run of --create, in the terminal.
#pragma once

#include "Application.h"
#include "CommandLine.h"

namespace tunedex {

// Creates the list and returns the exit status: that of a refused command line, else ExitStatusOf(). When the
// reader of a list on standard output goes away, the run ends at once with kExitSuccess.
int RunCreate(Application& application, const CreateCommand& command);

} // namespace tunedex
