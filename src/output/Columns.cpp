#include "Columns.h"

#include "RunTimeError.h"
#include "SizeText.h"
#include "Text.h"

#include <algorithm>

namespace tunedex {

namespace {

constexpr std::string_view kArtistTitleName = "ArtistTitle";
constexpr std::string_view kArtistAlbumTitleName = "ArtistAlbumTitle";

std::u32string ReplaceEach(std::u32string_view list, std::u32string_view from, std::u32string_view to) {
    std::u32string result;
    std::size_t start = 0;
    for (std::size_t hit = list.find(from); hit != std::u32string_view::npos; hit = list.find(from, start)) {
        result.append(list, start, hit - start).append(to);
        start = hit + from.size();
    }
    return result.append(list, start);
}

std::u32string Remove(std::u32string_view list, std::u32string_view name) {
    return ReplaceEach(ReplaceEach(list, name, U""), U"||", U"|");
}

std::u32string MergedName(std::int16_t merge) {
    if (merge == 1) {
        return Characters(kArtistTitleName);
    }
    return merge == 2 ? Characters(kArtistAlbumTitleName) : std::u32string();
}

} // namespace

ColumnKey ColumnKeyOf(std::string_view name) {
    const std::string key = UpperCase(name);
    if (key == "ARTISTTITLE") {
        return ColumnKey::ArtistTitle;
    }
    if (key == "ARTISTALBUMTITLE") {
        return ColumnKey::ArtistAlbumTitle;
    }
    for (std::size_t i = 0; i < kColumnNames.size(); ++i) {
        if (UpperCase(kColumnNames.at(i)) == key) {
            return static_cast<ColumnKey>(i);
        }
    }
    return ColumnKey::Unknown;
}

std::string MergeColumns(const std::string& activeColumns, std::int16_t merge) {
    // Positions and lengths count characters.
    const std::u32string active = Characters(activeColumns);
    const std::u32string upper = Characters(UpperCase(activeColumns));
    const std::size_t artist = upper.find(U"ARTIST");
    const std::size_t title = upper.find(U"TITLE");
    if (merge <= 0 || artist == std::u32string::npos || title == std::u32string::npos) {
        return activeColumns;
    }
    // Deliberate: positions are those from before the removals, so the list is cut wrongly where Album comes
    // first. Lists have always been written so.
    const std::size_t start = std::min(artist, title);
    const std::size_t bar = upper.find(U'|', start); // none: the whole list is its own end
    std::u32string list = Remove(active, artist < title ? U"Title" : U"Artist");
    if (merge == 2) {
        list = Remove(list, U"Album");
    }
    const std::size_t barPosition = bar == std::u32string::npos ? 0 : bar + 1;
    if (list.size() + 1 < barPosition) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    const std::size_t endLength = std::min(list.size() + 1 - barPosition, list.size());
    std::u32string merged = list.substr(0, start) + MergedName(merge) + list.substr(list.size() - endLength);
    if (merged.ends_with(U'|')) {
        merged.pop_back();
    }
    if (merged.starts_with(U'|')) {
        merged.erase(0, 1);
    }
    return FromCharacters(merged);
}

std::vector<Column> SplitColumns(const std::string& columnList) {
    std::vector<Column> columns;
    for (const std::string& name : Split(columnList, "|")) {
        columns.push_back({name, ColumnKeyOf(name)});
    }
    return columns;
}

std::string HeaderText(const Column& column) {
    switch (column.key) {
    case ColumnKey::ArtistTitle:
        return "Artist: Title";
    case ColumnKey::ArtistAlbumTitle:
        return "Artist (Album): Title";
    default:
        return column.name;
    }
}

std::optional<std::string_view> StoredText(ColumnKey key, const TrackRow& track) {
    switch (key) {
    case ColumnKey::Artist:
        return track.Artist;
    case ColumnKey::Album:
        return track.Album;
    case ColumnKey::Title:
        return track.Title;
    case ColumnKey::Year:
        return track.Year;
    case ColumnKey::Genre:
        return track.Genre;
    case ColumnKey::MpegType:
        return track.MpegType;
    case ColumnKey::Mode:
        return track.Mode;
    case ColumnKey::Bitrate:
        return track.Bitrate;
    case ColumnKey::Frequency:
        return track.Frequency;
    case ColumnKey::Duration:
        return track.Duration;
    case ColumnKey::FullPath:
        return track.FullPath;
    default:
        return std::nullopt;
    }
}

void PutCellText(PageBuffer& page, ColumnKey key, const TrackRow& track, std::size_t position,
                 const CellContext& context) {
    if (const auto stored = StoredText(key, track)) {
        page.PutPadded(*stored);
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
