#include "RunTerminal.h"

#include "Functions.h"
#include "Interrupts.h"
#include "Startup.h"
#include "TerminalFrontEnd.h"
#include "TerminalOutput.h"

#include <unistd.h>

namespace tunedex {

int RunTerminal(Application& application, const std::vector<std::string>& arguments) {
    CatchInterrupts();
    TerminalFrontEnd frontEnd(application, STDIN_FILENO, STDERR_FILENO);
    StartUp(application, frontEnd, arguments);
    const RunOutcome outcome = CreateListCommand(application, frontEnd);
    const std::string logPath = application.programFolder + std::string(kLogFileName);
    const std::string line = UnreadLine(outcome, frontEnd.NameInMessage(logPath));
    if (!line.empty()) {
        TerminalOutput(STDERR_FILENO).Write(line + "\n");
    }
    return ExitStatusOf(outcome);
}

} // namespace tunedex
