// The list-creation job: from the user's choices to the finished listing.
#pragma once

#include "Application.h"
#include "UserInterface.h"

namespace tunedex {

// Validates folder and output file (creating a missing output folder on request), searches, reads, sorts and
// writes, with every message that the run gives. Returns whether the listing was written to its end. Run-time
// errors end in a message, never in an exception.
bool CreateList(Application& application, UserInterface& ui);

} // namespace tunedex
