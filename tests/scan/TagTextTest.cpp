#include "TagText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tunedex {
namespace {

using namespace std::string_literals;

TEST(TagText, DecodesWindows1252WithoutNuls) {
    std::string text = "before";
    SetTagText(text, "\0Caf\xE9\0\0 \x80\0"s);
    EXPECT_EQ(text, "Caf\xC3\xA9 \xE2\x82\xAC");
    SetTagText(text, "\0\0"s);
    EXPECT_EQ(text, "");
}

TEST(TagText, HasADefaultForAnEmptyTitleOnly) {
    for (const auto& [title, finished] :
         {std::pair{"", "Unknown Title"}, std::pair{" ", " "}, std::pair{"The End", "The End"}}) {
        std::string text = title;
        FinishTitle(text);
        EXPECT_EQ(text, finished);
    }
}

struct FinishedArtistRow {
    std::string_view artist;
    std::string_view moved;
    std::string_view kept;
};

TEST(TagText, FinishesShortAndLongArtistsAlike) {
    const FinishedArtistRow rows[] = {
        {"", "Unknown Artist", "Unknown Artist"},
        {"The Beatles", "Beatles, The", "The Beatles"},
        {"tHe beatles", "beatles, The", "tHe beatles"},
        {"The ", ", The", "The "},
        {"The", "The", "The"},
        {"Theatre", "Theatre", "Theatre"},
        {"Beatles, The", "Beatles, The", "Beatles, The"},
    };
    for (const FinishedArtistRow& row : rows) {
        for (const bool move : {true, false}) {
            std::string text(row.artist);
            FinishArtist(text, move);
            EXPECT_EQ(text, move ? row.moved : row.kept);
            LongText longText;
            longText.Append(row.artist);
            if (!row.artist.empty()) {
                FinishArtist(longText, move);
                EXPECT_EQ(longText.View(), move ? row.moved : row.kept);
            }
        }
    }
}

} // namespace
} // namespace tunedex
