#include "Path.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tunedex {
namespace {

constexpr PathStyle kUnix = PathStyle::Unix();
constexpr PathStyle kWindows = PathStyle::Windows();

TEST(PathStyle, NativeUsesSlashesAndNoDriveLetters) {
    EXPECT_EQ(PathStyle::Native().separator, '/');
    EXPECT_FALSE(PathStyle::Native().driveLetters);
    EXPECT_EQ(kWindows.separator, '\\');
    EXPECT_TRUE(kWindows.driveLetters);
}

TEST(Path, SplitsIntoFolderAndNameAtTheLastSeparator) {
    struct Row {
        PathStyle style;
        const char* path;
        const char* prefix;
        const char* folder;
        const char* name;
    };
    const std::vector<Row> rows = {
        {kWindows, R"(C:\Music\a.mp3)", R"(C:\Music\)", R"(C:\Music)", "a.mp3"},
        {kWindows, R"(C:\a.mp3)", R"(C:\)", "C:", "a.mp3"},
        {kWindows, R"(C:\Music\Lists\all.htm)", R"(C:\Music\Lists\)", R"(C:\Music\Lists)", "all.htm"},
        {kWindows, R"(\\server\share\a.mp3)", R"(\\server\share\)", R"(\\server\share)", "a.mp3"},
        {kWindows, "a/b.mp3", "", "", "a/b.mp3"},
        {kWindows, "C:a.mp3", "", "", "C:a.mp3"},
        {kUnix, "/music/a.mp3", "/music/", "/music", "a.mp3"},
        {kUnix, "/a.mp3", "/", "", "a.mp3"},
        {kUnix, "a.mp3", "", "", "a.mp3"},
        {kUnix, "music/", "music/", "music", ""},
        {kUnix, "", "", "", ""},
        // A backslash is an ordinary character in a Unix name.
        {kUnix, R"(/music/AC\DC.mp3)", "/music/", "/music", R"(AC\DC.mp3)"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(FolderPrefixOf(row.path, row.style), row.prefix) << row.path;
        EXPECT_EQ(FolderPathOf(row.path, row.style), row.folder) << row.path;
        EXPECT_EQ(FileNameOf(row.path, row.style), row.name) << row.path;
    }
}

TEST(Path, WithSeparatorAppendsOneIfMissing) {
    EXPECT_EQ(WithSeparator(R"(C:\Music)", kWindows), R"(C:\Music\)");
    EXPECT_EQ(WithSeparator(R"(C:\)", kWindows), R"(C:\)");
    EXPECT_EQ(WithSeparator("/music/", kUnix), "/music/");
    EXPECT_EQ(WithSeparator("/", kUnix), "/");
    EXPECT_EQ(WithSeparator("a/", kWindows), "a/\\");
    EXPECT_EQ(WithSeparator("", kUnix), "/");
    EXPECT_TRUE(EndsInSeparator("/", kUnix));
    EXPECT_FALSE(EndsInSeparator("", kUnix));
    EXPECT_FALSE(EndsInSeparator("a\\", kUnix));
}

TEST(Path, WithoutSeparatorRemovesAllButTheRootFolders) {
    EXPECT_EQ(WithoutSeparator("/music/", kUnix), "/music");
    EXPECT_EQ(WithoutSeparator("/music", kUnix), "/music");
    EXPECT_EQ(WithoutSeparator("/", kUnix), "/");
    EXPECT_EQ(WithoutSeparator("//", kUnix), "/");
    EXPECT_EQ(WithoutSeparator("/music//", kUnix), "/music");
    EXPECT_EQ(WithoutSeparator("", kUnix), "");
    EXPECT_EQ(WithoutSeparator("x:/", kUnix), "x:");
    EXPECT_EQ(WithoutSeparator(R"(C:\Music\)", kWindows), R"(C:\Music)");
    EXPECT_EQ(WithoutSeparator(R"(C:\)", kWindows), R"(C:\)");
    EXPECT_EQ(WithoutSeparator("\\", kWindows), "\\");
}

TEST(FolderLevels, AreTheParentFoldersOutermostFirst) {
    using Levels = std::vector<std::string>;
    EXPECT_EQ(FolderLevels(R"(C:\a\b\c\)", kWindows),
              (Levels{R"(C:\)", R"(C:\a\)", R"(C:\a\b\)", R"(C:\a\b\c\)"}));
    EXPECT_EQ(FolderLevels("/a/b/", kUnix), (Levels{"/", "/a/", "/a/b/"}));
    EXPECT_EQ(FolderLevels("a/b/", kUnix), (Levels{"a/", "a/b/"}));
    EXPECT_EQ(FolderLevels("/", kUnix), Levels{"/"});
    EXPECT_EQ(FolderLevels("", kUnix), Levels());
}

} // namespace
} // namespace tunedex
