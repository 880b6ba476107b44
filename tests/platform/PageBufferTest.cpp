#include "PageBuffer.h"

#include <gtest/gtest.h>

#include <string>

namespace tunedex {
namespace {

TEST(PageBuffer, IsEmptyAtFirstAndOnceCleared) {
    PageBuffer page;
    EXPECT_EQ(page.View(), "");
    page.Put("text");
    page.Clear();
    EXPECT_EQ(page.View(), "");
    page.Put("next");
    EXPECT_EQ(page.View(), "next");
}

TEST(PageBuffer, HoldsPiecesOfAnyLengthSideBySide) {
    PageBuffer page;
    std::string expected;
    for (std::size_t length = 0; length < 300; ++length) {
        const std::string piece(length, static_cast<char>('a' + length % 26));
        const std::string padded = piece + std::string(PageBuffer::kStep, '#');
        page.Put(piece);
        page.PutPadded(std::string_view(padded).substr(0, length));
        expected += piece + piece;
        ASSERT_EQ(page.View(), expected);
    }
    page.Put(std::string(1000000, 'x'));
    EXPECT_EQ(page.View(), expected + std::string(1000000, 'x'));
}

} // namespace
} // namespace tunedex
