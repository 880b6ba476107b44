#include "MultiFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tunedex {
namespace {

using Folders = std::vector<std::string>;

TEST(MultiFolder, JoinsFoldersBehindItsMark) {
    EXPECT_EQ(MultiFolderValue({"/a"}), "%MULT%/a");
    EXPECT_EQ(MultiFolderValue({"/a", "/b c", "/é"}), "%MULT%/a%||%/b c%||%/é");
}

TEST(MultiFolder, GivesBackTheFoldersThatWereJoined) {
    for (const Folders& folders : {Folders{"/a"}, Folders{"/a", "/b"}, Folders{"/", "/x|y", "/%D"}}) {
        EXPECT_EQ(FoldersOf(MultiFolderValue(folders)), folders);
    }
}

TEST(MultiFolder, HasNoFoldersWhenItIsSingleOrEmpty) {
    for (const char* value : {"", "%MULT%", "/music", "/music%||%/b"}) {
        EXPECT_EQ(FoldersOf(value), Folders()) << value;
    }
}

} // namespace
} // namespace tunedex
