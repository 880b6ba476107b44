// The table of tracks: a million of them in memory, so a row holds pointers into one store of texts, in which
// texts that many files share stand once.
#pragma once

#include "LongText.h"
#include "SharedText.h"
#include "TrackInfo.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tunedex {

class TextStore {
  public:
    // A text of its own; a long one is shared.
    SharedText Add(std::string_view text);
    // The one copy of this text.
    SharedText Share(std::string_view text);
    // The same, and remembers it in `last`: neighbours share most of what they share.
    SharedText Share(std::string_view text, SharedText& last) {
        return last.View() == text ? last : last = Share(text);
    }
    // A long text, kept as long as the store.
    SharedText Keep(const LongTextHandle& text);

    // Where long texts become those of this store.
    LongTextPool& LongTexts() { return *longTexts_; }

  private:
    void GrowIndex();

    struct FreeBlock {
        void operator()(char* block) const;
    };

    void AddBlock(std::size_t needed);

    std::vector<std::unique_ptr<char, FreeBlock>> blocks_;
    std::size_t left_ = 0; // bytes free in the last block
    char* next_ = nullptr;
    std::vector<SharedText> index_; // open addressing, a power of two long
    std::size_t indexed_ = 0;
    std::unique_ptr<LongTextPool> longTexts_ = std::make_unique<LongTextPool>(); // a store can be moved
    std::unordered_map<const void*, LongTextHandle> kept_;                       // by identity
};

// What moves when two rows are exchanged. The members are those of TrackInfo.
struct MovingPart {
    SharedText FullPath;
    SharedText Artist;
    SharedText Title;
    SharedText Album;
    SharedText Year;
    SharedText Genre;
    SharedText Bitrate;
    SharedText Frequency;
    SharedText Duration;
    std::int32_t FileSize = 0;
};

// One track: the part that moves, and what stays with its row. Deliberate: after sorting, a row's tag kind,
// base folder, mode and MPEG type are those of the file that was found there first. Lists have always been
// written so.
struct TrackRow : MovingPart {
    std::int16_t TagType = kNoTag; // first, in the padding of the other part
    SharedText BaseFolder;
    SharedText Mode;
    SharedText MpegType;
};

// Exchanges two rows' moving parts.
inline void SwapTracks(TrackRow& a, TrackRow& b) {
    std::swap<MovingPart>(a, b);
}

class TrackTable {
  public:
    TrackTable() = default;
    // Room for that many tracks, so that collecting them never moves the table.
    explicit TrackTable(std::size_t count) { rows_.reserve(count); }

    void Append(const TrackInfo& track);
    // For readers: long texts shared here cost the table no second copy.
    LongTextPool& LongTexts() { return texts_.LongTexts(); }

    std::size_t Count() const { return rows_.size(); }
    // Tracks are numbered from 1 to Count().
    const TrackRow& At(std::size_t position) const { return rows_[position - 1]; }
    std::vector<TrackRow>& Rows() { return rows_; }

    // Brings the texts of a track some way ahead of `position` closer to the processor: in a sorted table
    // neighbours' texts are far apart, and waiting for memory would be most of what writing costs. Inlined by
    // order: taken for a function without effect, its calls would be dropped.
    [[gnu::always_inline]] void PrefetchAhead(std::size_t position, bool paths) const {
        constexpr std::size_t kAhead = 8;
        __builtin_prefetch(rows_.data() + std::min(position + 3 * kAhead, rows_.size()));
        if (position + kAhead <= rows_.size()) {
            const TrackRow& row = At(position + kAhead);
            for (const SharedText text : {row.Artist, row.Album, row.Title, row.Duration}) {
                __builtin_prefetch(text.Identity());
            }
            if (paths) {
                __builtin_prefetch(row.FullPath.Identity());
            }
        }
    }

    // A copy that stands for itself.
    TrackInfo Copy(std::size_t position) const;

  private:
    TextStore texts_;
    TrackRow last_; // the texts that the latest track shares
    std::vector<TrackRow> rows_;
};

} // namespace tunedex
