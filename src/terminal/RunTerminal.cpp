#include "RunTerminal.h"

#include "ExitStatus.h"
#include "Interrupts.h"
#include "Startup.h"
#include "TerminalFrontEnd.h"

#include <unistd.h>

namespace tunedex {

int RunTerminal(Application& application, const std::vector<std::string>& arguments) {
    CatchInterrupts();
    TerminalFrontEnd frontEnd(application, STDIN_FILENO, STDERR_FILENO);
    StartUp(application, frontEnd, arguments);
    return CreateListCommand(application, frontEnd) ? kExitSuccess : kExitFailure;
}

} // namespace tunedex
