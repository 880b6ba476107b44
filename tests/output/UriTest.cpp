#include "Uri.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace tunedex {
namespace {

TEST(PercentEncoded, KeepsOnlyUnreservedCharactersAndSlashes) {
    const std::string kept = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    for (int byte = 0; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        constexpr const char* kDigits = "0123456789ABCDEF";
        const std::string escape = {'%', kDigits[byte / 16], kDigits[byte % 16]};
        EXPECT_EQ(PercentEncoded(one), kept.find(one) == std::string::npos ? escape : one) << byte;
    }
    EXPECT_EQ(PercentEncoded(""), "");
    EXPECT_EQ(PercentEncoded("/a b/%41\xFF.mp3"), "/a%20b/%2541%FF.mp3");
}

TEST(FileUri, IsAbsolute) {
    EXPECT_EQ(FileUri("/music/50%.mp3"), "file:///music/50%25.mp3");
    EXPECT_EQ(FileUri("music/#1.mp3"),
              "file://" + PercentEncoded(std::filesystem::current_path().string()) + "/music/%231.mp3");
}

} // namespace
} // namespace tunedex
