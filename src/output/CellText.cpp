#include "CellText.h"

#include "SizeText.h"

namespace tunedex {

void PutCellText(PageBuffer& page, ColumnKey key, const TrackRow& track, std::size_t position,
                 const CellContext& context) {
    if (const auto text = KindOf(key).text) {
        page.Put(track.*text);
        return;
    }
    switch (key) {
    case ColumnKey::Number:
        page.PutNumber(static_cast<std::int64_t>(position));
        return;
    case ColumnKey::FileSize:
        page.Put(SizeText(track.FileSize, context.sizeType, context.locale));
        return;
    case ColumnKey::Filename:
        page.Put(FileNameOf(track.FullPath, context.pathStyle));
        return;
    case ColumnKey::FolderPath:
        page.Put(FolderPathOf(track.FullPath, context.pathStyle));
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
