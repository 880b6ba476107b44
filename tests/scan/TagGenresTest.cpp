#include "TagGenres.h"

#include "Genres.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace tunedex {
namespace {

using Genres = std::vector<std::string_view>;

TEST(ExtendedGenreName, KnowsTheExtensionTo191) {
    for (unsigned number = 0; number < 148; ++number) {
        EXPECT_EQ(ExtendedGenreName(number), GenreName(number));
    }
    EXPECT_EQ(ExtendedGenreName(148), "Abstract");
    EXPECT_EQ(ExtendedGenreName(183), "Audiobook");
    EXPECT_EQ(ExtendedGenreName(191), "Psybient");
    EXPECT_EQ(ExtendedGenreName(192), "");
    EXPECT_EQ(ExtendedGenreName(255), "");
}

struct GenreRow {
    const char* value;
    Genres genres;
};

TEST(GenresOf, ResolvesNumbersReferencesAndLetters) {
    const GenreRow rows[] = {
        {"Rock", {"Rock"}},
        {"17", {"Rock"}},
        {"017", {"Rock"}},
        {"(17)", {"Rock"}},
        {"191", {"Psybient"}},
        {"192", {"Unknown"}},
        {"255", {"Unknown"}},
        {"256", {"256"}},
        {"1999", {"1999"}},
        {"99999999999999999999", {"99999999999999999999"}},
        {"RX", {"Remix"}},
        {"CR", {"Cover"}},
        {"(RX)", {"Remix"}},
        {"(CR)", {"Cover"}},
        {"(4)Eurodisco", {"Disco", "Eurodisco"}},
        {"(4)Disco", {"Disco"}},
        {"(4)(17)", {"Disco", "Rock"}},
        {"(4)(RX)Text", {"Disco", "Remix", "Text"}},
        {"(4)(17)Rock", {"Disco", "Rock"}},
        {"(200)", {"Unknown"}},
        {"(999)Text", {"Unknown", "Text"}},
        {"(27)Trip-Hop", {"Trip Hop"}},
        {"(17)Trip-Hop", {"Rock", "Trip-Hop"}},
        {"(27)(17)Trip-Hop", {"Trip Hop", "Rock"}},
        {"((Text)", {"(Text)"}},
        {"(4)((Text)", {"Disco", "(Text)"}},
        {"(Text)", {"(Text)"}},
        {"()", {"()"}},
        {"(4", {"(4"}},
        {"(", {"("}},
        {"4)", {"4)"}},
        {"(4) ", {"Disco", " "}},
        {"rx", {"rx"}},
        {"", {}},
    };
    for (const GenreRow& row : rows) {
        EXPECT_EQ(GenresOf(row.value), row.genres) << row.value;
    }
}

} // namespace
} // namespace tunedex
