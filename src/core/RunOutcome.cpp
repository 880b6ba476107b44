#include "RunOutcome.h"

#include "ExitStatus.h"

namespace tunedex {

namespace {

std::string Counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

bool LacksSomething(const RunOutcome& outcome) {
    return outcome.Written() && outcome.modern && outcome.Incomplete();
}

} // namespace

int ExitStatusOf(const RunOutcome& outcome) {
    if (!outcome.Written()) {
        return kExitFailure;
    }
    return LacksSomething(outcome) ? kExitIncomplete : kExitSuccess;
}

std::string UnreadText(const RunOutcome& outcome) {
    if (!outcome.Incomplete()) {
        return {};
    }
    std::string text = outcome.unreadFolders > 0 ? Counted(outcome.unreadFolders, "folder") : "";
    if (outcome.unreadFiles > 0) {
        text += (text.empty() ? "" : " and ") + Counted(outcome.unreadFiles, "file");
    }
    return text + " could not be read";
}

std::string UnreadLine(const RunOutcome& outcome, std::string_view logPath) {
    if (!LacksSomething(outcome)) {
        return {};
    }
    const char* const where = outcome.logged ? "; see " : "; switch on the error log to have each named in ";
    return "Tunedex: " + UnreadText(outcome) + where + std::string(logPath);
}

} // namespace tunedex
