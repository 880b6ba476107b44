#include "LogFile.h"

#include "OrdinaryUser.h"
#include "Raises.h"
#include "TestFolder.h"
#include "UniqueFd.h"

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace tunedex {
namespace {

TEST(LogFile, TruncatesTheOldLogWhenItIsOpened) {
    const test::TestFolder folder;
    const std::string path = folder.Write("Tunedex.log", "old\r\n");
    LogFile log(path);
    EXPECT_EQ(test::ReadBytes(path), "");
}

TEST(LogFile, WritesEachLineAtOnceEndedByCrLf) {
    const test::TestFolder folder;
    LogFile log(folder / "Tunedex.log");
    log.WriteLine("one");
    EXPECT_EQ(test::ReadBytes(folder / "Tunedex.log"), "one\r\n");
    log.WriteLine("");
    log.WriteLine("two");
    log.Close();
    EXPECT_EQ(test::ReadBytes(folder / "Tunedex.log"), "one\r\n\r\ntwo\r\n");
}

TEST(LogFile, EncodesEachLineSeparately) {
    const test::TestFolder folder;
    LogFile log(folder / "Tunedex.log");
    log.WriteLine("Café");
    log.WriteLine("あ é");
    log.WriteLine("Ã©");
    log.WriteLine("stray \xE9");
    EXPECT_EQ(test::ReadBytes(folder / "Tunedex.log"), "Caf\xE9\r\nあ é\r\nÃ©\r\nstray \xE9\r\n");
}

TEST(LogFile, WritesABlankForALineBreakWithinALine) {
    const test::TestFolder folder;
    LogFile log(folder / "Tunedex.log");
    log.WriteLine("a\nb\rc\r\nd");
    EXPECT_EQ(test::ReadBytes(folder / "Tunedex.log"), "a b c  d\r\n");
}

TEST(LogFile, RaisesTheErrorOfALogThatCannotBeOpened) {
    const test::TestFolder folder;
    EXPECT_EQ(test::RaisedBy([&] { LogFile log(folder / "none/Tunedex.log"); }), 76);
    EXPECT_EQ(test::RaisedBy([&] { LogFile log(folder.Make("folder")); }), 75);
    test::AsOrdinaryUser(folder, [&] {
        const std::string path = folder.Write("Tunedex.log", "old");
        ASSERT_EQ(chmod(path.c_str(), 0444), 0);
        EXPECT_EQ(test::RaisedBy([&] { LogFile log(path); }), 75);
        EXPECT_EQ(test::ReadBytes(path), "old");
    });
}

TEST(LogFile, RaisesDiskFullWhenALineDoesNotFit) {
    LogFile log("/dev/full");
    EXPECT_EQ(test::RaisedBy([&] { log.WriteLine("x"); }), 61);
}

TEST(LogFile, RefusesAFifoWithoutAReaderAtOnce) {
    const test::TestFolder folder;
    ASSERT_EQ(mkfifo((folder / "Tunedex.log").c_str(), 0666), 0);
    EXPECT_EQ(test::RaisedBy([&] { LogFile log(folder / "Tunedex.log"); }), 57);
}

TEST(LogFile, DropsTheRestWhenTheStopTestEndsTheWaitForAFullFifo) {
    const test::TestFolder folder;
    const std::string path = folder / "Tunedex.log";
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    const UniqueFd reader(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    ASSERT_TRUE(reader);
    int asked = 0;
    LogFile log(path, [&] { return ++asked > 2; });
    const std::string line(1000, 'x');
    int lines = 0;
    while (asked == 0) {
        log.WriteLine(line);
        ++lines;
    }
    EXPECT_GT(lines, 2);
    EXPECT_EQ(asked, 3) << "polled during the wait";
    log.WriteLine(line);
    EXPECT_EQ(asked, 3) << "no further writes and no waits";
    log.Close();
    std::array<char, 1002> first{};
    ASSERT_EQ(read(reader.Get(), first.data(), first.size()), 1002);
    EXPECT_EQ(std::string(first.data(), first.size()), line + "\r\n");
}

} // namespace
} // namespace tunedex
