// The settings of a new user.
#pragma once

#include "Settings.h"

namespace tunedex {

// Stores every default, overwriting all members. The column lists hold every classic column of
// kColumns that users can choose, in table order.
void SetDefaults(Settings& settings);

// New settings with every default.
Settings DefaultSettings();

} // namespace tunedex
