#include "Sha256.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace tunedex {
namespace {

std::string Hexadecimal(std::string_view bytes) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : Sha256(bytes)) {
        text += kDigits[byte / 16];
        text += kDigits[byte % 16];
    }
    return text;
}

TEST(Sha256, DigestsAreThoseOfThePublishedExamples) {
    struct Case {
        std::string bytes;
        std::string digest;
    };
    const std::vector<Case> cases = {
        {"", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {"abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {"abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
         "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        {"abcdefghbcdefghicdefghijdefghijkefghijklfghijklmghijklmnhijklmnoijklmnopjklmnopqklmnopqrlmnopqrsm"
         "nopqrstnopqrstu",
         "cf5b16a778af8380036ce59e7b0492370b249b11e8f07a51afac45037afee9d1"},
        {std::string(1000000, 'a'), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"},
    };
    for (const Case& example : cases) {
        EXPECT_EQ(Hexadecimal(example.bytes), example.digest) << example.bytes.size() << " bytes";
    }
}

// The lengths around the end of a block, where the padding takes a block of its own.
TEST(Sha256, EveryLengthHasADigestOfItsOwn) {
    std::vector<std::string> digests;
    for (std::size_t length = 0; length <= 130; ++length) {
        digests.push_back(Hexadecimal(std::string(length, '\0')));
        for (std::size_t shorter = 0; shorter < length; ++shorter) {
            EXPECT_NE(digests[shorter], digests[length]);
        }
    }
    EXPECT_EQ(digests[55], "02779466cdec163811d078815c633f21901413081449002f24aa3e80f0b88ef7");
    EXPECT_EQ(digests[56], "d4817aa5497628e7c77e6b606107042bbba3130888c5f47a375e6179be789fbb");
    EXPECT_EQ(digests[64], "f5a5fd42d16a20302798ef6ed309979b43003d2320d9f0e8ea9831a92759fb4b");
}

TEST(Base64, TextsAreThoseOfTheStandard) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", ""},
        {"f", "Zg=="},
        {"fo", "Zm8="},
        {"foo", "Zm9v"},
        {"foob", "Zm9vYg=="},
        {"fooba", "Zm9vYmE="},
        {"foobar", "Zm9vYmFy"},
        {"\xFF\xEF\xBE", "/+++"},
    };
    for (const auto& [bytes, text] : cases) {
        EXPECT_EQ(Base64(bytes), text);
    }
}

TEST(Sha256, APolicyNamesTheDigestInBase64) {
    EXPECT_EQ(Sha256Base64("alert('Hello, world.');"), "qznLcsROx4GACP2dm0UCKCzCG+HiZ1guq6ZZDob/Tng=");
}

} // namespace
} // namespace tunedex
