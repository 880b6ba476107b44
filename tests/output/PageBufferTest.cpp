#include "PageBuffer.h"

#include <gtest/gtest.h>

#include <string>

namespace tunedex {
namespace {

TEST(PageBuffer, IsEmptyInitiallyAndAfterClear) {
    PageBuffer page;
    EXPECT_EQ(page.View(), "");
    page.Put("text");
    page.Clear();
    EXPECT_EQ(page.View(), "");
    page.Put("next");
    EXPECT_EQ(page.View(), "next");
}

TEST(PageBuffer, ConcatenatesPiecesOfAnyLength) {
    PageBuffer page;
    std::string expected;
    for (std::size_t length = 0; length < 300; ++length) {
        const std::string piece(length, static_cast<char>('a' + length % 26));
        page.Put(piece);
        expected += piece;
        ASSERT_EQ(page.View(), expected);
    }
    page.Put(std::string(1000000, 'x'));
    EXPECT_EQ(page.View(), expected + std::string(1000000, 'x'));
}

TEST(PageBuffer, WritesNumbersInDigits) {
    PageBuffer page;
    for (const std::int64_t number : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{1000000}, INT64_MIN}) {
        page.Clear();
        page.PutNumber(number);
        EXPECT_EQ(page.View(), std::to_string(number));
    }
}

TEST(PageBuffer, DropsTextFromItsEnd) {
    PageBuffer page;
    page.Put("kept");
    page.Put(" and not");
    page.CutTo(4);
    EXPECT_EQ(page.Size(), 4U);
    page.PutNumber(7);
    EXPECT_EQ(page.View(), "kept7");
}

TEST(PageBuffer, PassesItsTextToTheSinkInBoundedPiecesOfWholeCharacters) {
    constexpr std::size_t kPieceBytes = 262144;
    std::string text; // of three-byte characters, so most piece bounds fall inside one
    while (text.size() < 4 * kPieceBytes) {
        text += "\xE2\x82\xAC";
    }
    std::string taken;
    PageBuffer page;
    page.SetSink(kPieceBytes, [&](std::string_view piece) {
        EXPECT_LE(piece.size(), kPieceBytes);
        EXPECT_EQ(piece.size() % 3, 0U) << "a character is split";
        taken += piece;
    });
    page.Put(text);
    page.Put(text);
    EXPECT_LE(page.Size(), kPieceBytes);
    page.HandOver();
    EXPECT_EQ(page.Size(), 0U);
    EXPECT_TRUE(taken == text + text);
}

} // namespace
} // namespace tunedex
