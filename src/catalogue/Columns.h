// The columns that listings are made of. Each is one row of one table: what the settings call it, how it is
// aligned, and the stored text that it shows.
#pragma once

#include "TrackTable.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

enum class ColumnKey {
    Number,
    Artist,
    Album,
    Title,
    Year,
    Genre,
    MpegType,
    Mode,
    Bitrate,
    Frequency,
    Duration,
    FileSize,
    Filename,
    FolderPath,
    FullPath,
    ArtistTitle,      // made by merging columns
    ArtistAlbumTitle, // made by merging columns
    Unknown,          // a name that is no column's, from a hand-edited file: it has a header and no cells
};

struct ColumnKind {
    ColumnKey key;
    std::string_view name;           // as settings hold it
    bool leftHeader = false;         // the header is aligned left, not centred
    bool rightCells = false;         // cells are aligned right
    bool blankForEmpty = false;      // an empty text shows as "&nbsp;" in pages, so that its cell is painted
    SharedText TrackRow::*text = {}; // the stored text it shows; none where the writers make the text
    std::string_view header = {};    // its header in listings; none where that is the name in the settings
};

// In the order of the keys; the columns that users can choose come first, in the order in which they are
// offered.
inline constexpr std::array kColumns = {
    ColumnKind{.key = ColumnKey::Number, .name = "Number", .rightCells = true},
    ColumnKind{.key = ColumnKey::Artist, .name = "Artist", .leftHeader = true, .text = &TrackRow::Artist},
    ColumnKind{.key = ColumnKey::Album,
               .name = "Album",
               .leftHeader = true,
               .blankForEmpty = true,
               .text = &TrackRow::Album},
    ColumnKind{.key = ColumnKey::Title, .name = "Title", .leftHeader = true, .text = &TrackRow::Title},
    ColumnKind{.key = ColumnKey::Year, .name = "Year", .blankForEmpty = true, .text = &TrackRow::Year},
    ColumnKind{.key = ColumnKey::Genre, .name = "Genre", .blankForEmpty = true, .text = &TrackRow::Genre},
    ColumnKind{.key = ColumnKey::MpegType, .name = "MPEG Type", .text = &TrackRow::MpegType},
    ColumnKind{.key = ColumnKey::Mode, .name = "Mode", .text = &TrackRow::Mode},
    ColumnKind{.key = ColumnKey::Bitrate, .name = "Bitrate", .rightCells = true, .text = &TrackRow::Bitrate},
    ColumnKind{
        .key = ColumnKey::Frequency, .name = "Frequency", .rightCells = true, .text = &TrackRow::Frequency},
    ColumnKind{
        .key = ColumnKey::Duration, .name = "Duration", .rightCells = true, .text = &TrackRow::Duration},
    ColumnKind{.key = ColumnKey::FileSize, .name = "File Size", .rightCells = true},
    ColumnKind{.key = ColumnKey::Filename, .name = "Filename", .leftHeader = true},
    ColumnKind{.key = ColumnKey::FolderPath, .name = "Folder Path", .leftHeader = true},
    ColumnKind{
        .key = ColumnKey::FullPath, .name = "Full Path", .leftHeader = true, .text = &TrackRow::FullPath},
    ColumnKind{
        .key = ColumnKey::ArtistTitle, .name = "ArtistTitle", .leftHeader = true, .header = "Artist: Title"},
    ColumnKind{.key = ColumnKey::ArtistAlbumTitle,
               .name = "ArtistAlbumTitle",
               .leftHeader = true,
               .header = "Artist (Album): Title"},
    ColumnKind{.key = ColumnKey::Unknown, .name = ""},
};
static_assert(
    [] {
        for (std::size_t i = 0; i < kColumns.size(); ++i) {
            if (kColumns[i].key != static_cast<ColumnKey>(i)) {
                return false;
            }
        }
        return kColumns.size() == static_cast<std::size_t>(ColumnKey::Unknown) + 1;
    }(),
    "the table has a row for each key, in the order of the keys");

// The row of a key.
constexpr const ColumnKind& KindOf(ColumnKey key) {
    return kColumns[static_cast<std::size_t>(key)];
}

struct Column {
    std::string name; // as the settings spell it, or the merge's
    ColumnKey key = ColumnKey::Unknown;
};

// The column of that name, compared without regard to case.
ColumnKey ColumnKeyOf(std::string_view name);

// The column list of a listing: `activeColumns` with artist and title (`merge` 1) or artist, album and title
// (2) made one column where both artist and title are active. Positions count characters, a stray byte as
// one. Raises error 5 where album comes so far before the others that nothing is left behind them.
std::string MergeColumns(const std::string& activeColumns, std::int16_t merge);

std::vector<Column> SplitColumns(const std::string& columnList);

// A column's header.
std::string HeaderText(const Column& column);

} // namespace tunedex
