#include "Sha256.h"

#include <algorithm>
#include <bit>
#include <cstddef>

namespace tunedex {

namespace {

constexpr std::size_t kBlockBytes = 64;
constexpr std::size_t kLengthBytes = 8; // of the message length at the end of the last block

using State = std::array<std::uint32_t, 8>;

// Section 4.2.2: the first 32 bits of the fractional parts of the cube roots of the first 64 primes.
constexpr std::array<std::uint32_t, 64> kConstants = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

// Section 5.3.3.
constexpr State kInitialState = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                 0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};

std::uint32_t BigEndian(std::string_view block, std::size_t word) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        value = (value << 8U) | static_cast<std::uint8_t>(block[4 * word + i]);
    }
    return value;
}

// Section 6.2.2, step 1: the message schedule.
std::array<std::uint32_t, 64> Schedule(std::string_view block) {
    std::array<std::uint32_t, 64> words{};
    for (std::size_t t = 0; t < 16; ++t) {
        words[t] = BigEndian(block, t);
    }
    for (std::size_t t = 16; t < words.size(); ++t) {
        const std::uint32_t far = words[t - 15];
        const std::uint32_t near = words[t - 2];
        words[t] = words[t - 16] + (std::rotr(far, 7) ^ std::rotr(far, 18) ^ (far >> 3U)) + words[t - 7] +
                   (std::rotr(near, 17) ^ std::rotr(near, 19) ^ (near >> 10U));
    }
    return words;
}

// Section 6.2.2, steps 2 to 4. `block` has kBlockBytes.
void Compress(State& state, std::string_view block) {
    const std::array<std::uint32_t, 64> words = Schedule(block);
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t t = 0; t < words.size(); ++t) {
        const std::uint32_t first = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                                    ((e & f) ^ (~e & g)) + kConstants[t] + words[t];
        const std::uint32_t second =
            (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g;
        g = f;
        f = e;
        e = d + first;
        d = c;
        c = b;
        b = a;
        a = first + second;
    }
    const State change = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < state.size(); ++i) {
        state[i] += change[i];
    }
}

// Section 5.1.1: what follows the last whole block, padded to whole blocks.
std::string PaddedRest(std::string_view bytes) {
    std::string rest(bytes.substr(bytes.size() / kBlockBytes * kBlockBytes));
    rest += '\x80';
    while (rest.size() % kBlockBytes != kBlockBytes - kLengthBytes) {
        rest += '\0';
    }
    const std::uint64_t bits = static_cast<std::uint64_t>(bytes.size()) * 8;
    for (std::size_t i = kLengthBytes; i-- > 0;) {
        rest += static_cast<char>(static_cast<std::uint8_t>(bits >> (8 * i)));
    }
    return rest;
}

void CompressAll(State& state, std::string_view bytes) {
    for (; bytes.size() >= kBlockBytes; bytes.remove_prefix(kBlockBytes)) {
        Compress(state, bytes.substr(0, kBlockBytes));
    }
}

} // namespace

Sha256Digest Sha256(std::string_view bytes) {
    State state = kInitialState;
    CompressAll(state, bytes);
    CompressAll(state, PaddedRest(bytes));
    Sha256Digest digest{};
    for (std::size_t i = 0; i < digest.size(); ++i) {
        digest[i] = static_cast<std::uint8_t>(state[i / 4] >> (24 - 8 * (i % 4)));
    }
    return digest;
}

std::string Base64(std::string_view bytes) {
    constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (; !bytes.empty(); bytes.remove_prefix(std::min<std::size_t>(bytes.size(), 3))) {
        std::uint32_t group = 0; // three bytes, zeros for those that are missing
        for (std::size_t i = 0; i < 3; ++i) {
            group = (group << 8U) | (i < bytes.size() ? static_cast<std::uint8_t>(bytes[i]) : 0U);
        }
        for (std::size_t i = 0; i < 4; ++i) {
            text += i <= bytes.size() ? kDigits[(group >> (18 - 6 * i)) & 0x3FU] : '=';
        }
    }
    return text;
}

std::string Sha256Base64(std::string_view bytes) {
    const Sha256Digest digest = Sha256(bytes);
    return Base64(std::string(digest.begin(), digest.end()));
}

} // namespace tunedex
