// Parses settings from a text in two ways that must agree.
#pragma once

#include "Settings.h"

#include <string>

namespace tunedex::fuzz {

// Applies the text to default-constructed settings and checks the reports of faulty lines.
Settings ReadSettingsText(const std::string& bytes);

} // namespace tunedex::fuzz
