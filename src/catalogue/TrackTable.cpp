#include "TrackTable.h"

#include "StoredTexts.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>

namespace tunedex {

namespace {

// The row of the table of texts with this member of the track; null if there is none.
template <typename Texts> auto FindText(const Texts& texts, std::string TrackInfo::*read) {
    const auto* const found =
        std::find_if(texts.begin(), texts.end(), [read](const auto& text) { return text.read == read; });
    return found == texts.end() ? nullptr : found;
}

bool HasExtras(const TrackInfo& track) {
    const auto isLong = [](const LongField& field) { return FindText(kExtraTexts, field.field) != nullptr; };
    return std::any_of(kExtraTexts.begin(), kExtraTexts.end(),
                       [&](const ExtraText& text) { return !(track.*text.read).empty(); }) ||
           std::any_of(track.LongFields.begin(), track.LongFields.end(), isLong);
}

// `from` with its elements in the given order; those behind its end are empty.
template <typename Element>
std::vector<Element> InOrder(const std::vector<Element>& from, const std::vector<std::uint32_t>& order) {
    std::vector<Element> result;
    result.reserve(from.capacity());
    for (const std::uint32_t element : order) {
        result.push_back(element < from.size() ? from[element] : Element());
    }
    return result;
}

} // namespace

const ExtraTexts TrackTable::kNoExtras;

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
        if (const auto* const text = FindText(kStoredTexts, field.field)) {
            row.*text->stored = texts_.Keep(field.text);
        }
    }
    rows_.push_back(row);
    if (HasExtras(track)) {
        AppendExtras(track);
    }
}

void TrackTable::AppendExtras(const TrackInfo& track) {
    extras_.reserve(rows_.capacity());
    extras_.resize(rows_.size());
    for (const ExtraText& text : kExtraTexts) {
        extras_.back().*text.stored = texts_.Share(track.*text.read, lastExtras_.*text.stored);
    }
    for (const LongField& field : track.LongFields) {
        if (const auto* const text = FindText(kExtraTexts, field.field)) {
            extras_.back().*text->stored = texts_.Keep(field.text);
        }
    }
}

void TrackTable::Reorder(const std::vector<std::uint32_t>& order) {
    rows_ = InOrder(rows_, order);
    if (!extras_.empty()) {
        extras_ = InOrder(extras_, order);
    }
}

TrackInfo TrackTable::Copy(std::size_t position) const {
    const TrackRow& row = At(position);
    TrackInfo track;
    for (const StoredText& text : kStoredTexts) {
        track.*text.read = (row.*text.stored).View();
    }
    for (const ExtraText& text : kExtraTexts) {
        track.*text.read = (ExtrasAt(position).*text.stored).View();
    }
    track.FileSize = static_cast<std::int32_t>(row.FileSize);
    track.Seconds = static_cast<std::int32_t>(row.Seconds);
    track.TagType = row.TagType;
    return track;
}

} // namespace tunedex
