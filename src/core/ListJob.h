// The list-creation job: from validating the user's input to the finished listing.
#pragma once

#include "Application.h"
#include "RunOutcome.h"
#include "UserInterface.h"

namespace tunedex {

// Validates folder and output file (creating a missing output folder if the user agrees), searches, reads,
// sorts and writes, and shows all messages of the run. Run-time errors are shown in a message and not raised.
RunOutcome CreateList(Application& application, UserInterface& ui);

} // namespace tunedex
