// What a run has done.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tunedex {

// How a run ended. NotStarted: a message has told the user what is missing.
enum class RunEnd { NotStarted, Written, Aborted, NothingFound, Failed };

struct RunOutcome {
    RunEnd end = RunEnd::NotStarted;
    bool partial = false; // an abort left the listing as far as it was written
    std::string failure;  // of a run that failed: the description of the error
    std::int32_t tracks = 0;
    bool modern = false; // the run's setting
    bool logged = false; // errors are in the log
    std::string file;    // the listing, or its first page; empty if neither written nor partial
    std::int32_t pages = 0;
    // What could not be read, and how many tracks have a tag that a modern run would read otherwise.
    std::size_t unreadFolders = 0;
    std::size_t unreadFiles = 0;
    std::int32_t modernTags = 0;

    // The listing, completely.
    bool Written() const { return end == RunEnd::Written; }
    bool Incomplete() const { return unreadFolders > 0 || unreadFiles > 0; }
};

// The exit status of an unattended run.
int ExitStatusOf(const RunOutcome& outcome);

// "1 folder and 2 files could not be read"; empty if there are none.
std::string UnreadText(const RunOutcome& outcome);

// The last line of an unattended run on standard error, without its line end: what a modern listing lacks,
// and the log that names it (or would, where the settings ask for none). Empty if there is nothing to say.
std::string UnreadLine(const RunOutcome& outcome, std::string_view logPath);

} // namespace tunedex
