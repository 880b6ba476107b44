#include "FolderWalk.h"

#include "FileRights.h"
#include "RunTimeError.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <dirent.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tunedex {
namespace {

namespace fs = std::filesystem;
using test::TestFolder;

class Recorder final : public WalkVisitor {
  public:
    void OnFile(const std::shared_ptr<OpenFolder>& folder, const char* name) override {
        files.push_back(folder->Path() + name);
        bases.push_back(folder->BaseFolder());
    }
    bool AfterEntry() override { return ++entries != stopAt; }
    bool ReleaseFolders() override { return false; }

    std::vector<std::string> files;
    std::vector<std::string> bases;
    int entries = 0;
    int stopAt = 0;
};

std::vector<std::string> Walk(const std::string& folder, bool recurse,
                              FolderWalk::Preload preload = FolderWalk::Preload::Never) {
    Recorder recorder;
    FolderWalk walk(preload);
    const auto starts = StartFolders(folder, PathStyle::Unix());
    EXPECT_EQ(starts.size(), 1U);
    EXPECT_TRUE(walk.Run(starts.front(), recurse, recorder));
    return recorder.files;
}

std::vector<std::string> Without(std::vector<std::string> files, const std::string& prefix) {
    for (std::string& file : files) {
        EXPECT_TRUE(file.starts_with(prefix)) << file;
        file.erase(0, prefix.size());
    }
    return files;
}

std::vector<std::string> SortedNames(std::vector<std::string> files) {
    std::sort(files.begin(), files.end());
    return files;
}

// The required order, by recursion over the names in directory order.
void ExpectedWalk(const std::string& folder, std::vector<std::string>& files) {
    std::vector<std::string> folders;
    DIR* const stream = opendir(folder.c_str());
    ASSERT_NE(stream, nullptr);
    while (const dirent* entry = readdir(stream)) {
        const std::string name = entry->d_name;
        if (name.front() == '.') {
            continue;
        }
        if (fs::is_directory(folder + name)) {
            folders.push_back(folder + name + "/");
        } else if (name.size() >= 4 && strcasecmp(name.c_str() + name.size() - 4, ".mp3") == 0) {
            files.push_back(folder + name);
        }
    }
    closedir(stream);
    for (auto sub = folders.rbegin(); sub != folders.rend(); ++sub) {
        ExpectedWalk(*sub, files);
    }
}

TEST(FolderWalk, VisitsFilesInDirectoryOrderAndSiblingsInReverse) {
    const TestFolder folder;
    for (const char* sub :
         {"", "A/", "B/", "C/", "A/x/", "A/y/", "A/x/deep/", "B/z/", "C/one/", "C/two/", "C/three/"}) {
        for (const char* name : {"3.mp3", "1.mp3", "2.mp3", "note.txt"}) {
            folder.Write(std::string(sub) + name, "");
        }
    }
    std::vector<std::string> expected;
    ExpectedWalk(folder.Path(), expected);
    ASSERT_EQ(expected.size(), 33U);
    EXPECT_EQ(Walk(folder.Path(), true), expected);
}

TEST(FolderWalk, VisitsAFoldersOwnFilesBeforeThoseOfItsSubfolders) {
    const TestFolder folder;
    folder.Write("a/x.mp3", "");
    folder.Write("b.mp3", "");
    EXPECT_EQ(Without(Walk(folder.Path(), true), folder.Path()),
              (std::vector<std::string>{"b.mp3", "a/x.mp3"}));
}

TEST(FolderWalk, StaysInTheFolderWithoutRecursion) {
    const TestFolder folder;
    folder.Write("a/x.mp3", "");
    folder.Write("b.mp3", "");
    EXPECT_EQ(Without(Walk(folder.Path(), false), folder.Path()), std::vector<std::string>{"b.mp3"});
}

TEST(FolderWalk, MatchesMp3FilesByExtensionInAnyCase) {
    const TestFolder folder;
    for (const char* name : {"song.Mp3", "SONG.MP3", "song.mp3", "a.b.mP3", "song.mp3.bak", "song.mp2",
                             "song.mp33", "songmp3", "mp3", "song.mp3 ", "x.m3u"}) {
        folder.Write(name, "");
    }
    EXPECT_EQ(SortedNames(Without(Walk(folder.Path(), false), folder.Path())),
              (std::vector<std::string>{"SONG.MP3", "a.b.mP3", "song.Mp3", "song.mp3"}));
}

TEST(FolderWalk, SkipsHiddenAndSpecialFiles) {
    const TestFolder folder;
    folder.Write(".hidden.mp3", "");
    folder.Write(".mp3", "");
    folder.Write("..mp3", "");
    folder.Write(".folder/a.mp3", "");
    folder.Write("a.mp3", "");
    ASSERT_EQ(mkfifo((folder / "fifo.mp3").c_str(), 0600), 0);
    fs::create_symlink("nowhere", folder / "dangling.mp3");
    fs::create_symlink("loop.mp3", folder / "loop.mp3");
    fs::create_symlink("fifo.mp3", folder / "to fifo.mp3");
    fs::create_symlink("/dev/null", folder / "device.mp3");
    for (const bool recurse : {false, true}) {
        EXPECT_EQ(Without(Walk(folder.Path(), recurse), folder.Path()), std::vector<std::string>{"a.mp3"});
    }
}

TEST(FolderWalk, FollowsLinksToFilesAndFolders) {
    const TestFolder folder;
    folder.Write("elsewhere/a.mp3", "");
    folder.Make("start");
    fs::create_symlink("../elsewhere/a.mp3", folder / "start/link.mp3");
    fs::create_symlink("../elsewhere", folder / "start/folder");
    EXPECT_EQ(Without(Walk(folder / "start", true), folder / "start/"),
              (std::vector<std::string>{"link.mp3", "folder/a.mp3"}));
    EXPECT_EQ(Without(Walk(folder / "start", false), folder / "start/"),
              std::vector<std::string>{"link.mp3"});
}

TEST(FolderWalk, WalksAFolderReachedByLinksOnce) {
    const TestFolder folder;
    folder.Write("a/x.mp3", "");
    folder.Write("top.mp3", "");
    fs::create_symlink("..", folder / "a/up");
    fs::create_symlink("a", folder / "also a");
    fs::create_symlink(".", folder / "self");
    const auto files = Walk(folder.Path(), true);
    EXPECT_EQ(files.size(), 2U) << testing::PrintToString(files);
}

TEST(FolderWalk, WalksAFolderAgainForAnotherStartFolder) {
    const TestFolder folder;
    folder.Write("a/x.mp3", "");
    Recorder recorder;
    FolderWalk walk;
    for (const StartFolder& start :
         StartFolders("%MULT%" + (folder / "a") + "%||%" + folder.Path() + "%||%" + (folder / "a"),
                      PathStyle::Unix())) {
        EXPECT_TRUE(walk.Run(start, true, recorder));
    }
    EXPECT_EQ(Without(recorder.files, folder.Path()),
              (std::vector<std::string>{"a/x.mp3", "a/x.mp3", "a/x.mp3"}));
    EXPECT_EQ(recorder.bases, (std::vector<std::string>{folder / "a/", folder.Path(), folder / "a"}));
}

TEST(FolderWalk, DescendsIntoAFolderNamedLikeAFileOnlyWithRecursion) {
    const TestFolder folder;
    folder.Write("Live.mp3/one.mp3", "");
    EXPECT_EQ(Without(Walk(folder.Path(), true), folder.Path()),
              std::vector<std::string>{"Live.mp3/one.mp3"});
    EXPECT_EQ(Without(Walk(folder.Path(), false), folder.Path()), std::vector<std::string>{"Live.mp3"});
}

TEST(FolderWalk, StopsAfterTheEntryWhereTheVisitorReturnsFalse) {
    const TestFolder folder;
    for (const char* name : {"1.mp3", "2.txt", "3.mp3", "4.mp3", "sub/5.mp3", "sub/6.mp3"}) {
        folder.Write(name, "");
    }
    for (int stopAt = 1; stopAt <= 7; ++stopAt) {
        Recorder recorder;
        recorder.stopAt = stopAt;
        FolderWalk walk;
        EXPECT_FALSE(walk.Run(StartFolders(folder.Path(), PathStyle::Unix()).front(), true, recorder));
        EXPECT_EQ(recorder.entries, stopAt);
    }
    Recorder recorder;
    recorder.stopAt = 8;
    FolderWalk walk;
    EXPECT_TRUE(walk.Run(StartFolders(folder.Path(), PathStyle::Unix()).front(), true, recorder));
    EXPECT_EQ(recorder.entries, 7) << "every entry counts, whatever its type";
}

int WalkError(const std::string& folder, std::string& where) {
    Recorder recorder;
    FolderWalk walk;
    try {
        walk.Run(StartFolders(folder, PathStyle::Unix()).front(), true, recorder);
        return 0;
    } catch (const RunTimeError& error) {
        where = walk.CurrentFolder();
        return error.Number();
    }
}

TEST(FolderWalk, RaisesTheErrorOfAFolderThatCannotBeListed) {
    const TestFolder folder;
    folder.Write("file", "");
    folder.Write("ok/a.mp3", "");
    folder.Make("ok/closed");
    fs::permissions(folder.Path(), fs::perms::all);
    fs::permissions(folder / "ok/closed", fs::perms::none);
    std::string where;
    EXPECT_EQ(WalkError(folder / "gone", where), 76);
    EXPECT_EQ(where, folder / "gone/");
    EXPECT_EQ(WalkError(folder / "file", where), 76);
    const test::OrdinaryRights rights;
    EXPECT_EQ(WalkError(folder / "ok", where), 75);
    EXPECT_EQ(where, folder / "ok/closed/");
}

// A few hundred folders, with symbolic links to parents and dangling ones.
void MakeManyFolders(const TestFolder& folder) {
    for (const char* first : {"a", "b", "c", "d", "e", "f", "g"}) {
        const std::string artist = folder / first;
        for (int album = 0; album < 20; ++album) {
            const std::string path = artist + "/" + std::to_string(album);
            fs::create_directories(path + "/CD 2/.hidden");
            fs::create_symlink("..", path + "/up");
            fs::create_symlink("nowhere", path + "/nothing");
            std::ofstream(path + "/1.mp3").put('x');
            std::ofstream(path + "/CD 2/2.MP3").put('x');
        }
    }
}

TEST(FolderWalk, VisitsTheSameFilesInTheSameOrderWithPreloading) {
    const TestFolder folder;
    MakeManyFolders(folder);
    const std::vector<std::string> files = Walk(folder.Path(), true);
    ASSERT_EQ(files.size(), 280U);
    for (int round = 0; round < 20; ++round) {
        ASSERT_EQ(Walk(folder.Path(), true, FolderWalk::Preload::AtOnce), files);
        ASSERT_EQ(Walk(folder.Path(), true, FolderWalk::Preload::WhenWaiting), files);
    }
}

TEST(FolderWalk, DoesNotRunOutOfDescriptorsBecauseOfPreloading) {
    const TestFolder folder;
    MakeManyFolders(folder);
    // Warm-up: a sanitizer opens a descriptor when it first sees the types of threads and exceptions.
    const std::vector<std::string> files = Walk(folder.Path(), true, FolderWalk::Preload::AtOnce);
    std::string where;
    ASSERT_EQ(WalkError(folder / "gone", where), 76);
    const int free = dup(STDERR_FILENO);
    close(free);
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    rlimit few = before;
    few.rlim_cur = static_cast<rlim_t>(free) + 1;
    setrlimit(RLIMIT_NOFILE, &few);
    std::vector<std::string> found;
    for (int round = 0; round < 20 && found.size() == files.size() * static_cast<std::size_t>(round);
         ++round) {
        try {
            const std::vector<std::string> more = Walk(folder.Path(), true, FolderWalk::Preload::AtOnce);
            found.insert(found.end(), more.begin(), more.end());
        } catch (const RunTimeError& error) {
            ADD_FAILURE() << error.Number();
        }
    }
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(found.size(), 20 * files.size());
}

TEST(FolderWalk, StopsAtOnceWhilePreloading) {
    const TestFolder folder;
    MakeManyFolders(folder);
    Recorder recorder;
    recorder.stopAt = 30;
    FolderWalk walk(FolderWalk::Preload::AtOnce);
    EXPECT_FALSE(walk.Run(StartFolders(folder.Path(), PathStyle::Unix()).front(), true, recorder));
    EXPECT_EQ(recorder.entries, 30);
}
} // namespace
} // namespace tunedex
