#include "RunCreate.h"

#include "CommandFrontEnd.h"
#include "CreateSettings.h"
#include "ExitStatus.h"
#include "Functions.h"
#include "Interrupts.h"
#include "OutputList.h"
#include "Startup.h"

#include <array>
#include <cstdio>
#include <poll.h>
#include <unistd.h>

namespace tunedex {

namespace {

using Seconds = std::chrono::duration<double>;

// Standard output while it receives the list.
class ListingStream {
  public:
    explicit ListingStream(bool used)
        : used_(used), nonBlocking_(used ? OpenNonBlocking(STDOUT_FILENO) : UniqueFd()) {}

    int Descriptor() const {
        if (!used_) {
            return kNoStream;
        }
        return nonBlocking_ ? nonBlocking_.Get() : STDOUT_FILENO;
    }
    bool HasLostItsReader() const {
        pollfd now{Descriptor(), 0, 0};
        return used_ && poll(&now, 1, 0) > 0 && (now.revents & (POLLERR | POLLHUP)) != 0;
    }
    bool SharesTheTerminal() const { return used_ && isatty(STDOUT_FILENO) == 1; }

  private:
    const bool used_;
    const UniqueFd nonBlocking_;
};

std::string Counted(std::int32_t count, const char* noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

// "1234 files, 13 pages, 0.5 seconds"
std::string SummaryText(const RunOutcome& outcome, Seconds duration) {
    std::array<char, 32> seconds{};
    std::snprintf(seconds.data(), seconds.size(), "%.1f seconds", duration.count());
    std::string text =
        Counted(outcome.tracks, "file") + ", " + Counted(outcome.pages, "page") + ", " + seconds.data();
    return outcome.Incomplete() ? text + "; " + UnreadText(outcome) : text;
}

// Where errors are named: above as messages, in the log, or nowhere.
std::string ErrorsText(const RunOutcome& outcome, const Application& application) {
    const std::string log = application.programFolder + std::string(kLogFileName);
    if (outcome.logged) {
        return "; see " + log;
    }
    return application.settings.ErrorWarnings ? "" : "; switch on the error log to have each named in " + log;
}

void Report(CommandFrontEnd& frontEnd, const Application& application, const RunOutcome& outcome,
            Seconds duration, bool summary) {
    if (!outcome.Written()) {
        if (Interrupted()) {
            frontEnd.Print("stopped before the list was complete");
        }
        return;
    }
    const std::string errors = outcome.Incomplete() ? ErrorsText(outcome, application) : "";
    if (summary) {
        frontEnd.Print(SummaryText(outcome, duration) + errors);
    } else if (outcome.Incomplete()) {
        frontEnd.Print(UnreadText(outcome) + errors);
    }
}

int CreateList(Application& application, const CreateCommand& command, CommandFrontEnd& frontEnd,
               const ListingStream& stream) {
    frontEnd.FillFields(FieldsFor(application.settings));
    const auto start = std::chrono::steady_clock::now();
    const RunOutcome outcome = CreateListCommand(application, frontEnd);
    if (!outcome.Written() && !Interrupted() && stream.HasLostItsReader()) {
        return kExitSuccess;
    }
    const bool summary = !command.quiet && isatty(STDERR_FILENO) == 1;
    Report(frontEnd, application, outcome, std::chrono::steady_clock::now() - start, summary);
    return ExitStatusOf(outcome);
}

} // namespace

int RunCreate(Application& application, const CreateCommand& command) {
    CatchInterrupts();
    const ListingStream stream(command.outputFile && IsStandardOutput(*command.outputFile));
    CommandFrontEnd frontEnd(application, STDERR_FILENO,
                             StyleFor(STDERR_FILENO, command.quiet || stream.SharesTheTerminal()));
    application.listingStream = stream.Descriptor();
    application.pausesAtEnd = false;
    try {
        if (const std::optional<Refusal> refusal = PrepareSettings(application, command)) {
            frontEnd.Print(refusal->text);
            return refusal->status;
        }
    } catch (const RunTimeError& error) {
        frontEnd.Print(std::string("cannot start: ") + error.Description());
        return kExitCannotStart;
    }
    return CreateList(application, command, frontEnd, stream);
}

} // namespace tunedex
