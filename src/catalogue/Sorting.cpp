#include "Sorting.h"

#include "AbortPoll.h"
#include "Text.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tunedex {

namespace {

std::uint64_t PrefixOf(std::string_view text) {
    std::uint64_t prefix = 0;
    for (std::size_t i = 0; i < sizeof prefix; ++i) {
        prefix = (prefix << 8U) | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
    }
    return prefix;
}

// Accounts for comparing `text` once.
void StepOver(std::string_view text, AbortPoll& poll) {
    if (text.size() < kLongTextBytes) {
        poll.Step();
    } else {
        poll.Ask();
    }
}

// The upper-cased text, stored in `keys`.
SharedText KeyFor(std::string_view text, TextStore& keys, AbortPoll& poll) {
    if (text.size() < kLongTextBytes) {
        return keys.Add(UpperCase(text));
    }
    constexpr std::size_t kPiece = 65536;
    LongText key;
    while (!text.empty()) {
        poll.Ask();
        const std::size_t count = WholeCharacters(text, kPiece);
        key.Append(UpperCase(text.substr(0, count)));
        text.remove_prefix(count);
    }
    key.Fit();
    return keys.Keep(std::make_shared<const LongText>(std::move(key)));
}

// Ranks of a field whose texts many rows share: each stored text is upper-cased and compared once.
class SharedRanks {
  public:
    SharedRanks(const std::vector<TrackRow>& rows, SharedText TrackRow::*field, AbortPoll& poll) {
        TextStore keys;
        std::vector<std::pair<std::string_view, const void*>> texts;
        for (const TrackRow& row : rows) {
            poll.Step();
            if (ranks_.emplace((row.*field).Identity(), 0).second) {
                texts.emplace_back(KeyFor(row.*field, keys, poll), (row.*field).Identity());
            }
        }
        std::sort(texts.begin(), texts.end(), [&poll](const auto& a, const auto& b) {
            StepOver(a.first, poll);
            return a.first < b.first;
        });
        std::uint32_t rank = 0;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            rank += i > 0 && texts[i].first != texts[i - 1].first ? 1U : 0U;
            ranks_[texts[i].second] = rank;
        }
    }

    std::uint32_t Of(SharedText text) const { return ranks_.find(text.Identity())->second; }

  private:
    std::unordered_map<const void*, std::uint32_t> ranks_;
};

// Upper-cased titles. A long title that several rows share is stored once.
class TitleKeys {
  public:
    std::string_view Of(SharedText title, AbortPoll& poll) {
        const std::string_view text = title;
        if (text.size() < kLongTextBytes) {
            return KeyFor(text, keys_, poll);
        }
        SharedText& key = long_[title.Identity()];
        return key.Empty() ? key = KeyFor(text, keys_, poll) : key;
    }

  private:
    TextStore keys_;
    std::unordered_map<const void*, SharedText> long_; // by the title's identity
};

struct SortKey {
    std::uint64_t group; // artist's rank, then album's
    std::uint64_t titlePrefix;
    std::string_view title; // upper-cased
    std::uint32_t row;
};

bool Less(const SortKey& a, const SortKey& b) {
    if (a.group != b.group) {
        return a.group < b.group;
    }
    if (a.titlePrefix != b.titlePrefix) {
        return a.titlePrefix < b.titlePrefix;
    }
    return a.title.data() != b.title.data() && a.title < b.title;
}

std::vector<std::uint32_t> Rank(const std::vector<TrackRow>& rows, AbortPoll& poll) {
    TitleKeys titles;
    std::vector<SortKey> keys;
    keys.reserve(rows.size());
    {
        const SharedRanks artists(rows, &TrackRow::Artist, poll);
        const SharedRanks albums(rows, &TrackRow::Album, poll);
        for (const TrackRow& row : rows) {
            poll.Step();
            const std::uint64_t group =
                (static_cast<std::uint64_t>(artists.Of(row.Artist)) << 32U) | albums.Of(row.Album);
            const std::string_view title = titles.Of(row.Title, poll);
            keys.push_back({group, PrefixOf(title), title, static_cast<std::uint32_t>(keys.size())});
        }
    }
    std::sort(keys.begin(), keys.end(), [&poll](const SortKey& a, const SortKey& b) {
        StepOver(a.title, poll);
        return Less(a, b);
    });
    std::vector<std::uint32_t> ranks(rows.size());
    std::uint32_t rank = 0;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        rank += i > 0 && Less(keys[i - 1], keys[i]) ? 1U : 0U;
        ranks[keys[i].row] = rank;
    }
    return ranks;
}

struct RankedRow {
    std::uint32_t rank;
    std::uint32_t row;
};

// The exchanges of the Shell sort, on 8-byte ranks in place of records.
void ExchangeInOrder(std::vector<RankedRow>& rows, AbortPoll& poll) {
    const std::size_t count = rows.size();
    for (std::size_t gap = count / 2 + 1; gap > 0; gap /= 2) {
        for (std::size_t i = gap; i < count; ++i) {
            for (std::size_t later = i; later >= gap; later -= gap) {
                poll.Step();
                if (rows[later - gap].rank <= rows[later].rank) {
                    break;
                }
                std::swap(rows[later - gap], rows[later]);
            }
        }
    }
}

} // namespace

bool SortTracks(TrackTable& table, std::int16_t sortOrder, RunMonitor& monitor) {
    std::vector<TrackRow>& rows = table.Rows();
    if ((sortOrder != kAscending && sortOrder != kDescending) || rows.size() < 2) {
        return false;
    }
    AbortPoll poll(monitor);
    std::vector<RankedRow> order(rows.size());
    try {
        const std::vector<std::uint32_t> ranks = Rank(rows, poll);
        for (std::uint32_t row = 0; row < order.size(); ++row) {
            order[row] = {sortOrder == kAscending ? ranks[row] : ~ranks[row], row};
        }
        ExchangeInOrder(order, poll);
    } catch (const SortAborted&) {
        return true;
    }
    // order[i].row is the row whose record belongs in row i; following the cycles moves each record once.
    for (std::uint32_t start = 0; start < order.size(); ++start) {
        std::uint32_t row = start;
        while (order[row].row != start) {
            const std::uint32_t from = order[row].row;
            SwapTracks(rows[row], rows[from]);
            order[row].row = row;
            row = from;
        }
        order[row].row = row;
    }
    return false;
}

} // namespace tunedex
