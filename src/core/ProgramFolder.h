// Where the program keeps its files, and what it puts there on first use.
#pragma once

#include "Registry.h"

#include <string>

namespace tunedex {

// The folder of settings, statistics, log and themes, ending in a separator: the one that the registry names;
// else, for an installed program, the user's data folder; else the running program's folder if it can be
// written; else the user's data folder. The data folder is made on first use and then given the shipped
// files, once; that also turns the tips at start-up on. One that is there already, unless it came with the
// installation, is given nothing. `runningFolder` is the running program's folder, ending in a separator.
// Raises the error of a folder or file that cannot be made.
std::string FindProgramFolder(Registry& registry, const std::string& runningFolder);

// Copies every shipped file that is missing there into the folder; an existing one is never replaced.
void FillProgramFolder(const std::string& folder);

// The help page: the registry's, else the one beside the program, else that of an installed program. A path
// that cannot be examined (no permission, a name too long, a NUL) counts as missing. Empty when there is
// none.
std::string FindHelpFile(const Registry& registry, const std::string& programFolder);

} // namespace tunedex
