// Checks a settings or theme file.
#pragma once

#include <ostream>
#include <string>

namespace tunedex {

// Prints each faulty line with its number and the reason, and each line with an unknown key, which a run
// ignores; prints that there is none otherwise. Returns whether no line is faulty. Raises the error of a file
// that cannot be read, 53 if it does not exist.
bool CheckSettingsFile(const std::string& path, std::ostream& output);

} // namespace tunedex
