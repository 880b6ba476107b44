#include "TextFile.h"

#include "FileSystem.h"
#include "OrdinaryUser.h"
#include "Raises.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tunedex {
namespace {

namespace fs = std::filesystem;

void Save(const std::string& path, std::string_view text, TextEncoding encoding = TextEncoding::Utf8) {
    TextFile file(path, encoding);
    file.Write(text);
    file.Close();
}

std::size_t CountIn(const std::string& folder) {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
}

unsigned PermissionsOf(const std::string& path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

TEST(TextFile, EncodesItsTextsAsItWasTold) {
    const test::TestFolder folder;
    struct Row {
        TextEncoding encoding;
        const char* bytes;
    };
    const std::vector<Row> rows = {
        {TextEncoding::Windows1252References, "Caf\xE9 \x80 &#12354; \xFF\r\n"},
        {TextEncoding::Windows1252Questions, "Caf\xE9 \x80 ? \xFF\r\n"},
        {TextEncoding::Utf8, "Café € あ \xFF\r\n"},
        {TextEncoding::FileLine, "Café € あ \xFF\r\n"},
        {TextEncoding::SettingsLine, "Café € あ \xED\xB3\xBF\r\n"},
    };
    for (const Row& row : rows) {
        TextFile file(folder / "f", row.encoding);
        file.WriteLine("Café € あ \xFF");
        file.Close();
        EXPECT_EQ(test::ReadBytes(folder / "f"), row.bytes) << static_cast<int>(row.encoding);
    }
    TextFile file(folder / "f", TextEncoding::FileLine);
    file.WriteLine("Café");
    file.WriteLine("あé");
    file.Close();
    EXPECT_EQ(test::ReadBytes(folder / "f"), "Caf\xE9\r\nあé\r\n");
}

TEST(TextFile, WritesRawBytesAsTheyAreInEveryEncoding) {
    const test::TestFolder folder;
    for (const TextEncoding encoding :
         {TextEncoding::Windows1252References, TextEncoding::Windows1252Questions, TextEncoding::Utf8,
          TextEncoding::FileLine, TextEncoding::SettingsLine}) {
        TextFile file(folder / "f", encoding);
        file.WriteRaw("あé\xFF\n");
        file.Close();
        EXPECT_EQ(test::ReadBytes(folder / "f"), "あé\xFF\n");
    }
}

TEST(TextFile, EndsLinesWithCrLfAndAddsNothingElse) {
    const test::TestFolder folder;
    TextFile file(folder / "f", TextEncoding::Utf8);
    file.WriteLine("a");
    file.Write("b");
    file.WriteLine("");
    file.Write("c");
    file.Close();
    EXPECT_EQ(test::ReadBytes(folder / "f"), "a\r\nb\r\nc");
}

TEST(TextFile, WritesMoreThanItsBufferHolds) {
    const test::TestFolder folder;
    std::string expected;
    TextFile file(folder / "f", TextEncoding::Windows1252Questions);
    for (int i = 0; i < 20000; ++i) {
        const std::string line = "line " + std::to_string(i) + " with some length to it";
        file.WriteLine(line);
        expected += line + "\r\n";
    }
    const std::string big(1'000'000, 'x');
    file.Write(big);
    file.Close();
    EXPECT_EQ(test::ReadBytes(folder / "f"), expected + big);
}

TEST(TextFile, LeavesTheOldFileInPlaceUntilItIsClosed) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old and rather longer");
    TextFile file(path, TextEncoding::Utf8);
    file.Write("new");
    EXPECT_EQ(test::ReadBytes(path), "old and rather longer");
    file.Close();
    EXPECT_EQ(test::ReadBytes(path), "new");
    EXPECT_EQ(CountIn(folder.Path()), 1U) << "nothing else stays in the folder";
}

TEST(TextFile, RemovesWhatWasWrittenAsideWhenItIsNotClosed) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old");
    {
        TextFile file(path, TextEncoding::Utf8);
        file.Write(std::string(1'000'000, 'x'));
        EXPECT_EQ(CountIn(folder.Path()), 2U);
    }
    EXPECT_EQ(test::ReadBytes(path), "old");
    {
        TextFile file(folder / "new.htm", TextEncoding::Utf8);
        file.Write("x");
    }
    EXPECT_EQ(CountIn(folder.Path()), 1U);
}

TEST(TextFile, FollowsSymbolicLinksToTheRealFile) {
    const test::TestFolder folder;
    folder.Write("real/list.htm", "old");
    folder.Make("links");
    ASSERT_EQ(symlink("../real/list.htm", (folder / "links/one").c_str()), 0);
    ASSERT_EQ(symlink((folder / "links/one").c_str(), (folder / "links/two").c_str()), 0);
    Save(folder / "links/two", "new");
    EXPECT_EQ(test::ReadBytes(folder / "real/list.htm"), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "links/one"));
    EXPECT_TRUE(fs::is_symlink(folder / "links/two"));
    EXPECT_EQ(CountIn(folder / "links"), 2U);
}

