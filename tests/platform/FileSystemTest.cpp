#include "FileSystem.h"

#include "OrdinaryUser.h"
#include "Pipe.h"
#include "Raises.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tunedex {
namespace {

class FileSystemTest : public testing::Test {
  protected:
    FileSystemTest() {
        folder_.Make("folder");
        folder_.Write("file", "x");
        EXPECT_EQ(symlink("folder", (folder_ / "to-folder").c_str()), 0);
        EXPECT_EQ(symlink("file", (folder_ / "to-file").c_str()), 0);
        EXPECT_EQ(symlink("nowhere", (folder_ / "dangling").c_str()), 0);
        EXPECT_EQ(symlink("self", (folder_ / "self").c_str()), 0);
    }

    const test::TestFolder folder_;
};

TEST_F(FileSystemTest, DistinguishesFoldersFilesAndMissingPaths) {
    EXPECT_TRUE(FolderExists(folder_ / "folder"));
    EXPECT_TRUE(FolderExists(folder_ / "folder/"));
    EXPECT_TRUE(FolderExists(folder_ / "to-folder"));
    EXPECT_TRUE(FolderExists("/"));
    for (const char* name : {"file", "to-file", "dangling", "none", "none/below", "file/below"}) {
        EXPECT_FALSE(FolderExists(folder_ / name)) << name;
    }
    EXPECT_TRUE(FileExists(folder_ / "file"));
    EXPECT_TRUE(FileExists(folder_ / "to-file"));
    for (const char* name : {"folder", "to-folder", "dangling", "none", "file/below"}) {
        EXPECT_FALSE(FileExists(folder_ / name)) << name;
    }
    EXPECT_FALSE(FileExists(""));
    EXPECT_EQ(test::RaisedBy([&] { FileExists(std::string("a\0b", 3)); }), 52);
}

TEST_F(FileSystemTest, AnEmptyPathIsTheCurrentFolder) {
    EXPECT_TRUE(FolderExists(""));
}

TEST_F(FileSystemTest, AFailedFolderTestRaisesErrorFiftyTwo) {
    EXPECT_EQ(test::RaisedBy([&] { FolderExists(folder_ / "self"); }), 52);
    EXPECT_EQ(test::RaisedBy([&] { FolderExists(folder_ / std::string(256, 'n')); }), 52);
    EXPECT_EQ(test::RaisedBy([&] { FolderExists(std::string("a\0b", 3)); }), 52);
    test::AsOrdinaryUser(folder_, [&] {
        folder_.Make("closed/inner");
        ASSERT_EQ(chmod((folder_ / "closed").c_str(), 0), 0);
        EXPECT_TRUE(FolderExists(folder_ / "closed"));
        EXPECT_EQ(test::RaisedBy([&] { FolderExists(folder_ / "closed/inner"); }), 52);
        EXPECT_EQ(test::RaisedBy([&] { FileExists(folder_ / "closed/inner"); }), 75);
    });
}

TEST_F(FileSystemTest, CreatesOneFolderAtATime) {
    CreateFolder(folder_ / "new/");
    EXPECT_TRUE(FolderExists(folder_ / "new"));
    EXPECT_EQ(test::RaisedBy([&] { CreateFolder(folder_ / "a/b"); }), 76);
    EXPECT_EQ(test::RaisedBy([&] { CreateFolder(folder_ / "file/b"); }), 76);
    EXPECT_EQ(test::RaisedBy([&] { CreateFolder(folder_ / std::string(256, 'n')); }), 52);
    EXPECT_EQ(test::RaisedBy([&] { CreateFolder(std::string("a\0b", 3)); }), 52);
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_EQ(chmod((folder_ / "folder").c_str(), 0555), 0);
        EXPECT_EQ(test::RaisedBy([&] { CreateFolder(folder_ / "folder/new"); }), 75);
    });
}

TEST_F(FileSystemTest, CreatesEveryMissingParentFolder) {
    CreateFolders(folder_ / "folder/one/two/three/");
    EXPECT_TRUE(FolderExists(folder_ / "folder/one/two/three"));
    CreateFolders(folder_ / "folder/one/two/"); // all exist
    CreateFolders(folder_ / "to-folder/one/four/");
    EXPECT_TRUE(FolderExists(folder_ / "folder/one/four"));
    EXPECT_EQ(test::RaisedBy([&] { CreateFolders(folder_ / "file/below/"); }), 57) << "a file is in the way";
}

TEST_F(FileSystemTest, DeletesAFileAndRaisesAnErrorForAMissingOne) {
    DeleteFile(folder_ / "file");
    EXPECT_FALSE(folder_.Exists("file"));
    EXPECT_EQ(test::RaisedBy([&] { DeleteFile(folder_ / "file"); }), 53);
    EXPECT_EQ(test::RaisedBy([&] { DeleteFile(folder_ / "folder"); }), 75);
    EXPECT_EQ(test::RaisedBy([&] { DeleteFile(folder_ / std::string("to-file\0x", 9)); }), 52);
    EXPECT_TRUE(folder_.Exists("to-file")) << "a name is not truncated at a zero byte";
}

