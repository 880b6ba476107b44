#include "CheckFile.h"

#include "Raises.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace tunedex {
namespace {

TEST(CheckSettingsFile, PrintsEachFaultyLineAndUnknownKey) {
    const test::TestFolder folder;
    const struct {
        const char* content;
        bool faultless;
        const char* report; // "*" stands for the path
    } rows[] = {
        {"", true, "*: no faulty line\n"},
        {"# a comment\r\n\r\nMerge=1\r\nColour(3)=FFFFFF\r\n", true, "*: no faulty line\n"},
        {"Merge=1\r\nMerge\r\n", false, "*:2: line skipped: no \"=\" in it\n"},
        {"Merge=99999\r\nColour(x)=000000\r\nFont(0)=Arial\r\n", false,
         "*:1: line skipped: Overflow\n*:2: line skipped: Subscript out of range\n"
         "*:3: line skipped: Subscript out of range\n"},
        {"Merg=1\r\nTagCodePage=nonsense\r\n", false,
         "*:2: line skipped: Invalid procedure call or argument\n*:1: unknown key, ignored\n"},
        {"Colours(1)=000000\n", true, "*:1: unknown key, ignored\n*: no faulty line\n"},
    };
    for (const auto& row : rows) {
        const std::string path = folder.Write("a.cfg", row.content);
        std::ostringstream report;
        EXPECT_EQ(CheckSettingsFile(path, report), row.faultless) << row.content;
        std::string expected;
        for (const char c : std::string(row.report)) {
            expected += c == '*' ? path : std::string(1, c);
        }
        EXPECT_EQ(report.str(), expected);
    }
}

TEST(CheckSettingsFile, RaisesErrorFiftyThreeForAMissingFile) {
    std::ostringstream report;
    EXPECT_EQ(test::RaisedBy([&] { CheckSettingsFile("/nowhere/a.cfg", report); }), 53);
    EXPECT_EQ(report.str(), "");
}

} // namespace
} // namespace tunedex
