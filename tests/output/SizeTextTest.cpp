#include "SizeText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>

namespace tunedex {
namespace {

struct SizeRow {
    std::int64_t bytes;
    std::string_view inBytes;
    std::string_view inKilobytes;
    std::string_view inMegabytes;
};

TEST(SizeText, GroupsRoundsAndNamesTheUnit) {
    const SizeRow rows[] = {
        {0, "0 b.", "0.00 kB", "0.00 MB"},
        {1, "1 b.", "0.00 kB", "0.00 MB"},
        {5, "5 b.", "0.00 kB", "0.00 MB"},
        {6, "6 b.", "0.01 kB", "0.00 MB"},
        {128, "128 b.", "0.13 kB", "0.00 MB"}, // 0.125: ties round up
        {384, "384 b.", "0.38 kB", "0.00 MB"}, // 0.375
        {640, "640 b.", "0.63 kB", "0.00 MB"}, // 0.625
        {896, "896 b.", "0.88 kB", "0.00 MB"}, // 0.875
        {999, "999 b.", "0.98 kB", "0.00 MB"},
        {1000, "1,000 b.", "0.98 kB", "0.00 MB"},
        {1018, "1,018 b.", "0.99 kB", "0.00 MB"},
        {1019, "1,019 b.", "1.00 kB", "0.00 MB"},
        {1024, "1,024 b.", "1.00 kB", "0.00 MB"},
        {131072, "131,072 b.", "128.00 kB", "0.13 MB"}, // 0.125
        {1234567, "1,234,567 b.", "1,205.63 kB", "1.18 MB"},
        {1048575, "1,048,575 b.", "1,024.00 kB", "1.00 MB"},
        {2147483647, "2,147,483,647 b.", "2,097,152.00 kB", "2,048.00 MB"},
        {1125899906842624, "1,125,899,906,842,624 b.", "1,099,511,627,776.00 kB", "1,073,741,824.00 MB"},
    };
    const Locale locale;
    for (const SizeRow& row : rows) {
        EXPECT_EQ(SizeText(row.bytes, 0, locale), row.inBytes);
        EXPECT_EQ(SizeText(row.bytes, 1, locale), row.inKilobytes);
        EXPECT_EQ(SizeText(row.bytes, 2, locale), row.inMegabytes);
        for (const std::int16_t other : {-1, 3, 7}) {
            EXPECT_EQ(SizeText(row.bytes, other, locale), "");
        }
    }
}

} // namespace
} // namespace tunedex
