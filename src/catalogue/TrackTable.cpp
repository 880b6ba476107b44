#include "TrackTable.h"

#include "StoredTexts.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>

namespace tunedex {

namespace {

SharedText TrackRow::*StoredMember(std::string TrackInfo::*read) {
    return std::find_if(kStoredTexts.begin(), kStoredTexts.end(),
                        [read](const StoredText& text) { return text.read == read; })
        ->stored;
}

} // namespace

// A file without tags shows its path as artist and the same title as all others of its kind.
SharedText TrackTable::StoreUntagged(const TrackInfo& track, const StoredText& text, const TrackRow& row) {
    const std::string& value = track.*text.read;
    return value == track.FullPath ? row.FullPath : texts_.Share(value, last_.*text.stored);
}

SharedText TrackTable::Store(const TrackInfo& track, const StoredText& text) {
    const std::string& value = track.*text.read;
    switch (text.sharing) {
    case TextSharing::None:
        return texts_.Add(value);
    case TextSharing::AllTracks:
        return texts_.Share(value);
    case TextSharing::LatestFirst:
        break;
    }
    return texts_.Share(value, last_.*text.stored);
}

void TrackTable::Append(const TrackInfo& track) {
    TrackRow row;
    row.FullPath = texts_.Add(track.FullPath);
    for (const StoredText& text : std::span(kStoredTexts).subspan<1>()) {
        row.*text.stored = track.TagType == kNoTag ? StoreUntagged(track, text, row) : Store(track, text);
    }
    row.FileSize = static_cast<std::uint32_t>(track.FileSize);
    row.Seconds = static_cast<std::uint32_t>(track.Seconds);
    row.TagType = static_cast<std::uint8_t>(track.TagType);
    for (const LongField& field : track.LongFields) {
        row.*StoredMember(field.field) = texts_.Keep(field.text);
    }
    rows_.push_back(row);
}

TrackInfo TrackTable::Copy(std::size_t position) const {
    const TrackRow& row = At(position);
    TrackInfo track;
    for (const StoredText& text : kStoredTexts) {
        track.*text.read = (row.*text.stored).View();
    }
    track.FileSize = static_cast<std::int32_t>(row.FileSize);
    track.Seconds = static_cast<std::int32_t>(row.Seconds);
    track.TagType = row.TagType;
    return track;
}

} // namespace tunedex
