#include "CellText.h"

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

} // namespace tunedex
