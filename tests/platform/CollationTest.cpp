#include "Collation.h"

#include "OrdinaryUser.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

namespace tunedex {
namespace {

TEST(CodeOrder, RanksByBytesAndGivesEqualTextsOneRank) {
    const CodeOrder order;
    EXPECT_EQ(order.Ranks({"b", "a", "\xC3\xA4", "B", "a", ""}, [] {}),
              (std::vector<std::uint32_t>{3, 2, 4, 1, 2, 0}));
    EXPECT_TRUE(order.Ranks({}, [] {}).empty());
}

TEST(CodeOrder, EndsWithTheExceptionOfAStep) {
    const CodeOrder order;
    EXPECT_THROW(order.Ranks({"b", "a"}, [] { throw std::runtime_error("stop"); }), std::runtime_error);
}

TEST(CollationLanguage, IsTheFirstThatIsSetWithoutCharsetAndModifier) {
    struct Row {
        const char* all;
        const char* collate;
        const char* lang;
        const char* language;
    };
    const Row rows[] = {
        {"", "", "", ""},
        {"", "", "de_DE.UTF-8", "de_DE"},
        {"", "sv_SE.UTF-8", "de_DE.UTF-8", "sv_SE"},
        {"es_ES@euro", "sv_SE", "de_DE", "es_ES"},
        {"C", "sv_SE", "de_DE", ""},
        {"", "POSIX", "de_DE", ""},
        {"", "", "C.UTF-8", ""},
    };
    for (const Row& row : rows) {
        test::InChild([&] {
            setenv("LC_ALL", row.all, 1);
            setenv("LC_COLLATE", row.collate, 1);
            setenv("LANG", row.lang, 1);
            EXPECT_EQ(CollationLanguage(), row.language);
        });
    }
}

} // namespace
} // namespace tunedex
