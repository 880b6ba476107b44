// Input: a statistics file.
#include "Statistics.h"

#include "RunTimeError.h"
#include "Targets.h"
#include "Text.h"
#include "TextLines.h"

#include <set>

namespace tunedex::fuzz {

void RunStatistics(Bytes bytes) {
    Statistics read;
    try {
        read = ParseStatistics(SplitTextLines(TextOf(bytes)));
    } catch (const RunTimeError& error) {
        Require(std::set<int>{5, 6, 13, 62}.contains(error.Number()),
                "a malformed file raises one of four errors");
        return;
    }
    Require(IsValidUtf8(read.FirstStarted), "the date is valid UTF-8");
    Require(StatisticsText(read).find(read.FirstStarted) != std::string::npos,
            "the about box shows the date");
    const std::string path = EmptyFolder() + "stats.lst";
    SaveStatistics(read, path);
    try {
        const Statistics again = LoadStatistics(path, "today");
        read.TimesStarted += 1;
        Require(again == read, "a round trip adds one start and changes nothing else");
    } catch (const RunTimeError& error) {
        Require(error.Number() == 6 && read.TimesStarted == 2147483647, "only a full counter overflows");
    }
}

} // namespace tunedex::fuzz
