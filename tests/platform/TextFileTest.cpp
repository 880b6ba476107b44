#include "TextFile.h"

#include "FileSystem.h"
#include "OrdinaryUser.h"
#include "Pipe.h"
#include "Raises.h"
#include "TestFolder.h"
#include "UniqueFd.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <cstdint>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <optional>
#include <string>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>
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

// The binary form of an access-control list: version 2, then tag, permissions and id of each entry.
constexpr const char* kAccessList = "system.posix_acl_access";
constexpr const char* kDefaultList = "system.posix_acl_default";

std::string AccessList(const std::vector<std::array<std::uint32_t, 3>>& entries) {
    std::string bytes = {2, 0, 0, 0};
    for (const auto& [tag, rights, id] : entries) {
        for (const std::uint32_t part : {tag, rights}) {
            bytes += static_cast<char>(part & 0xFFU);
            bytes += static_cast<char>(part >> 8U);
        }
        for (unsigned shift = 0; shift < 32; shift += 8) {
            bytes += static_cast<char>((id >> shift) & 0xFFU);
        }
    }
    return bytes;
}

constexpr std::uint32_t kNoId = 0xFFFFFFFFU;

// user::rw-, user:12345:`named`, group::r--, mask::rw-, other::`other`
std::string ListNaming(std::uint32_t named, std::uint32_t other) {
    return AccessList(
        {{1, 6, kNoId}, {2, named, 12345}, {4, 4, kNoId}, {0x10, 6, kNoId}, {0x20, other, kNoId}});
}

bool SetAttribute(const std::string& path, const char* name, const std::string& value) {
    return setxattr(path.c_str(), name, value.data(), value.size(), 0) == 0;
}

std::optional<std::string> Attribute(const std::string& path, const char* name) {
    std::array<char, 1024> value{};
    const ssize_t size = getxattr(path.c_str(), name, value.data(), value.size());
    if (size < 0) {
        return std::nullopt;
    }
    return std::string(value.data(), static_cast<std::size_t>(size));
}

void MakeOld(const std::string& path, int hours) {
    const timespec time{std::time(nullptr) - hours * 3600L, 0};
    const std::array<timespec, 2> times = {time, time};
    ASSERT_EQ(utimensat(AT_FDCWD, path.c_str(), times.data(), 0), 0);
}

