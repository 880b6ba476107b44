// The plain text of a track in a column.
#pragma once

#include "Columns.h"
#include "Locale.h"
#include "PageBuffer.h"
#include "Path.h"
#include "SizeText.h"
#include "TrackTable.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tunedex {

// Context of all cells of a listing.
struct CellContext {
    std::int16_t sizeType;
    const Locale& locale;
    PathStyle pathStyle;
};

// The text of a column that shows a stored text, or a part of one, for track `position` (1-based); none where
// the text is made.
std::optional<std::string_view> TrackText(ColumnKey key, const TrackTable& tracks, std::size_t position,
                                          PathStyle pathStyle);

// Appends the text of column `key` for track `position` (1-based); nothing for ColumnKey::Unknown. `Page` is
// a PageBuffer or has the same Put() and PutNumber(); a cell can take several calls.
template <class Page>
void PutCellText(Page& page, ColumnKey key, const TrackTable& tracks, std::size_t position,
                 const CellContext& context) {
    if (const auto text = TrackText(key, tracks, position, context.pathStyle)) {
        page.Put(*text);
        return;
    }
    const TrackRow& track = tracks.At(position);
    switch (key) {
    case ColumnKey::Number:
        page.PutNumber(static_cast<std::int64_t>(position));
        return;
    case ColumnKey::FileSize:
        page.Put(SizeText(track.FileSize, context.sizeType, context.locale));
        return;
    case ColumnKey::ArtistTitle:
    case ColumnKey::ArtistAlbumTitle:
        page.Put(track.Artist);
        if (key == ColumnKey::ArtistAlbumTitle && !track.Album.Empty()) {
            page.Put(" (");
            page.Put(track.Album);
            page.Put(")");
        }
        page.Put(": ");
        page.Put(track.Title);
        return;
    default:
        return; // an unknown column has no cells
    }
}

} // namespace tunedex