TEST(TextFile, CreatesTheFileThatADanglingLinkNames) {
    const test::TestFolder folder;
    folder.Make("real");
    ASSERT_EQ(symlink("real/list.htm", (folder / "link").c_str()), 0);
    Save(folder / "link", "new");
    EXPECT_EQ(test::ReadBytes(folder / "real/list.htm"), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

TEST(TextFile, WritesThroughALinkToAPipe) {
    const test::TestFolder folder;
    std::array<int, 2> pipe{};
    ASSERT_EQ(pipe2(pipe.data(), O_CLOEXEC), 0);
    const std::string link = "/proc/self/fd/" + std::to_string(pipe[1]); // as /dev/stdout
    ASSERT_EQ(symlink(link.c_str(), (folder / "link").c_str()), 0);
    for (const std::string& path : {link, folder / "link"}) {
        Save(path, "new");
        std::array<char, 9> bytes{};
        ASSERT_EQ(read(pipe[0], bytes.data(), bytes.size()), 3);
        EXPECT_STREQ(bytes.data(), "new");
    }
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    close(pipe[0]);
    close(pipe[1]);
}

TEST(TextFile, KeepsTheOldFilesPermissions) {
    const test::TestFolder folder;
    for (const unsigned mode : {0600U, 0640U, 0664U, 0777U}) {
        const std::string path = folder.Write("list.htm", "old");
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
        Save(path, "new");
        EXPECT_EQ(test::ReadBytes(path), "new");
        EXPECT_EQ(PermissionsOf(path), mode);
    }
}

TEST(TextFile, LeavesTheOldFileToItsOwner) {
    const test::TestFolder folder;
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make a file of another user's";
    }
    const std::string path = folder.Write("list.htm", "old");
    ASSERT_EQ(chown(path.c_str(), 65534, 65533), 0);
    Save(path, "new");
    EXPECT_EQ(test::ReadBytes(path), "new");
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 65534U);
    EXPECT_EQ(status.st_gid, 65533U);
}

TEST(TextFile, GivesANewFileThePermissionsThatTheUserMaskLeaves) {
    const test::TestFolder folder;
    test::InChild([&] {
        umask(027);
        Save(folder / "list.htm", "new");
        EXPECT_EQ(PermissionsOf(folder / "list.htm"), 0640U);
    });
}

TEST(TextFile, WritesInPlaceWhereTheFolderTakesNoNewFile) {
    const test::TestFolder folder;
    const std::string path = folder.Write("closed/list.htm", "old and rather longer");
    test::AsOrdinaryUser(folder, [&] {
        ASSERT_EQ(chmod((folder / "closed").c_str(), 0555), 0);
        Save(path, "new");
        EXPECT_EQ(test::ReadBytes(path), "new");
        EXPECT_EQ(test::RaisedBy([&] { Save(folder / "closed/other.htm", "new"); }), 75);
        EXPECT_EQ(CountIn(folder / "closed"), 1U);
    });
}

TEST(TextFile, WritesInPlaceWhereTheFolderLetsNobodyReplaceAnothersFile) {
    const test::TestFolder folder;
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make a file of another user's";
    }
    const std::string path = folder.Write("sticky/list.htm", "old and rather longer");
    test::AsOrdinaryUser(folder, [] {}); // everything is the ordinary user's now
    ASSERT_EQ(chown((folder / "sticky").c_str(), 0, 0), 0);
    ASSERT_EQ(chmod((folder / "sticky").c_str(), 01777), 0);
    ASSERT_EQ(chown(path.c_str(), 0, 0), 0);
    ASSERT_EQ(chmod(path.c_str(), 0666), 0);
    test::InChild([&] {
        ASSERT_EQ(setgid(65534), 0);
        ASSERT_EQ(setuid(65534), 0);
        Save(path, "new");
        EXPECT_EQ(test::ReadBytes(path), "new");
        EXPECT_EQ(CountIn(folder / "sticky"), 1U);
    });
}

TEST(TextFile, NeverReplacesAFileThatTheUserMayNotWrite) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old");
    test::AsOrdinaryUser(folder, [&] {
        ASSERT_EQ(chmod(path.c_str(), 0444), 0);
        EXPECT_EQ(test::RaisedBy([&] { Save(path, "new"); }), 75);
        EXPECT_EQ(test::ReadBytes(path), "old");
        EXPECT_EQ(CountIn(folder.Path()), 1U);
    });
}

