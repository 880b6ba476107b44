// The columns of a listing. One table holds each column's name in the settings, alignment, and the stored
// text that it shows.
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
    Duration,
    Bitrate,
    FileSize,
    Frequency,
    Genre,
    Mode,
    MpegType,
    Year,
    Filename,
    FolderPath,
    FullPath,
    Track,
    Disc,
    AlbumArtist,
    Composer,
    Comment,
    ArtistTitle,      // a merged column
    ArtistAlbumTitle, // a merged column
    Unknown,          // a name that no column has, from a hand-edited file: a header without cells
};

struct ColumnKind {
    ColumnKey key;
    std::string_view name;      // in the settings
    bool shown = false;         // in the listings of a new user
    bool leftHeader = false;    // header left-aligned; default centred
    bool rightCells = false;    // cells right-aligned; default left
    bool blankForEmpty = false; // an empty text becomes "&nbsp;" in pages: browsers do not draw empty cells
    SharedText TrackRow::*text = {};    // the text it shows, or
    SharedText ExtraTexts::*extra = {}; // one of these; both null where the writers make it
    std::string_view header = {};       // its header in listings; empty: the name in the settings

    // Whether it shows a text that only the modern readers fill. Classic listings do not know it.
    constexpr bool IsModern() const { return extra != nullptr; }
};

// In the order of the keys. The columns that users choose come first, in the order in which a new user has
// them.
inline constexpr std::array kColumns = {
    ColumnKind{.key = ColumnKey::Number, .name = "Number", .shown = true, .rightCells = true},
    ColumnKind{.key = ColumnKey::Artist,
               .name = "Artist",
               .shown = true,
               .leftHeader = true,
               .text = &TrackRow::Artist},
    ColumnKind{.key = ColumnKey::Album,
               .name = "Album",
               .shown = true,
               .leftHeader = true,
               .blankForEmpty = true,
               .text = &TrackRow::Album},
    ColumnKind{.key = ColumnKey::Title,
               .name = "Title",
               .shown = true,
               .leftHeader = true,
               .text = &TrackRow::Title},
    ColumnKind{.key = ColumnKey::Duration,
               .name = "Duration",
               .shown = true,
               .rightCells = true,
               .text = &TrackRow::Duration},
    ColumnKind{.key = ColumnKey::Bitrate, .name = "Bitrate", .rightCells = true, .text = &TrackRow::Bitrate},
    ColumnKind{.key = ColumnKey::FileSize, .name = "File Size", .rightCells = true},
    ColumnKind{
        .key = ColumnKey::Frequency, .name = "Frequency", .rightCells = true, .text = &TrackRow::Frequency},
    ColumnKind{.key = ColumnKey::Genre, .name = "Genre", .blankForEmpty = true, .text = &TrackRow::Genre},
    ColumnKind{.key = ColumnKey::Mode, .name = "Mode", .text = &TrackRow::Mode},
    ColumnKind{.key = ColumnKey::MpegType, .name = "MPEG Type", .text = &TrackRow::MpegType},
    ColumnKind{.key = ColumnKey::Year, .name = "Year", .blankForEmpty = true, .text = &TrackRow::Year},
    ColumnKind{.key = ColumnKey::Filename, .name = "Filename", .leftHeader = true},
    ColumnKind{.key = ColumnKey::FolderPath, .name = "Folder Path", .leftHeader = true},
    ColumnKind{
        .key = ColumnKey::FullPath, .name = "Full Path", .leftHeader = true, .text = &TrackRow::FullPath},
    ColumnKind{.key = ColumnKey::Track,
               .name = "Track",
               .rightCells = true,
               .blankForEmpty = true,
               .extra = &ExtraTexts::Track},
    ColumnKind{.key = ColumnKey::Disc,
               .name = "Disc",
               .rightCells = true,
               .blankForEmpty = true,
               .extra = &ExtraTexts::Disc},
    ColumnKind{.key = ColumnKey::AlbumArtist,
               .name = "Album Artist",
               .leftHeader = true,
               .blankForEmpty = true,
               .extra = &ExtraTexts::AlbumArtist},
    ColumnKind{.key = ColumnKey::Composer,
               .name = "Composer",
               .leftHeader = true,
               .blankForEmpty = true,
               .extra = &ExtraTexts::Composer},
    ColumnKind{.key = ColumnKey::Comment,
               .name = "Comment",
               .leftHeader = true,
               .blankForEmpty = true,
               .extra = &ExtraTexts::Comment},
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

constexpr const ColumnKind& KindOf(ColumnKey key) {
    return kColumns[static_cast<std::size_t>(key)];
}

// The columns of a listing: all, or those that do not need the modern readers.
enum class ColumnSet { Classic, Modern };

constexpr bool IsIn(ColumnSet set, ColumnKey key) {
    return set == ColumnSet::Modern || !KindOf(key).IsModern();
}

// Whether users can choose the column; they cannot choose merged and unknown ones.
constexpr bool IsChoosable(ColumnKey key, ColumnSet set = ColumnSet::Classic) {
    return key < ColumnKey::ArtistTitle && IsIn(set, key);
}

struct Column {
    std::string name; // as spelt in the settings, or the name of the merged column
    ColumnKey key = ColumnKey::Unknown;
};

// The key of a name, compared without regard to case; Unknown for any other.
ColumnKey ColumnKeyOf(std::string_view name, ColumnSet set = ColumnSet::Classic);

// The columns of a listing: `activeColumns`, with artist and title (`merge` 1) or artist, album and title
// (`merge` 2) merged into one column if artist and title are both active. Raises error 5 if, once merged
// columns are removed, nothing is left after the merged one.
std::string MergeColumns(const std::string& activeColumns, std::int16_t merge,
                         ColumnSet set = ColumnSet::Classic);

std::vector<Column> SplitColumns(const std::string& columnList, ColumnSet set = ColumnSet::Classic);

std::string HeaderText(const Column& column);

} // namespace tunedex
