#include "Tips.h"

#include "Fakes.h"
#include "RunTimeError.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace tunedex {
namespace {

using test::FakeRegistry;
using test::TestFolder;

TEST(TipsPath, IsFromTheRegistryThenNextToTheProgramThenInItsFolder) {
    const TestFolder running;
    const TestFolder program;
    FakeRegistry registry;
    EXPECT_EQ(TipsPath(registry, running.Path(), program.Path()), program / "tips.lst");
    running.Write("tips.lst", "");
    EXPECT_EQ(TipsPath(registry, running.Path(), program.Path()), running / "tips.lst");
    registry.values["TipsFile"] = "/some/where.lst";
    EXPECT_EQ(TipsPath(registry, running.Path(), program.Path()), "/some/where.lst");
}

struct FileCase {
    const char* name;
    const char* bytes;
    std::vector<std::string> tips; // in the order of Next()
};

class TipsFile : public testing::TestWithParam<FileCase> {};

TEST_P(TipsFile, CyclesThroughItsLinesInOrder) {
    const TestFolder folder;
    Tips tips;
    tips.Load(folder.Write("tips.lst", GetParam().bytes));
    EXPECT_EQ(tips.Current(), "");
    EXPECT_EQ(tips.Number(), 0);
    for (int round = 0; round < 2; ++round) {
        std::int32_t number = 1;
        for (const std::string& expected : GetParam().tips) {
            tips.Next();
            EXPECT_EQ(tips.Current(), expected);
            EXPECT_EQ(tips.Number(), number++);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, TipsFile,
    testing::Values(FileCase{"ThreeLines", "one\r\ntwo\r\nthree\r\n", {"one", "two", "three"}},
                    FileCase{"NoLastLineEnd", "one\ntwo", {"one", "two"}},
                    FileCase{"AnEmptyLineIsATip", "one\r\n\r\ntwo\r\n", {"one", "", "two"}},
                    FileCase{"OneLine", "only\r\n", {"only"}},
                    FileCase{"CodePage1252", "caf\xE9\r\n", {"caf\xC3\xA9"}},
                    FileCase{"NoComments", "# a tip\r\n", {"# a tip"}}),
    [](const auto& info) { return info.param.name; });

TEST(Tips, AMissingFileYieldsNoTips) {
    const TestFolder folder;
    Tips tips;
    tips.Load(folder / "missing.lst");
    for (int i = 0; i < 3; ++i) {
        tips.Next();
        EXPECT_EQ(tips.Current(), "");
        EXPECT_EQ(tips.Number(), 1);
    }
    tips.PickRandom(0.999);
    EXPECT_EQ(tips.Current(), "");
}

TEST(Tips, AFileThatCannotBeExaminedYieldsNoTips) {
    const TestFolder folder;
    for (const std::string& path : {folder / std::string(5000, 'x'), folder / std::string("a\0b", 3)}) {
        Tips tips;
        tips.Load(folder.Write("tips.lst", "one\r\n"));
        tips.Load(path);
        tips.Next();
        EXPECT_EQ(tips.Current(), "");
    }
}

TEST(Tips, AFileThatCannotBeReadRaisesItsError) {
    Tips tips;
    EXPECT_THROW(tips.Load("/proc/self/mem"), RunTimeError);
}

TEST(Tips, LoadingAgainReplacesTheTips) {
    const TestFolder folder;
    Tips tips;
    tips.Load(folder.Write("tips.lst", "one\r\ntwo\r\n"));
    tips.Load(folder.Write("tips.lst", "three\r\n"));
    tips.Next();
    EXPECT_EQ(tips.Current(), "three");
    tips.Next();
    EXPECT_EQ(tips.Current(), "three");
}

TEST(Tips, PicksEveryTipWithEqualProbability) {
    const TestFolder folder;
    Tips tips;
    tips.Load(folder.Write("tips.lst", "1\r\n2\r\n3\r\n4\r\n"));
    std::vector<int> counts(5);
    for (int i = 0; i < 1000; ++i) {
        tips.PickRandom(i / 1000.0);
        ++counts[static_cast<std::size_t>(tips.Number())];
    }
    EXPECT_EQ(counts, (std::vector<int>{0, 250, 250, 250, 250}));
    tips.PickRandom(0.0);
    EXPECT_EQ(tips.Current(), "1");
    tips.PickRandom(std::nextafter(1.0, 0.0));
    EXPECT_EQ(tips.Current(), "4");
    tips.Next();
    EXPECT_EQ(tips.Current(), "1");
}

} // namespace
} // namespace tunedex