TEST(TextFile, TakesNamesAsLongAsTheFileSystemDoes) {
    const test::TestFolder folder;
    const std::string path = folder / (std::string(251, 'n') + ".htm");
    Save(path, "new");
    EXPECT_EQ(test::ReadBytes(path), "new");
    Save(path, "newer");
    EXPECT_EQ(test::ReadBytes(path), "newer");
    EXPECT_EQ(test::RaisedBy([&] { Save(folder / (std::string(252, 'n') + ".htm"), "new"); }), 52);
    EXPECT_EQ(CountIn(folder.Path()), 1U);
}

TEST(TextFile, RaisesTheErrorOfAnImpossiblePath) {
    const test::TestFolder folder;
    folder.Write("file", "x");
    ASSERT_EQ(symlink("self", (folder / "self").c_str()), 0);
    const std::vector<std::pair<std::string, int>> rows = {
        {folder / "none/list.htm", 76}, {folder / "file/list.htm", 76}, {folder.Make("folder"), 75},
        {folder / "folder/", 75},       {folder / "self", 52},          {"", 76},
        {std::string("a\0b", 3), 52},
    };
    for (const auto& [path, number] : rows) {
        EXPECT_EQ(test::RaisedBy([&path = path] { Save(path, "x"); }), number) << path;
    }
}

TEST(TextFile, WritesABareNameIntoTheCurrentFolder) {
    const test::TestFolder folder;
    test::InChild([&] {
        ASSERT_EQ(chdir(folder.Path().c_str()), 0);
        Save("list.htm", "new");
    });
    EXPECT_EQ(test::ReadBytes(folder / "list.htm"), "new");
    EXPECT_EQ(CountIn(folder.Path()), 1U);
}

TEST(TextFile, RaisesDiskFullFromADeviceThatHoldsNothing) {
    EXPECT_EQ(test::RaisedBy([] { Save("/dev/full", "x"); }), 61);
    EXPECT_EQ(test::RaisedBy([] {
                  TextFile file("/dev/full", TextEncoding::Utf8);
                  file.Write(std::string(1'000'000, 'x'));
              }),
              61);
    EXPECT_TRUE(fs::is_character_file("/dev/full")) << "a device is never replaced by a file";
}

// Stands for a disk that fills up half-way: the system stops the file at that length.
TEST(TextFile, KeepsTheOldFileWhenAWriteFailsHalfWay) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old");
    test::InChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{300'000, 300'000};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
        EXPECT_EQ(test::RaisedBy([&] { Save(path, std::string(1'000'000, 'x')); }), 57);
        EXPECT_EQ(test::ReadBytes(path), "old");
        EXPECT_EQ(CountIn(folder.Path()), 1U);
    });
}

TEST(TextFile, KeepsTheOldFileWhenTheDiskIsFull) {
    const test::TestFolder folder;
    const std::string disk = folder.Make("disk");
    if (mount("none", disk.c_str(), "tmpfs", MS_NOSUID, "size=64k") != 0) {
        GTEST_SKIP() << "a small disk cannot be mounted here";
    }
    const std::string path = folder.Write("disk/list.htm", "old");
    EXPECT_EQ(test::RaisedBy([&] { Save(path, std::string(1'000'000, 'x')); }), 61);
    EXPECT_EQ(test::RaisedBy([&] { Save(path, std::string(100'000, 'x')); }), 61) << "told at the close";
    EXPECT_EQ(test::ReadBytes(path), "old");
    EXPECT_EQ(CountIn(disk), 1U);
    EXPECT_EQ(umount(disk.c_str()), 0);
}

TEST(TextFile, RaisesTheErrorOfARenameThatFails) {
    const test::TestFolder folder;
    TextFile file(folder / "list.htm", TextEncoding::Utf8);
    file.Write("new");
    folder.Make("list.htm"); // someone was quicker
    EXPECT_EQ(test::RaisedBy([&] { file.Close(); }), 75);
}

TEST(TextFile, LetsTwoFilesOfOneFolderBeWrittenAtATime) {
    const test::TestFolder folder;
    TextFile one(folder / "one", TextEncoding::Utf8);
    TextFile two(folder / "two", TextEncoding::Utf8);
    one.Write("1");
    two.Write("2");
    two.Close();
    one.Close();
    EXPECT_EQ(test::ReadBytes(folder / "one"), "1");
    EXPECT_EQ(test::ReadBytes(folder / "two"), "2");
}

TEST(TextFile, HidesWhatItWritesAsideFromTheWalk) {
    const test::TestFolder folder;
    const TextFile file(folder / "list.mp3", TextEncoding::Utf8);
    const std::vector<std::string> names = FileNamesIn(folder.Path());
    ASSERT_EQ(names.size(), 1U);
    EXPECT_EQ(names.front().front(), '.');
}

} // namespace
} // namespace tunedex
