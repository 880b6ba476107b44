#include "Html5Rows.h"

#include "HTMLBits.h"
#include "PlayTime.h"
#include "Uri.h"

#include <string_view>

namespace tunedex {

namespace {

constexpr std::string_view kNoArtist = "No artist";

} // namespace

void PutHtml5Heading(PageBuffer& page, const Html5Heading& heading, std::size_t span) {
    page.Put("<tr class=\"album\"><th scope=\"rowgroup\" colspan=\"");
    page.PutNumber(static_cast<std::int64_t>(span));
    page.Put("\"><span>");
    PutHtml5Text(page, heading.artist.empty() ? kNoArtist : std::string_view(heading.artist));
    page.Put("</span> ");
    PutHtml5Text(page, heading.album);
    page.Put(" <small>");
    page.PutNumber(static_cast<std::int64_t>(heading.tracks));
    page.Put(heading.tracks == 1 ? " track, " : " tracks, ");
    page.Put(HoursMinutesAndSeconds(heading.seconds));
    page.Put("</small>\n");
}

void Html5Rows::PutTrack(PageBuffer& page, std::size_t position) const {
    page.Put("<tr>");
    for (const Html5Column& column : columns_) {
        page.Put("<td>");
        if (column.isLink) {
            page.Put("<a href=\"");
            page.Put(Html5Text(LinkOf(position), TextPlace::Attribute));
            page.Put("\">Link</a>");
        } else {
            PutCell(page, column.key, position);
        }
    }
    page.Put("\n");
}

void Html5Rows::PutCell(PageBuffer& page, ColumnKey key, std::size_t position) const {
    Html5Cell cell(page);
    if (key != ColumnKey::ArtistTitle && key != ColumnKey::ArtistAlbumTitle) {
        PutCellText(cell, key, listing_.tracks, position, listing_.Cells());
        return;
    }
    const TrackRow& track = listing_.tracks.At(position);
    page.Put("<b>");
    cell.Put(track.Artist);
    if (key == ColumnKey::ArtistAlbumTitle && !track.Album.Empty()) {
        page.Put(" (");
        cell.Put(track.Album);
        page.Put(")");
    }
    page.Put(":</b> ");
    cell.Put(track.Title);
}

void Html5Rows::PutIndexed(PageBuffer& index, std::size_t position) const {
    std::string_view separator = "[\"";
    for (const Html5Column& column : columns_) {
        index.Put(separator);
        if (column.isLink) {
            PutHtml5Text(index, LinkOf(position), TextPlace::Json);
        } else {
            Html5Cell cell(index, TextPlace::Json);
            PutCellText(cell, column.key, listing_.tracks, position, listing_.Cells());
        }
        separator = "\",\"";
    }
    index.Put("\"]");
}

std::string Html5Rows::LinkOf(std::size_t position) const {
    return listing_.settings.LinkPrefix +
           PercentEncoded(LinkPath(listing_.settings, listing_.tracks.At(position), listing_.pathStyle));
}

} // namespace tunedex
