#include "RunOutcome.h"

#include <gtest/gtest.h>

#include <string>

namespace tunedex {
namespace {

RunOutcome Written(std::size_t folders, std::size_t files, bool modern = true, bool logged = true) {
    RunOutcome outcome;
    outcome.end = RunEnd::Written;
    outcome.modern = modern;
    outcome.logged = logged;
    outcome.unreadFolders = folders;
    outcome.unreadFiles = files;
    return outcome;
}

TEST(RunOutcome, ExitStatusTellsAnIncompleteModernListing) {
    EXPECT_EQ(ExitStatusOf({}), 1);
    EXPECT_EQ(ExitStatusOf(Written(0, 0)), 0);
    EXPECT_EQ(ExitStatusOf(Written(1, 0)), 3);
    EXPECT_EQ(ExitStatusOf(Written(0, 2)), 3);
    EXPECT_EQ(ExitStatusOf(Written(1, 2, false)), 0);
    RunOutcome aborted = Written(1, 0);
    aborted.end = RunEnd::Aborted;
    EXPECT_EQ(ExitStatusOf(aborted), 1);
}

TEST(RunOutcome, LastLineCountsFoldersAndFilesAndNamesTheLog) {
    struct Row {
        RunOutcome outcome;
        std::string line;
    };
    const Row rows[] = {
        {Written(0, 0), ""},
        {Written(1, 0), "Tunedex: 1 folder could not be read; see /p/Tunedex.log"},
        {Written(0, 1), "Tunedex: 1 file could not be read; see /p/Tunedex.log"},
        {Written(2, 3), "Tunedex: 2 folders and 3 files could not be read; see /p/Tunedex.log"},
        {Written(1, 1, true, false), "Tunedex: 1 folder and 1 file could not be read; switch on the error "
                                     "log to have each named in /p/Tunedex.log"},
        {Written(1, 0, false), ""},
        {{}, ""},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(UnreadLine(row.outcome, "/p/Tunedex.log"), row.line);
    }
}

} // namespace
} // namespace tunedex
