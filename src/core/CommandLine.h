// Interprets the program's arguments, without the program's own path.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tunedex {

// The text for standard output, including its last line end, when the only argument is exactly --help or
// --version; otherwise empty.
std::optional<std::string> InformationText(const std::vector<std::string>& arguments);

// FILE when the arguments are exactly --write-defaults FILE; otherwise empty.
std::optional<std::string> DefaultsFile(const std::vector<std::string>& arguments);

// Whether "/AUTO" occurs anywhere in the arguments, in any case. Required: also inside a longer word.
bool IsAutomatic(const std::vector<std::string>& arguments);

} // namespace tunedex
