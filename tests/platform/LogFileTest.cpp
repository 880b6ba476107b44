#include "LogFile.h"

#include "OrdinaryUser.h"
#include "Raises.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace tunedex {
namespace {

TEST(LogFile, EmptiesTheOldLogWhenItIsOpened) {
    const test::TestFolder folder;
    const std::string path = folder.Write("Tunedex.log", "old\r\n");
    LogFile log(path);
    EXPECT_EQ(test::ReadBytes(path), "");
}

TEST(LogFile, PutsEachLineOnDiskAtOnceEndedByCrLf) {
    const test::TestFolder folder;
    LogFile log(folder / "Tunedex.log");
    log.WriteLine("one");
    EXPECT_EQ(test::ReadBytes(folder / "Tunedex.log"), "one\r\n");
    log.WriteLine("");
    log.WriteLine("two");
    log.Close();
    EXPECT_EQ(test::ReadBytes(folder / "Tunedex.log"), "one\r\n\r\ntwo\r\n");
}

TEST(LogFile, EncodesEachLineForItself) {
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

TEST(LogFile, RaisesDiskFullForALineThatFindsNoRoom) {
    LogFile log("/dev/full");
    EXPECT_EQ(test::RaisedBy([&] { log.WriteLine("x"); }), 61);
}

} // namespace
} // namespace tunedex
