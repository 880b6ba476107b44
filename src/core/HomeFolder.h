// The user's home folder.
#pragma once

#include <string>

namespace tunedex {

// Without a trailing separator: $HOME, else the home folder of the user's account.
std::string HomeFolder();

// "~" and "~/Music" with the home folder in the place of "~", as in a shell; any other path as it is.
std::string ExpandHome(const std::string& path);

} // namespace tunedex
