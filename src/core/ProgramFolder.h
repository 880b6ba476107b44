// Locates the program folder and fills it on first use.
#pragma once

#include "Registry.h"

#include <string>

namespace tunedex {

// The folder of settings, statistics, log and themes, with a trailing separator: the folder in the registry
// if there is one; for an installed program, the user's data folder; otherwise the folder of the running
// program if it is writable, else the user's data folder. On first use, the data folder is created and filled
// with the shipped files, and tips at start-up are turned on. An existing folder is not filled, unless it
// came with the installation. `runningFolder` is the folder of the running program, with a trailing
// separator. Raises the error of a folder or file that cannot be created.
std::string FindProgramFolder(Registry& registry, const std::string& runningFolder);

// Copies the shipped files into the folder; existing files are kept.
void FillProgramFolder(const std::string& folder);

// The help page: from the registry, else next to the program, else of an installed program; empty when there
// is none. A path that cannot be examined (no permission, name too long, a NUL) counts as missing.
std::string FindHelpFile(const Registry& registry, const std::string& programFolder);

} // namespace tunedex
