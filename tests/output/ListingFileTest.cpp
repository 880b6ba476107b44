#include "ListingFile.h"

#include "Fakes.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace tunedex {
namespace {

TEST(ListingFile, WritesTextOfManyBuffers) {
    const test::TestFolder folder;
    test::FakeMonitor monitor;
    PageBuffer text;
    ListingFile file(text, {folder / "list.txt"}, TextEncoding::Windows1252Questions, monitor);
    std::string expected;
    while (expected.size() < 3 * TextFile::kPieceBytes) {
        text.Put("a line of text\r\n");
        expected += "a line of text\r\n";
    }
    EXPECT_TRUE(file.Close());
    EXPECT_TRUE(test::ReadBytes(folder / "list.txt") == expected);
}

TEST(ListingFile, ReplacesTheOldFileOnlyWhenItIsClosed) {
    const test::TestFolder folder;
    test::FakeMonitor monitor;
    const std::string path = folder.Write("list.txt", "old");
    PageBuffer text;
    {
        ListingFile file(text, {path}, TextEncoding::Utf8, monitor);
        text.Put("lost");
    }
    EXPECT_EQ(test::ReadBytes(path), "old");
    text.Clear();
    ListingFile file(text, {path}, TextEncoding::Utf8, monitor);
    text.Put("new");
    EXPECT_EQ(test::ReadBytes(path), "old");
    EXPECT_TRUE(file.Close());
    EXPECT_EQ(test::ReadBytes(path), "new");
}

} // namespace
} // namespace tunedex