TEST_F(FileSystemTest, ListsTheFilesOfAFolderIncludingLinksToFiles) {
    folder_.Write(".hidden", "x");
    ASSERT_EQ(mkfifo((folder_ / "fifo").c_str(), 0600), 0);
    std::vector<std::string> names = FileNamesIn(folder_.Path());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{".hidden", "file", "to-file"}));
    EXPECT_TRUE(FileNamesIn(folder_ / "folder").empty());
    EXPECT_TRUE(FileNamesIn(folder_ / "none").empty());
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_EQ(chmod((folder_ / "folder").c_str(), 0), 0);
        EXPECT_EQ(test::RaisedBy([&] { FileNamesIn(folder_ / "folder"); }), 75);
        // A folder with read but without search permission: names can be read, their files not examined.
        folder_.Write("names only/file", "x");
        ASSERT_EQ(chmod((folder_ / "names only").c_str(), 0444), 0);
        EXPECT_EQ(test::RaisedBy([&] { FileNamesIn(folder_ / "names only"); }), 75);
    });
}

TEST_F(FileSystemTest, TestsWhetherTheUserMayCreateFilesInAFolder) {
    EXPECT_FALSE(FolderIsWritable(folder_ / "none"));
    test::AsOrdinaryUser(folder_, [&] {
        EXPECT_TRUE(FolderIsWritable(folder_ / "folder"));
        ASSERT_EQ(chmod((folder_ / "folder").c_str(), 0555), 0);
        EXPECT_FALSE(FolderIsWritable(folder_ / "folder"));
        ASSERT_EQ(chmod((folder_ / "folder").c_str(), 0666), 0);
        EXPECT_FALSE(FolderIsWritable(folder_ / "folder"));
    });
}

TEST_F(FileSystemTest, FindsTheRunningProgramAndItsFolder) {
    const std::string program = RunningProgram();
    EXPECT_TRUE(std::filesystem::equivalent(program, "/proc/self/exe"));
    EXPECT_EQ(RunningProgramFolder() + "platform_test", program);
}

TEST(WriteWhole, WaitsForTheReaderOfAFullPipe) {
    const test::Pipe pipe = test::MakePipe(O_CLOEXEC | O_NONBLOCK);
    const std::string bytes(1'000'000, 'x');
    std::size_t got = 0;
    std::vector<char> buffer(65536);
    const auto readSome = [&] {
        const ssize_t count = read(pipe.reader.Get(), buffer.data(), buffer.size());
        got += count > 0 ? static_cast<std::size_t>(count) : 0;
        return false;
    };
    EXPECT_TRUE(WriteWhole(pipe.writer.Get(), bytes, readSome));
    for (std::size_t before = got + 1; got != before;) {
        before = got;
        readSome();
    }
    EXPECT_EQ(got, bytes.size());
}

TEST(WriteWhole, StopsWaitingWhenTheStopTestReturnsTrue) {
    test::Pipe pipe = test::MakePipe(O_CLOEXEC | O_NONBLOCK);
    int asked = 0;
    EXPECT_FALSE(WriteWhole(pipe.writer.Get(), std::string(1'000'000, 'x'), [&] { return ++asked == 3; }));
    EXPECT_EQ(asked, 3);
    EXPECT_FALSE(WriteWhole(pipe.writer.Get(), "x", [] { return true; })) << "without waiting";
    pipe.reader.Reset();
    EXPECT_EQ(test::RaisedBy([&] {
                  std::signal(SIGPIPE, SIG_IGN);
                  WriteWhole(pipe.writer.Get(), "x");
              }),
              57);
    EXPECT_FALSE(WriteWhole(pipe.writer.Get(), "x", {}, BrokenPipe::Stops));
}

TEST_F(FileSystemTest, MakesPathsAbsoluteWithoutFollowingLinks) {
    const std::string home = folder_.Path();
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(home);
    const std::string here = std::filesystem::current_path().string() + "/";
    folder_.Make("deep/inner");
    ASSERT_EQ(symlink("deep/inner", (folder_ / "link").c_str()), 0);
    const struct {
        std::string path;
        std::string absolute;
    } rows[] = {
        {".", here.substr(0, here.size() - 1)},
        {"file", here + "file"},
        {"./folder//", here + "folder"},
        {"missing/a.htm", here + "missing/a.htm"},
        {"folder/../file", here + "file"},
        {"missing/../file", here + "file"},
        {"link/a.mp3", here + "link/a.mp3"},
        {"link/../b.mp3", here + "deep/b.mp3"},
        {"to-folder/..", here.substr(0, here.size() - 1)},
        {"dangling/../x", here + "x"},
        {"/", "/"},
        {"/../..", "/"},
        {"/a/./b/", "/a/b"},
        {"a\xFF\nb", here + "a\xFF\nb"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(AbsolutePath(row.path), row.absolute) << row.path;
    }
    std::filesystem::current_path(before);
}

} // namespace
} // namespace tunedex
