#include "OpenWindows.h"

#include "Display.h"
#include "ExitStatus.h"
#include "RunWindows.h"

#include <iostream>
#include <string>

namespace tunedex {

bool CanOpenWindows() {
    return !DisplayVariables().empty();
}

int OpenWindows(int argc, char** argv, Application& application, bool automatic, const std::string& file) {
    if (CanOpenWindows()) {
        return RunWindows(argc, argv, application, automatic, file);
    }
    std::cerr << "Tunedex: there is no display to open its window on. Without one, start it with /AUTO.\n";
    return kExitCannotStart;
}

} // namespace tunedex
