// The table of tracks.
#pragma once

#include "TextStore.h"
#include "TrackInfo.h"
#include "TrackRow.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tunedex {

struct StoredText;

// A million tracks fit in memory because a row holds pointers into one text store, in which a text that many
// tracks share is stored once.
class TrackTable {
  public:
    TrackTable() = default;
    // Reserves rows for `count` tracks, so that Append() never moves the table.
    explicit TrackTable(std::size_t count) { rows_.reserve(count); }

    void Append(const TrackInfo& track);
    // Where readers share long texts, so that Append() need not copy them. Thread-safe.
    LongTextPool& LongTexts() { return texts_.LongTexts(); }

    std::size_t Count() const { return rows_.size(); }
    // Positions run from 1 to Count().
    const TrackRow& At(std::size_t position) const { return rows_[position - 1]; }
    const ExtraTexts& ExtrasAt(std::size_t position) const {
        return position <= extras_.size() ? extras_[position - 1] : kNoExtras;
    }
    std::vector<TrackRow>& Rows() { return rows_; }

    // Moves whole tracks: position p gets the track from position order[p - 1] + 1. `order` holds each number
    // below Count() once.
    void Reorder(const std::vector<std::uint32_t>& order);

    // A copy that is independent of the table.
    TrackInfo Copy(std::size_t position) const;

  private:
    static const ExtraTexts kNoExtras;

    SharedText Store(const TrackInfo& track, const StoredText& text);
    void AppendExtras(const TrackInfo& track);
    SharedText StoreUntagged(const TrackInfo& track, const StoredText& text, const TrackRow& row);

    TextStore texts_;
    TrackRow last_; // the latest text of each member
    ExtraTexts lastExtras_;
    std::vector<TrackRow> rows_;
    std::vector<ExtraTexts> extras_; // of the first rows; those behind have none
};

} // namespace tunedex