TEST(TextFile, EncodesTextInTheGivenEncoding) {
    const test::TestFolder folder;
    struct Row {
        TextEncoding encoding;
        const char* bytes;
    };
    const std::vector<Row> rows = {
        {TextEncoding::Windows1252References, "Caf\xE9 \x80 &#12354; \xFF\r\n"},
        {TextEncoding::Latin1References, "Caf\xE9 &#8364; &#12354; \xFF\r\n"},
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

TEST(TextFile, WritesRawBytesUnchangedInEveryEncoding) {
    const test::TestFolder folder;
    for (const TextEncoding encoding : {TextEncoding::Windows1252References, TextEncoding::Latin1References,
                                        TextEncoding::Windows1252Questions, TextEncoding::Utf8,
                                        TextEncoding::FileLine, TextEncoding::SettingsLine}) {
        TextFile file(folder / "f", encoding);
        file.WriteRaw("あé\xFF\n");
        file.Close();
        EXPECT_EQ(test::ReadBytes(folder / "f"), "あé\xFF\n");
    }
}

TEST(TextFile, ReplacesControlCharactersOfADocumentInPiecesOfAnySize) {
    const test::TestFolder folder;
    for (const std::size_t size : {std::size_t{1}, std::size_t{63}, std::size_t{100'000}}) {
        TextFile file(folder / "f", TextEncoding::Latin1References);
        const std::string plain(size, 'a');
        std::string expected = plain;
        expected.append(plain).append("&#65533;&#65533;").append(plain);
        file.Write(plain);
        file.Write(plain + "\x01");
        file.Write("\x7F" + plain);
        file.Close();
        EXPECT_EQ(test::ReadBytes(folder / "f"), expected);
    }
}

TEST(TextFile, EndsLinesWithCrLf) {
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

TEST(TextFile, KeepsTheOldFileUntilItIsClosed) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old and rather longer");
    TextFile file(path, TextEncoding::Utf8);
    file.Write("new");
    EXPECT_EQ(test::ReadBytes(path), "old and rather longer");
    file.Close();
    EXPECT_EQ(test::ReadBytes(path), "new");
    EXPECT_EQ(CountIn(folder.Path()), 1U) << "no other file is left in the folder";
}

TEST(TextFile, RemovesTheTemporaryFileWhenItIsNotClosed) {
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
    const test::Pipe pipe = test::MakePipe(O_CLOEXEC);
    const std::string link = "/proc/self/fd/" + std::to_string(pipe.writer.Get()); // like /dev/stdout
    ASSERT_EQ(symlink(link.c_str(), (folder / "link").c_str()), 0);
    for (const std::string& path : {link, folder / "link"}) {
        Save(path, "new");
        std::array<char, 9> bytes{};
        ASSERT_EQ(read(pipe.reader.Get(), bytes.data(), bytes.size()), 3);
        EXPECT_STREQ(bytes.data(), "new");
    }
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
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

TEST(TextFile, KeepsTheOwnerOfTheOldFile) {
    const test::TestFolder folder;
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can create a file owned by another user";
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

TEST(TextFile, CreatesANewFileWithPermissionsByTheUmask) {
    const test::TestFolder folder;
    test::InChild([&] {
        umask(027);
        Save(folder / "list.htm", "new");
        EXPECT_EQ(PermissionsOf(folder / "list.htm"), 0640U);
    });
}

TEST(TextFile, WritesInPlaceWhereTheFolderPermitsNoNewFile) {
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

TEST(TextFile, WritesInPlaceToAnotherUsersFileInAStickyFolder) {
    const test::TestFolder folder;
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can create a file owned by another user";
    }
    const std::string path = folder.Write("sticky/list.htm", "old and rather longer");
    test::AsOrdinaryUser(folder, [] {}); // chowns everything to the ordinary user
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

TEST(TextFile, SupportsTheLongestNamesOfTheFileSystem) {
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

TEST(TextFile, RaisesDiskFullFromAFullDevice) {
    EXPECT_EQ(test::RaisedBy([] { Save("/dev/full", "x"); }), 61);
    EXPECT_EQ(test::RaisedBy([] {
                  TextFile file("/dev/full", TextEncoding::Utf8);
                  file.Write(std::string(1'000'000, 'x'));
              }),
              61);
    EXPECT_TRUE(fs::is_character_file("/dev/full")) << "a device is never replaced by a file";
}

// The file size limit simulates a disk that fills up during the write.
TEST(TextFile, KeepsTheOldFileWhenAWriteFails) {
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
    EXPECT_EQ(test::RaisedBy([&] { Save(path, std::string(100'000, 'x')); }), 61) << "raised by Close()";
    EXPECT_EQ(test::ReadBytes(path), "old");
    EXPECT_EQ(CountIn(disk), 1U);
    EXPECT_EQ(umount(disk.c_str()), 0);
}

TEST(TextFile, RaisesTheErrorOfARenameThatFails) {
    const test::TestFolder folder;
    TextFile file(folder / "list.htm", TextEncoding::Utf8);
    file.Write("new");
    folder.Make("list.htm"); // another process was faster
    EXPECT_EQ(test::RaisedBy([&] { file.Close(); }), 75);
}

TEST(TextFile, AllowsTwoFilesInOneFolderAtATime) {
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

TEST(TextFile, NamesTheTemporaryFileSoThatTheWalkIgnoresIt) {
    const test::TestFolder folder;
    const TextFile file(folder / "list.htm", TextEncoding::Utf8);
    const std::vector<std::string> names = FileNamesIn(folder.Path());
    ASSERT_EQ(names.size(), 1U);
    EXPECT_EQ(names.front().front(), '.');
}

TEST(TextFile, KeepsTheAccessControlListOfTheOldFile) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old");
    ASSERT_EQ(chmod(path.c_str(), 0660), 0);
    const std::string list = ListNaming(6, 0);
    if (!SetAttribute(path, kAccessList, list)) {
        GTEST_SKIP() << "the file system has no access-control lists";
    }
    const unsigned mode = PermissionsOf(path);
    Save(path, "new");
    EXPECT_EQ(test::ReadBytes(path), "new");
    EXPECT_EQ(Attribute(path, kAccessList), list);
    EXPECT_EQ(PermissionsOf(path), mode);
}

TEST(TextFile, KeepsTheUserAttributesOfTheOldFile) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old");
    if (!SetAttribute(path, "user.tags", "music") || !SetAttribute(path, "user.empty", "")) {
        GTEST_SKIP() << "the file system has no user attributes";
    }
    Save(path, "new");
    EXPECT_EQ(test::ReadBytes(path), "new");
    EXPECT_EQ(Attribute(path, "user.tags"), "music");
    EXPECT_EQ(Attribute(path, "user.empty"), "");
}

TEST(TextFile, DoesNotGiveTheOldFileTheDefaultListOfItsFolder) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old");
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    if (!SetAttribute(folder.Path(), kDefaultList, ListNaming(6, 4))) {
        GTEST_SKIP() << "the file system has no access-control lists";
    }
    Save(path, "new");
    EXPECT_EQ(Attribute(path, kAccessList), std::nullopt);
    EXPECT_EQ(PermissionsOf(path), 0640U);
}

TEST(TextFile, CreatesANewFileWithTheDefaultListOfItsFolder) {
    const std::vector<std::string> lists = {
        ListNaming(6, 4),
        ListNaming(4, 0),
        ListNaming(7, 7),
        AccessList({{1, 6, kNoId}, {4, 0, kNoId}, {0x20, 0, kNoId}}), // equivalent to a mode
        AccessList({{1, 7, kNoId}, {4, 7, kNoId}, {0x20, 7, kNoId}}),
    };
    for (const std::string& list : lists) {
        const test::TestFolder folder;
        if (!SetAttribute(folder.Path(), kDefaultList, list)) {
            GTEST_SKIP() << "the file system has no access-control lists";
        }
        ASSERT_TRUE(UniqueFd(open((folder / "usual").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666)));
        Save(folder / "list.htm", "new");
        EXPECT_EQ(PermissionsOf(folder / "list.htm"), PermissionsOf(folder / "usual"));
        EXPECT_EQ(Attribute(folder / "list.htm", kAccessList), Attribute(folder / "usual", kAccessList));
    }
}

TEST(TextFile, TheTemporaryFileIsNoMoreReadableThanTheOldFile) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old");
    ASSERT_EQ(chmod(path.c_str(), 0600), 0);
    const TextFile file(path, TextEncoding::Utf8);
    for (const std::string& name : FileNamesIn(folder.Path())) {
        EXPECT_EQ(PermissionsOf(folder / name), 0600U) << name;
    }
}

TEST(TextFile, RemovesStaleTemporaryFiles) {
    const test::TestFolder folder;
    struct Row {
        const char* name;
        int hours;
        bool stays;
    };
    const std::vector<Row> rows = {
        {".tunedex-1-1.tmp", 25, false},     {".tunedex-99999-123.tmp", 1000, false},
        {".tunedex-1-2.tmp", 23, true},      {".tunedex-1-3.tmp", -48, true},
        {".tunedex-1.tmp", 1000, true},      {".tunedex--1.tmp", 1000, true},
        {".tunedex-1-x.tmp", 1000, true},    {".tunedex-1-1.tmp.bak", 1000, true},
        {"old.tunedex-1-1.tmp", 1000, true}, {".tunedex-1-1.TMP", 1000, true},
        {".tunedex-1-1-1.tmp", 1000, true},
    };
    for (const Row& row : rows) {
        MakeOld(folder.Write(row.name, "left"), row.hours);
    }
    folder.Write(".tunedex-2-1.tmp/inside", "x");
    MakeOld(folder / ".tunedex-2-1.tmp", 1000);
    MakeOld(folder.Write("elsewhere", "x"), 1000);
    ASSERT_EQ(symlink("elsewhere", (folder / ".tunedex-2-2.tmp").c_str()), 0);
    Save(folder / "list.htm", "new");
    for (const Row& row : rows) {
        EXPECT_EQ(folder.Exists(row.name), row.stays) << row.name;
    }
    EXPECT_TRUE(folder.Exists(".tunedex-2-1.tmp/inside"));
    EXPECT_TRUE(fs::is_symlink(folder / ".tunedex-2-2.tmp"));
}

TEST(TextFile, KeepsTheTemporaryFileOfARunThatIsStillWriting) {
    const test::TestFolder folder;
    TextFile slow(folder / "slow.htm", TextEncoding::Utf8);
    const std::vector<std::string> names = FileNamesIn(folder.Path());
    ASSERT_EQ(names.size(), 1U);
    MakeOld(folder / names.front(), 1000);
    Save(folder / "list.htm", "new");
    EXPECT_TRUE(folder.Exists(names.front()));
    slow.Close();
    EXPECT_TRUE(folder.Exists("slow.htm"));
}

TEST(TextFile, RemovesTemporaryFilesFromTheFolderBehindALink) {
    const test::TestFolder folder;
    folder.Write("real/list.htm", "old");
    MakeOld(folder.Write("real/.tunedex-1-1.tmp", "left"), 25);
    ASSERT_EQ(symlink("real/list.htm", (folder / "link").c_str()), 0);
    Save(folder / "link", "new");
    EXPECT_FALSE(folder.Exists("real/.tunedex-1-1.tmp"));
}

TEST(TextFile, RefusesALinkToATrack) {
    const test::TestFolder folder;
    folder.Make("music");
    for (const char* const name : {"a.mp3", "B.Mp3"}) {
        folder.Write(std::string("music/") + name, "audio");
    }
    for (const char* const target : {"music/a.mp3", "music/B.Mp3", "music/new.MP3", "chain"}) {
        fs::remove(folder / "list.htm");
        ASSERT_EQ(symlink(target, (folder / "list.htm").c_str()), 0);
        if (std::string_view(target) == "chain") {
            ASSERT_EQ(symlink("music/a.mp3", (folder / "chain").c_str()), 0);
        }
        EXPECT_EQ(test::RaisedBy([&] { Save(folder / "list.htm", "new"); }), 75) << target;
    }
    EXPECT_EQ(test::ReadBytes(folder / "music/a.mp3"), "audio");
    EXPECT_EQ(test::ReadBytes(folder / "music/B.Mp3"), "audio");
    EXPECT_EQ(CountIn(folder / "music"), 2U) << "the target of a dangling link is not created either";
}

TEST(TextFile, RemovesTheTargetOfADanglingLinkWhenItIsNotClosed) {
    const test::TestFolder folder;
    folder.Make("real");
    ASSERT_EQ(symlink("real/list.htm", (folder / "link").c_str()), 0);
    {
        TextFile file(folder / "link", TextEncoding::Utf8);
        file.Write("x");
    }
    EXPECT_EQ(CountIn(folder / "real"), 0U);
    test::InChild([&] {
        umask(027);
        Save(folder / "link", "new");
        EXPECT_EQ(PermissionsOf(folder / "real/list.htm"), 0640U);
    });
}

TEST(TextFile, DropsTheRestWhenTheStopTestEndsTheWaitForAFullFifo) {
    const test::TestFolder folder;
    ASSERT_EQ(mkfifo((folder / "list.htm").c_str(), 0666), 0);
    EXPECT_EQ(test::RaisedBy([&] { Save(folder / "list.htm", "x"); }), 57) << "the FIFO has no reader";
    const UniqueFd reader(open((folder / "list.htm").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    ASSERT_TRUE(reader);
    int asked = 0;
    TextFile file(folder / "list.htm", TextEncoding::Utf8, [&] { return ++asked == 3; });
    file.Write("small");
    EXPECT_FALSE(file.Stopped());
    file.Write(std::string(1'000'000, 'x'));
    EXPECT_TRUE(file.Stopped());
    EXPECT_EQ(asked, 3);
    file.Write(std::string(1'000'000, 'x'));
    file.Close();
    EXPECT_EQ(asked, 3);
    std::array<char, 6> first{};
    ASSERT_EQ(read(reader.Get(), first.data(), 5), 5);
    EXPECT_STREQ(first.data(), "small");
    EXPECT_TRUE(fs::is_fifo(folder / "list.htm"));
}

TEST(TextFile, WritesInPlaceWhenItsFolderCannotBeReachedByName) {
    const test::TestFolder folder;
    const std::string path = folder.Write("list.htm", "old and rather longer");
    const UniqueFd file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    ASSERT_TRUE(file);
    fs::remove(path); // still exists for processes that have it open
    Save("/proc/self/fd/" + std::to_string(file.Get()), "new");
    std::array<char, 9> bytes{};
    EXPECT_EQ(read(file.Get(), bytes.data(), bytes.size()), 3);
    EXPECT_STREQ(bytes.data(), "new");
    EXPECT_EQ(CountIn(folder.Path()), 0U);
}

TEST(TextFile, KeepsTheGroupWhenTheOwnerCannotBeKept) {
    const test::TestFolder folder;
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can create a file owned by another user";
    }
    const std::string path = folder.Write("open/list.htm", "old");
    ASSERT_EQ(chown(path.c_str(), 12345, 54321), 0);
    ASSERT_EQ(chmod(path.c_str(), 0666), 0);
    ASSERT_EQ(chmod((folder / "open").c_str(), 0777), 0);
    ASSERT_EQ(chmod(folder.Path().c_str(), 0755), 0);
    test::InChild([&] {
        const gid_t group = 54321;
        ASSERT_EQ(setgroups(1, &group), 0);
        ASSERT_EQ(setgid(65534), 0);
        ASSERT_EQ(setuid(65534), 0);
        Save(path, "new");
    });
    EXPECT_EQ(test::ReadBytes(path), "new");
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 65534U);
    EXPECT_EQ(status.st_gid, 54321U);
}

TEST(TextFile, WritesToAStreamThatIsOpenAlready) {
    const test::TestFolder folder;
    const std::string path = folder.Write("log", "before\n");
    UniqueFd stream(open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC));
    ASSERT_TRUE(stream);
    TextFile file(std::move(stream), TextEncoding::Windows1252Questions);
    file.Write("caf\u00e9 \u6771");
    file.Close();
    EXPECT_FALSE(file.Stopped());
    EXPECT_EQ(test::ReadBytes(path), "before\ncaf\xE9 ?");
    EXPECT_EQ(CountIn(folder.Path()), 1U);
}

TEST(TextFile, StopsWhereTheReaderOfAnOpenStreamHasGone) {
    std::signal(SIGPIPE, SIG_IGN);
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    close(ends[0]);
    TextFile file(UniqueFd(ends[1]), TextEncoding::Utf8);
    file.Write(std::string(100000, 'x'));
    EXPECT_TRUE(file.Stopped());
    file.Write(std::string(100000, 'x'));
    file.Close();
    EXPECT_TRUE(file.Stopped());
}

} // namespace
} // namespace tunedex
