// What the program's arguments ask for. The program's own path is not among them.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tunedex {

// The text to print on standard output, with its last line end, when the single argument is exactly --help or
// --version; the program ends then. Nothing for any other arguments.
std::optional<std::string> InformationText(const std::vector<std::string>& arguments);

// Whether "/AUTO" occurs anywhere in the arguments, in any case, inside a longer word too.
bool IsAutomatic(const std::vector<std::string>& arguments);

} // namespace tunedex
