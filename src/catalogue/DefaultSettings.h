// The settings of a new user.
#pragma once

#include "Settings.h"

namespace tunedex {

// The column lists hold every column of kColumns that users can choose, in table order.
Settings DefaultSettings();

} // namespace tunedex
