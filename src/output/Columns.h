// The fifteen columns that every listing is made of, the two that a merge makes, and the text of a track
// under each.
#pragma once

#include "Locale.h"
#include "PageBuffer.h"
#include "Path.h"
#include "TrackTable.h"

#include <array>
#include <cstdint>
#include <optional>
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
    ArtistTitle,
    ArtistAlbumTitle,
    Unknown, // a name from a hand-edited file: a column without cells
};

// The columns a user can choose, by their display names, in the order in which they are offered.
inline constexpr std::array<std::string_view, 15> kColumnNames = {
    "Number",  "Artist",    "Album",    "Title",     "Year",     "Genre",       "MPEG Type", "Mode",
    "Bitrate", "Frequency", "Duration", "File Size", "Filename", "Folder Path", "Full Path"};

struct Column {
    std::string name; // as it stands in the settings, or the merge's
    ColumnKey key = ColumnKey::Unknown;
};

// The column that a name stands for, in whatever case it is written.
ColumnKey ColumnKeyOf(std::string_view name);

// The column list of a listing: `activeColumns` with artist and title (`merge` 1) or artist, album and title
// (2) made one column where both artist and title are active. Raises error 5 where album stands so far before
// the others that nothing is left behind them.
std::string MergeColumns(const std::string& activeColumns, std::int16_t merge);

std::vector<Column> SplitColumns(const std::string& columnList);

// What stands over a column.
std::string HeaderText(const Column& column);

// How the texts of cells are taken from a track.
struct CellContext {
    std::int16_t sizeType;
    const Locale& locale;
    PathStyle pathStyle;
};

// The text of a track under a column that shows a stored text as it stands, padded for a PageBuffer; nothing
// for the columns that make theirs.
std::optional<std::string_view> StoredText(ColumnKey key, const TrackRow& track);

// Appends the plain text of track `position` (counted from 1) under `key`; nothing for an unknown one.
void PutCellText(PageBuffer& page, ColumnKey key, const TrackRow& track, std::size_t position,
                 const CellContext& context);

} // namespace tunedex
