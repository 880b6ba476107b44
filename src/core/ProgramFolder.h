// Where the program keeps its files, and what it puts there on first use.
#pragma once

#include "Registry.h"

#include <string>

namespace tunedex {

// The folder of settings, statistics, log and themes, ending in a separator: the one that the registry names,
// else the running program's if it can be written, else the user's own data folder, made on first use and
// given the shipped files that it lacks; the very first use also turns the tips at start-up on. Raises the
// error of a folder or file that cannot be made.
std::string FindProgramFolder(Registry& registry);

// Copies every shipped file that is missing there into the folder; what the user has is never replaced.
void FillProgramFolder(const std::string& folder);

// The help page: where the registry says, or beside the program, or where a system-wide installation has it.
// Empty when there is none.
std::string FindHelpFile(const Registry& registry, const std::string& programFolder);

} // namespace tunedex
