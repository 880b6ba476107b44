#include "CellText.h"

#include "SizeText.h"

namespace tunedex {

void PutCellText(PageBuffer& page, ColumnKey key, const TrackRow& track, std::size_t position,
                 const CellContext& context) {
    if (const auto text = KindOf(key).text) {
        page.PutPadded(track.*text);
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
        page.PutPadded(FileNameOf(track.FullPath, context.pathStyle));
        return;
    case ColumnKey::FolderPath:
        page.PutPadded(FolderPathOf(track.FullPath, context.pathStyle));
        return;
    case ColumnKey::ArtistTitle:
    case ColumnKey::ArtistAlbumTitle:
        page.PutPadded(track.Artist);
        if (key == ColumnKey::ArtistAlbumTitle && !track.Album.Empty()) {
            page.Put(" (");
            page.PutPadded(track.Album);
            page.Put(")");
        }
        page.Put(": ");
        page.PutPadded(track.Title);
        return;
    default:
        return; // an unknown column has no cells
    }
}

} // namespace tunedex
