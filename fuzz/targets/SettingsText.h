// Settings read from a text, in two ways that have to agree.
#pragma once

#include "Settings.h"

#include <string>

namespace tunedex::fuzz {

// Reads over a fresh record and checks what is said of faulty lines.
Settings ReadSettingsText(const std::string& bytes);

} // namespace tunedex::fuzz
