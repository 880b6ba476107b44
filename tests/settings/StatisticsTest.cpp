#include "Statistics.h"

#include "OrdinaryUser.h"
#include "Raises.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace tunedex {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

TEST(Statistics, BeginWithTodayAndOneStartWithoutAFile) {
    const test::TestFolder folder;
    EXPECT_EQ(LoadStatistics(folder / "stats.lst", "2026-11-21"), (Statistics{"2026-11-21", 1, 0, 0}));
    EXPECT_FALSE(folder.Exists("stats.lst")) << "loading never writes the file";
}

TEST(Statistics, CountThisStartOnLoading) {
    const test::TestFolder folder;
    const std::string path = folder.Write("stats.lst", "\"15/11/2026\"\r\n3\r\n2\r\n57\r\n");
    EXPECT_EQ(LoadStatistics(path, "today"), (Statistics{"15/11/2026", 4, 2, 57}));
    EXPECT_EQ(test::ReadBytes(path), "\"15/11/2026\"\r\n3\r\n2\r\n57\r\n");
}

TEST(Statistics, AreSavedAsFourLinesWithTheDateInQuotes) {
    const test::TestFolder folder;
    SaveStatistics({"15/11/2026", 3, 2, 57}, folder / "stats.lst");
    EXPECT_EQ(test::ReadBytes(folder / "stats.lst"), "\"15/11/2026\"\r\n3\r\n2\r\n57\r\n");
    SaveStatistics({"21. Nov. 2026 š", -1, 0, kMost}, folder / "stats.lst");
    EXPECT_EQ(test::ReadBytes(folder / "stats.lst"), "\"21. Nov. 2026 \x9A\"\r\n-1\r\n0\r\n2147483647\r\n");
}

TEST(Statistics, SurviveSavingAndLoadingWithAnyDate) {
    const test::TestFolder folder;
    for (const char* date : {"2026-11-21", "", "\"", "21.11.2026", "平成38年", "é", "Ã©", " x "}) {
        SaveStatistics({date, 8, 2, 3}, folder / "stats.lst");
        EXPECT_EQ(LoadStatistics(folder / "stats.lst", "today"), (Statistics{date, 9, 2, 3})) << date;
    }
}

TEST(ParseStatistics, DropsTheFirstAndLastCharacterOfTheDate) {
    const std::vector<std::pair<const char*, const char*>> rows = {
        {"\"2026\"", "2026"}, {"2026", "02"}, {"\"\"", ""}, {"é2026あ", "2026"}, {"ab", ""}, {"'x\"", "x"}};
    for (const auto& [line, date] : rows) {
        EXPECT_EQ(ParseStatistics({line, "1", "0", "0"}).FirstStarted, date) << line;
    }
    for (const char* line : {"", "\"", "é"}) {
        EXPECT_EQ(test::RaisedBy([line] { ParseStatistics({line, "1", "0", "0"}); }), 5) << line;
    }
}

TEST(ParseStatistics, RequiresANumberForTheStartsAndAddsOneBeforeRounding) {
    const std::vector<std::pair<const char*, std::int32_t>> rows = {
        {"9", 10},  {"0", 1},  {" 9 ", 10},   {"1.5", 2},
        {"2.5", 4}, {"-1", 0}, {"1e3", 1001}, {"2147483646", kMost}};
    for (const auto& [line, starts] : rows) {
        EXPECT_EQ(ParseStatistics({"\"x\"", line, "0", "0"}).TimesStarted, starts) << line;
    }
    for (const char* line : {"", "x", "9x", "nine"}) {
        EXPECT_EQ(test::RaisedBy([line] { ParseStatistics({"\"x\"", line, "0", "0"}); }), 13) << line;
    }
    EXPECT_EQ(test::RaisedBy([] { ParseStatistics({"\"x\"", "2147483647", "0", "0"}); }), 6);
}

TEST(ParseStatistics, ReadsTheLeadingNumberOfTheOtherCounts) {
    struct Row {
        const char* line;
        std::int32_t count;
    };
    for (const Row& row :
         std::vector<Row>{{"12", 12}, {"12abc", 12}, {"abc", 0}, {"", 0}, {"  7", 7}, {"2.5", 2}}) {
        const Statistics statistics = ParseStatistics({"\"x\"", "1", row.line, row.line});
        EXPECT_EQ(statistics.ListsCreated, row.count) << row.line;
        EXPECT_EQ(statistics.FilesHandled, row.count) << row.line;
    }
    EXPECT_EQ(test::RaisedBy([] { ParseStatistics({"\"x\"", "1", "2147483648", "0"}); }), 6);
    EXPECT_EQ(test::RaisedBy([] { ParseStatistics({"\"x\"", "1", "0", "2147483648"}); }), 6);
}

TEST(ParseStatistics, RaisesInputPastEndForFewerThanFourLines) {
    EXPECT_EQ(test::RaisedBy([] { ParseStatistics({}); }), 62);
    EXPECT_EQ(test::RaisedBy([] { ParseStatistics({"\"x\"", "1", "0"}); }), 62);
    EXPECT_EQ(ParseStatistics({"\"x\"", "1", "2", "3", "more"}), (Statistics{"x", 2, 2, 3}));
}

TEST(Statistics, RaiseTheErrorOfAnUnreadableOrUnwritableFile) {
    const test::TestFolder folder;
    EXPECT_EQ(test::RaisedBy([&] { SaveStatistics({}, folder / "none/stats.lst"); }), 76);
    test::AsOrdinaryUser(folder, [&] {
        const std::string path = folder.Write("stats.lst", "old");
        ASSERT_EQ(chmod(path.c_str(), 0444), 0);
        EXPECT_EQ(test::RaisedBy([&] { SaveStatistics({}, path); }), 75);
        EXPECT_EQ(test::ReadBytes(path), "old");
        ASSERT_EQ(chmod(path.c_str(), 0), 0);
        EXPECT_EQ(test::RaisedBy([&] { LoadStatistics(path, "today"); }), 75);
    });
}

TEST(StatisticsText, CountsInSingularAndPlural) {
    struct Row {
        Statistics statistics;
        const char* text;
    };
    const std::vector<Row> rows = {
        {{"D", 1, 0, 0}, "Tunedex was first started on D and has been started 1 time since.\r\n"},
        {{"D", 0, 0, 0}, "Tunedex was first started on D and has been started 0 time since.\r\n"},
        {{"D", 2, 0, 0}, "Tunedex was first started on D and has been started 2 times since.\r\n"},
        // No second sentence without lists or without files.
        {{"D", 10, 0, 99}, "Tunedex was first started on D and has been started 10 times since.\r\n"},
        {{"D", 1, 3, 0}, "Tunedex was first started on D and has been started 1 time since.\r\n"},
        {{"D", 1, -1, 5}, "Tunedex was first started on D and has been started 1 time since.\r\n"},
        {{"D", 1, 1, 1},
         "Tunedex was first started on D and has been started 1 time since.\r\n"
         "It has created 1 list, and handled 1 MP3 file."},
        {{"D", 3, 2, 57},
         "Tunedex was first started on D and has been started 3 times since.\r\n"
         "It has created 2 lists, and handled 57 MP3 files."},
        {{"D", 1, 1, 2},
         "Tunedex was first started on D and has been started 1 time since.\r\n"
         "It has created 1 list, and handled 2 MP3 files."},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(StatisticsText(row.statistics), row.text);
    }
}

} // namespace
} // namespace tunedex
