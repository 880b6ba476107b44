#include "SortByAlbum.h"

#include "AbortPoll.h"
#include "Numbers.h"
#include "Sorting.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tunedex {

namespace {

using Rows = std::vector<std::uint32_t>; // row numbers, from 0
using TextOfRow = std::function<SharedText(std::uint32_t)>;

// Rows that no key so far tells apart: a part of the order.
struct Run {
    std::size_t begin;
    std::size_t end;
};

class AlbumOrder {
  public:
    AlbumOrder(const TrackTable& table, const Collation& collation, RunMonitor& monitor)
        : table_(table), collation_(collation), poll_(monitor), order_(table.Count()) {
        std::iota(order_.begin(), order_.end(), 0U);
    }

    Rows ByAlbum() {
        std::vector<Run> equal = ByNumbers();
        equal = Refined(equal, [this](std::uint32_t row) { return Row(row).Title; });
        ByPath(equal);
        return std::move(order_);
    }

    Rows ByPath() {
        ByPath({{0, order_.size()}});
        return std::move(order_);
    }

  private:
    // What one comparison of the first sort needs.
    struct Key {
        std::uint32_t artist;
        std::uint32_t album;
        double disc;
        double track;
        std::uint32_t row;

        auto Fields() const { return std::tie(artist, album, disc, track); }
    };

    const TrackRow& Row(std::uint32_t row) const { return table_.At(row + 1); }
    const ExtraTexts& Extras(std::uint32_t row) const { return table_.ExtrasAt(row + 1); }
    SharedText ArtistOf(std::uint32_t row) const {
        const SharedText albumArtist = Extras(row).AlbumArtist;
        return albumArtist.Empty() ? Row(row).Artist : albumArtist;
    }

    // For each of the rows, the rank of its text. A text that many rows share is ranked once.
    std::vector<std::uint32_t> RanksOfRows(const Rows& rows, const TextOfRow& textOf) {
        std::unordered_map<const void*, std::uint32_t> numbers;
        std::vector<std::string_view> texts;
        std::vector<std::uint32_t> numberOf;
        numberOf.reserve(rows.size());
        for (const std::uint32_t row : rows) {
            poll_.Step();
            const SharedText text = textOf(row);
            const auto [found, isNew] =
                numbers.emplace(text.Identity(), static_cast<std::uint32_t>(texts.size()));
            if (isNew) {
                texts.push_back(text);
            }
            numberOf.push_back(found->second);
        }
        const bool anyLong = std::any_of(texts.begin(), texts.end(),
                                         [](std::string_view text) { return text.size() >= kLongTextBytes; });
        const std::vector<std::uint32_t> ranks =
            collation_.Ranks(texts, [&] { anyLong ? poll_.Ask() : poll_.Step(); });
        for (std::uint32_t& number : numberOf) {
            number = ranks[number];
        }
        return numberOf;
    }

    // Sorts by album artist, album, disc and track. Returns the runs of equal rows.
    std::vector<Run> ByNumbers() {
        const auto artists = RanksOfRows(order_, [this](std::uint32_t row) { return ArtistOf(row); });
        const auto albums = RanksOfRows(order_, [this](std::uint32_t row) { return Row(row).Album; });
        std::vector<Key> keys;
        keys.reserve(order_.size());
        for (const std::uint32_t row : order_) {
            const ExtraTexts& extras = Extras(row);
            keys.push_back(
                {artists[row], albums[row], LeadingNumber(extras.Disc), LeadingNumber(extras.Track), row});
        }
        std::sort(keys.begin(), keys.end(), [this](const Key& a, const Key& b) {
            poll_.Step();
            return a.Fields() < b.Fields();
        });
        std::transform(keys.begin(), keys.end(), order_.begin(), [](const Key& key) { return key.row; });
        return RunsOf({0, keys.size()},
                      [&](std::size_t a, std::size_t b) { return keys[a].Fields() == keys[b].Fields(); });
    }

    // The runs of two and more equal places within `whole`.
    template <typename Equal> static std::vector<Run> RunsOf(Run whole, Equal equal) {
        std::vector<Run> runs;
        for (std::size_t begin = whole.begin; begin < whole.end;) {
            std::size_t end = begin + 1;
            while (end < whole.end && equal(begin, end)) {
                ++end;
            }
            if (end - begin > 1) {
                runs.push_back({begin, end});
            }
            begin = end;
        }
        return runs;
    }

    // Sorts the rows of each run by a text. Returns the runs of rows that are still equal.
    std::vector<Run> Refined(const std::vector<Run>& runs, const TextOfRow& textOf) {
        Rows rows;
        for (const Run& run : runs) {
            rows.insert(rows.end(), Place(run.begin), Place(run.end));
        }
        const std::vector<std::uint32_t> ranks = RanksOfRows(rows, textOf);
        std::vector<Run> equal;
        std::size_t next = 0;
        for (const Run& run : runs) {
            std::vector<std::pair<std::uint32_t, std::uint32_t>> ranked; // rank, row
            for (std::size_t place = run.begin; place < run.end; ++place, ++next) {
                ranked.emplace_back(ranks[next], rows[next]);
            }
            std::sort(ranked.begin(), ranked.end());
            std::transform(ranked.begin(), ranked.end(), Place(run.begin),
                           [](const auto& pair) { return pair.second; });
            const auto within = RunsOf({0, ranked.size()}, [&](std::size_t a, std::size_t b) {
                return ranked[a].first == ranked[b].first;
            });
            for (const Run& part : within) {
                equal.push_back({run.begin + part.begin, run.begin + part.end});
            }
        }
        return equal;
    }

    void ByPath(const std::vector<Run>& runs) {
        for (const Run& run : Refined(runs, [this](std::uint32_t row) { return Row(row).FullPath; })) {
            std::stable_sort(Place(run.begin), Place(run.end), [this](std::uint32_t a, std::uint32_t b) {
                poll_.Step();
                return Row(a).FullPath.View() < Row(b).FullPath.View();
            });
        }
    }

    Rows::iterator Place(std::size_t place) { return order_.begin() + static_cast<std::ptrdiff_t>(place); }

    const TrackTable& table_;
    const Collation& collation_;
    AbortPoll poll_;
    Rows order_;
};

} // namespace

bool SortByAlbum(TrackTable& table, std::int16_t sortOrder, const Collation& collation, RunMonitor& monitor) {
    try {
        AlbumOrder order(table, collation, monitor);
        const bool byAlbum = sortOrder == kAscending || sortOrder == kDescending;
        Rows rows = byAlbum ? order.ByAlbum() : order.ByPath();
        if (sortOrder == kDescending) {
            std::reverse(rows.begin(), rows.end());
        }
        table.Reorder(rows);
    } catch (const SortAborted&) {
        return true;
    }
    return false;
}

} // namespace tunedex
