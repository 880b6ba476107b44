#include "LongText.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace tunedex {
namespace {

LongText TextOf(std::string_view text) {
    LongText made;
    made.Append(text);
    return made;
}

TEST(LongText, HoldsAppendedTextsOfAnySize) {
    LongText text;
    EXPECT_TRUE(text.View().empty());
    std::string expected;
    for (const std::size_t length : {1U, 100U, 5000U, 131072U, 200000U, 3000000U}) {
        const std::string piece(length, static_cast<char>('a' + length % 26));
        text.Append(piece);
        expected += piece;
        ASSERT_TRUE(text.View() == expected) << length;
    }
    text.Fit();
    EXPECT_TRUE(text.View() == expected);
    text.RemovePrefix(101);
    EXPECT_TRUE(text.View() == std::string_view(expected).substr(101));
    const LongText moved = std::move(text);
    EXPECT_TRUE(moved.Shared().View() == std::string_view(expected).substr(101));
}

TEST(LongText, IsEmptyAfterRemovingEverything) {
    LongText text = TextOf("The ");
    text.RemovePrefix(4);
    EXPECT_TRUE(text.View().empty());
    text.Append(", The");
    EXPECT_EQ(text.View(), ", The");
}

TEST(LongTextPool, SharesOneCopyOfEqualTextsWhileAHandleExists) {
    LongTextPool pool;
    const std::string text(5000, 't');
    LongTextHandle first = pool.Share(text);
    EXPECT_EQ(pool.Share(TextOf(text)), first);
    EXPECT_NE(pool.Share(text + "u"), first);
    const std::weak_ptr<const LongText> watched = first;
    first.reset();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(pool.Share(text)->View(), text);
}

TEST(LongTextPool, LetsOneReaderAtATimeExceedTheLimit) {
    LongTextPool pool;
    std::atomic<int> exceeding = 0;
    std::atomic<int> most = 0;
    const auto read = [&] {
        LongTextPool::Turn turn(&pool);
        turn.Reach(LongTextPool::kAloneBytes); // within the limit: does not wait
        turn.Reach(LongTextPool::kAloneBytes + 1);
        turn.Reach(2 * LongTextPool::kAloneBytes); // nor does the reader that already has the turn
        most = std::max<int>(most, ++exceeding);
        std::this_thread::yield();
        --exceeding;
    };
    std::vector<std::thread> readers(16);
    for (std::thread& reader : readers) {
        reader = std::thread(read);
    }
    for (std::thread& reader : readers) {
        reader.join();
    }
    EXPECT_EQ(most, 1);
}

} // namespace
} // namespace tunedex
