#include "OpenFolder.h"

#include "RunTimeError.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <dirent.h>
#include <string>
#include <vector>

namespace tunedex {
namespace {

using test::TestFolder;

std::vector<std::string> NamesIn(OpenFolder& folder) {
    std::vector<std::string> names;
    while (const auto entry = folder.Next()) {
        names.emplace_back(entry->name);
    }
    return names;
}

TEST(OpenFolder, ReturnsTheSameEntriesHoweverManyAreReadAhead) {
    const TestFolder folder;
    for (int i = 0; i < 300; ++i) {
        folder.Write("a file with the number " + std::to_string(i), "");
    }
    OpenFolder plain(folder.Path(), "");
    const std::vector<std::string> names = NamesIn(plain);
    ASSERT_EQ(names.size(), 302U);
    EXPECT_FALSE(plain.Next()) << "the end stays the end";
    for (const std::size_t count : {1U, 2U, 150U, 301U, 302U, 303U, 5000U}) {
        OpenFolder ahead(folder.Path(), "");
        ahead.ReadAhead(count);
        EXPECT_EQ(NamesIn(ahead), names) << count;
        EXPECT_FALSE(ahead.Next());
    }
}

TEST(OpenFolder, ListsTheEntriesInMemory) {
    const TestFolder folder;
    folder.Make("sub");
    OpenFolder open(folder.Path(), "");
    const auto inMemory = [&open] {
        std::vector<std::string> entries;
        open.ForEachReadAhead([&](const FolderEntry& entry) {
            entries.push_back(std::string(entry.name) + (entry.type == DT_DIR ? "/" : ""));
        });
        return entries;
    };
    EXPECT_TRUE(inMemory().empty());
    open.ReadAhead(10);
    EXPECT_EQ(inMemory().size(), 3U);
    std::vector<std::string> names = NamesIn(open);
    EXPECT_EQ(names.size(), 3U);
    EXPECT_TRUE(inMemory().empty());
}

TEST(OpenFolder, RaisesTheErrorOfAFolderThatCannotBeOpened) {
    const TestFolder folder;
    folder.Write("file", "");
    for (const char* name : {"gone/", "file/"}) {
        try {
            const OpenFolder open(folder / name, "");
            ADD_FAILURE() << name;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), 76);
        }
    }
}

} // namespace
} // namespace tunedex
