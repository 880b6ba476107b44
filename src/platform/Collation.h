// The order of texts for readers. An interface, because the rules of languages come from a library.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <numeric>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

class Collation {
  public:
    // Called for every text and every comparison. It may raise an exception to end the work.
    using Step = std::function<void()>;

    Collation() = default;
    Collation(const Collation&) = delete;
    Collation& operator=(const Collation&) = delete;
    virtual ~Collation() = default;

    // The rank of each text, from 0. Texts that the order does not distinguish have the same rank.
    virtual std::vector<std::uint32_t> Ranks(const std::vector<std::string_view>& texts,
                                             const Step& step) const = 0;
};

// The order of the bytes, which for UTF-8 is that of the code points.
class CodeOrder final : public Collation {
  public:
    std::vector<std::uint32_t> Ranks(const std::vector<std::string_view>& texts,
                                     const Step& step) const override;
};

// The language of collation, such as "de_DE": the first of LC_ALL, LC_COLLATE and LANG that is set, without
// charset and modifier, whether or not that locale is installed. Empty for C and POSIX.
std::string CollationLanguage();

// The ranks of `count` keys; `compare` returns a number less than, equal to or greater than 0 for two
// positions.
template <typename Compare> std::vector<std::uint32_t> RanksOf(std::size_t count, Compare compare) {
    std::vector<std::uint32_t> order(count);
    std::iota(order.begin(), order.end(), 0U);
    std::sort(order.begin(), order.end(),
              [&](std::uint32_t a, std::uint32_t b) { return compare(a, b) < 0; });
    std::vector<std::uint32_t> ranks(count);
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < count; ++i) {
        rank += i > 0 && compare(order[i - 1], order[i]) != 0 ? 1U : 0U;
        ranks[order[i]] = rank;
    }
    return ranks;
}

} // namespace tunedex
