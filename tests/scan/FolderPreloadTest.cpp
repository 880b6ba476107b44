#include "FolderPreload.h"

#include "RunTimeError.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace tunedex {
namespace {

namespace fs = std::filesystem;
using test::TestFolder;

class FolderPreloadTest : public testing::Test {
  protected:
    FolderPreloadTest() : pending_(folder_.Path()) { pending_.Push(folder_.Path()); }

    // Visits all folders as a walk does. Returns their paths below the first one.
    std::vector<std::string> Visit() {
        std::vector<std::string> visited;
        while (const auto next = pending_.Pop()) {
            visited.push_back(next->path.substr(folder_.Path().size()));
            listed_ += next->folder ? 1 : 0;
            const auto folder =
                next->folder ? next->folder : std::make_shared<OpenFolder>(next->path, folder_.Path());
            EXPECT_EQ(folder->Path(), next->path);
            EXPECT_EQ(folder->BaseFolder(), folder_.Path());
            while (const auto entry = folder->Next()) {
                if (fs::is_directory(next->path + entry->name) && entry->name[0] != '.') {
                    pending_.Push(next->path + entry->name + "/", next.get());
                }
            }
        }
        return visited;
    }
    // Starts the workers and waits until they have opened that many folders.
    void ListAhead(std::size_t folders) {
        const std::size_t before = OpenDescriptors();
        pending_.Start();
        const auto giveUp = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (OpenDescriptors() < before + folders && std::chrono::steady_clock::now() < giveUp) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        EXPECT_GE(OpenDescriptors(), before + folders);
    }
    static std::size_t OpenDescriptors() {
        const fs::directory_iterator descriptors("/proc/self/fd");
        return static_cast<std::size_t>(std::distance(begin(descriptors), end(descriptors)));
    }
    void MakeTree(int artists, int albums) const {
        for (int artist = 0; artist < artists; ++artist) {
            for (int album = 0; album < albums; ++album) {
                folder_.Make(std::to_string(artist) + "/" + std::to_string(album));
            }
        }
    }

    TestFolder folder_;
    FolderPreload pending_;
    int listed_ = 0; // visited folders that a worker had listed
};

TEST_F(FolderPreloadTest, ReturnsFoldersInTheSameOrderWithAndWithoutWorkers) {
    MakeTree(9, 9);
    const std::vector<std::string> plain = Visit();
    ASSERT_EQ(plain.size(), 91U);
    EXPECT_EQ(listed_, 0);
    for (int round = 0; round < 20; ++round) {
        pending_.Push(folder_.Path());
        pending_.Start();
        EXPECT_EQ(Visit(), plain);
        pending_.Stop();
    }
}

TEST_F(FolderPreloadTest, ListsTheNextFoldersOnWorkersUpToTheLimit) {
    MakeTree(70, 9);
    ListAhead(FolderPreload::kMostAhead);
    pending_.Stop();
    EXPECT_EQ(Visit().size(), 701U);
    EXPECT_GE(listed_, static_cast<int>(FolderPreload::kMostAhead));
    EXPECT_LE(listed_, static_cast<int>(FolderPreload::kMostOpen));
}

TEST_F(FolderPreloadTest, LeavesLinksToTheWalk) {
    folder_.Make("real/sub");
    fs::create_symlink("..", folder_ / "real/up");
    ListAhead(3);
    pending_.Stop();
    const auto root = pending_.Pop();
    ASSERT_TRUE(root->folder);
    ASSERT_EQ(root->subFolders.size(), 1U);
    ASSERT_EQ(root->subFolders[0]->subFolders.size(), 1U);
    EXPECT_EQ(root->subFolders[0]->subFolders[0]->path, folder_ / "real/sub/");
}

TEST_F(FolderPreloadTest, LeavesFoldersThatCannotBeOpenedToTheWalk) {
    pending_.Push(folder_ / "gone/");
    ListAhead(1);
    pending_.Stop();
    const auto gone = pending_.Pop();
    EXPECT_EQ(gone->path, folder_ / "gone/");
    EXPECT_FALSE(gone->folder);
    EXPECT_TRUE(pending_.Pop()->folder);
    EXPECT_EQ(pending_.Pop(), nullptr);
}

TEST_F(FolderPreloadTest, ReadsTheRestOfALargeFolderInTheWalk) {
    constexpr std::size_t kFolders = FolderPreload::kMostEntries + 500;
    MakeTree(1, static_cast<int>(kFolders));
    ListAhead(FolderPreload::kMostAhead);
    EXPECT_EQ(Visit().size(), kFolders + 2);
}

TEST_F(FolderPreloadTest, ClosesListedFoldersToReleaseTheirDescriptors) {
    MakeTree(9, 9);
    EXPECT_FALSE(pending_.Release());
    ListAhead(FolderPreload::kMostAhead);
    EXPECT_TRUE(pending_.Release());
    EXPECT_FALSE(pending_.Running());
    EXPECT_FALSE(pending_.Release());
    EXPECT_EQ(Visit().size(), 91U);
    EXPECT_EQ(listed_, 0);
}

TEST_F(FolderPreloadTest, DoesNotPayWhereFoldersAreInMemory) {
    MakeTree(20, 20);
    Visit();
    pending_.Push(folder_.Path());
    EXPECT_TRUE(pending_.Pays());
    pending_.Start();
    Visit();
    EXPECT_FALSE(pending_.Pays());
    pending_.Stop();
    pending_.Start();
    EXPECT_TRUE(pending_.Pays()) << "each start samples anew";
}

TEST_F(FolderPreloadTest, CanBeDestroyedWhileWorkersList) {
    MakeTree(9, 9);
    for (int round = 0; round < 50; ++round) {
        FolderPreload pending(folder_.Path());
        pending.Push(folder_.Path());
        pending.Start();
        pending.Pop();
    }
}

} // namespace
} // namespace tunedex
