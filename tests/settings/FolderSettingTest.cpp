#include "FolderSetting.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tunedex {
namespace {

using Folders = std::vector<std::string>;

TEST(FolderSetting, JoinsFoldersAfterItsMark) {
    EXPECT_EQ(MultiFolderValue({"/a"}), "%MULT%/a");
    EXPECT_EQ(MultiFolderValue({"/a", "/b c", "/é"}), "%MULT%/a%||%/b c%||%/é");
}

TEST(FolderSetting, SplitsIntoTheFoldersThatWereJoined) {
    for (const Folders& folders : {Folders{"/a"}, Folders{"/a", "/b"}, Folders{"/", "/x|y", "/%D"}}) {
        EXPECT_EQ(FoldersOf(MultiFolderValue(folders)), folders);
    }
}

TEST(FolderSetting, HasNoFoldersWhenItIsSingleOrEmpty) {
    for (const char* value : {"", "%MULT%", "/music", "/music%||%/b"}) {
        EXPECT_EQ(FoldersOf(value), Folders()) << value;
    }
}

TEST(FolderSetting, IsMultiFolderByItsFirstSixCharacters) {
    EXPECT_TRUE(IsMultiFolder("%MULT%"));
    EXPECT_TRUE(IsMultiFolder("%MULT%/a%||%/b"));
    for (const char* text : {"", "%MULT", "/a%MULT%", "%mult%/a", " %MULT%"}) {
        EXPECT_FALSE(IsMultiFolder(text)) << text;
    }
}

struct StartRow {
    std::string value;
    std::vector<std::pair<std::string, std::string>> folders; // base folder, path
};

TEST(StartFolders, HasOneForEachEntry) {
    const StartRow rows[] = {
        {"C:\\Music", {{"C:\\Music", "C:\\Music\\"}}},
        {"C:\\Music\\", {{"C:\\Music\\", "C:\\Music\\"}}},
        {"%MULT%C:\\A%||%D:\\B\\", {{"C:\\A\\", "C:\\A\\"}, {"D:\\B\\", "D:\\B\\"}}},
        {"%MULT%C:\\Music%||%D:\\More\\%||%E:\\Old",
         {{"C:\\Music\\", "C:\\Music\\"}, {"D:\\More\\", "D:\\More\\"}, {"E:\\Old", "E:\\Old\\"}}},
        {"%MULT%C:\\A", {{"C:\\A", "C:\\A\\"}}},
        {"%MULT%", {}},
        {"%MULT%%||%", {}},
        {"%MULT%%||%C:\\A%||%%||%D:\\B%||%", {{"C:\\A\\", "C:\\A\\"}, {"D:\\B\\", "D:\\B\\"}}},
        {"%MULT%C:\\%MULT%A%||%B", {{"C:\\A\\", "C:\\A\\"}, {"B", "B\\"}}}, // every mark is removed
        {"%mult%C:\\A%||%B", {{"%mult%C:\\A%||%B", "%mult%C:\\A%||%B\\"}}},
        {"C:\\A%||%D:\\B", {{"C:\\A%||%D:\\B", "C:\\A%||%D:\\B\\"}}},
        {" %MULT%C:\\A", {{" %MULT%C:\\A", " %MULT%C:\\A\\"}}},
    };
    for (const StartRow& row : rows) {
        std::vector<std::pair<std::string, std::string>> folders;
        for (const StartFolder& start : StartFolders(row.value, PathStyle::Windows())) {
            folders.emplace_back(start.baseFolder, start.path);
        }
        EXPECT_EQ(folders, row.folders) << row.value;
    }
}

TEST(StartFolders, ReadsALoneSeparatorAsTheRootFolder) {
    for (const char* value : {"%MULT%/%||%/music", "%MULT%/music%||%/"}) {
        const auto folders = StartFolders(value, PathStyle::Unix());
        ASSERT_EQ(folders.size(), 2U);
        const bool first = folders[0].path == "/";
        EXPECT_EQ(folders[first ? 0 : 1].baseFolder, "/");
        EXPECT_EQ(folders[first ? 0 : 1].path, "/");
        EXPECT_EQ(folders[first ? 1 : 0].path, "/music/");
    }
    EXPECT_EQ(StartFolders("/", PathStyle::Unix()).front().path, "/");
}

} // namespace
} // namespace tunedex
