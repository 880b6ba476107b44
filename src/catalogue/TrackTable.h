// The table of tracks.
#pragma once

#include "TextStore.h"
#include "TrackInfo.h"
#include "TrackRow.h"

#include <cstddef>
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
    std::vector<TrackRow>& Rows() { return rows_; }

    // A copy that is independent of the table.
    TrackInfo Copy(std::size_t position) const;

  private:
    SharedText Store(const TrackInfo& track, const StoredText& text);
    SharedText StoreUntagged(const TrackInfo& track, const StoredText& text, const TrackRow& row);

    TextStore texts_;
    TrackRow last_; // the latest text of each member
    std::vector<TrackRow> rows_;
};

} // namespace tunedex
