// The build without windows.
#include "ExitStatus.h"
#include "OpenWindows.h"

#include <iostream>
#include <string>

namespace tunedex {

bool CanOpenWindows() {
    return false;
}

int OpenWindows(int /*argc*/, char** /*argv*/, Application& /*application*/, bool /*automatic*/,
                const std::string& /*file*/) {
    std::cerr << "Tunedex: this build has no windows. Use --create or /AUTO.\n";
    return kExitCannotStart;
}

} // namespace tunedex
