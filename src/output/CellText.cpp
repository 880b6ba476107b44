#include "CellText.h"

#include "SizeText.h"

namespace tunedex {

std::optional<std::string_view> TrackText(ColumnKey key, const TrackTable& tracks, std::size_t position,
                                          PathStyle pathStyle) {
    const TrackRow& track = tracks.At(position);
    if (const auto text = KindOf(key).text) {
        return std::string_view(track.*text);
    }
    if (const auto extra = KindOf(key).extra) {
        return std::string_view(tracks.ExtrasAt(position).*extra);
    }
    switch (key) {
    case ColumnKey::Filename:
        return FileNameOf(track.FullPath, pathStyle);
    case ColumnKey::FolderPath:
        return FolderPathOf(track.FullPath, pathStyle);
    default:
        return std::nullopt;
    }
}

void PutCellText(PageBuffer& page, ColumnKey key, const TrackTable& tracks, std::size_t position,
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
