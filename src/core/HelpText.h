// The text of --help.
#pragma once

#include <string>

namespace tunedex {

// At most 80 columns wide.
std::string HelpText();

} // namespace tunedex
