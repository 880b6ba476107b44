#include "Columns.h"

#include "RunTimeError.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {
namespace {

TEST(ColumnKeyOf, FindsEveryColumnInAnyCase) {
    const std::vector<std::pair<std::string_view, ColumnKey>> rows = {
        {"Number", ColumnKey::Number},
        {"Artist", ColumnKey::Artist},
        {"Album", ColumnKey::Album},
        {"Title", ColumnKey::Title},
        {"Year", ColumnKey::Year},
        {"Genre", ColumnKey::Genre},
        {"MPEG Type", ColumnKey::MpegType},
        {"Mode", ColumnKey::Mode},
        {"Bitrate", ColumnKey::Bitrate},
        {"Frequency", ColumnKey::Frequency},
        {"Duration", ColumnKey::Duration},
        {"File Size", ColumnKey::FileSize},
        {"Filename", ColumnKey::Filename},
        {"Folder Path", ColumnKey::FolderPath},
        {"Full Path", ColumnKey::FullPath},
        {"ArtistTitle", ColumnKey::ArtistTitle},
        {"ArtistAlbumTitle", ColumnKey::ArtistAlbumTitle},
        {"nUmBeR", ColumnKey::Number},
        {"MPEG TYPE", ColumnKey::MpegType},
        {"folder path", ColumnKey::FolderPath},
        {"Foo", ColumnKey::Unknown},
        {"", ColumnKey::Unknown},
        {" Number", ColumnKey::Unknown},
        {"Number ", ColumnKey::Unknown},
        {"MPEGType", ColumnKey::Unknown},
        {"File Name", ColumnKey::Unknown},
    };
    for (const auto& [name, key] : rows) {
        EXPECT_EQ(ColumnKeyOf(name), key) << name;
    }
}

struct MergeRow {
    std::string columns;
    std::int16_t merge;
    std::string_view merged;
};

TEST(MergeColumns, PutsTheMergedColumnWhereTheFirstOneWas) {
    const MergeRow rows[] = {
        {"Number|Artist|Album|Title|Duration", 0, "Number|Artist|Album|Title|Duration"},
        {"Number|Artist|Album|Title|Duration", -1, "Number|Artist|Album|Title|Duration"},
        {"Number|Artist|Album|Title|Duration", 1, "Number|ArtistTitle|Album|Duration"},
        {"Number|Artist|Album|Title|Duration", 2, "Number|ArtistAlbumTitle|Duration"},
        {"Number|Title|Artist", 1, "Number|ArtistTitle"},
        {"Number|Title|Artist", 2, "Number|ArtistAlbumTitle"},
        {"Artist|Title", 1, "ArtistTitle"},
        {"Title|Artist", 1, "ArtistTitle"},
        {"Artist|Title", 2, "ArtistAlbumTitle"},
        {"Artist|Album|Title", 2, "ArtistAlbumTitle"},
        {"Title|Year|Artist|Genre", 1, "ArtistTitle|Year|Genre"},
        {"Artist|Year|Title", 1, "ArtistTitle|Year"},
        {"Artist|Title|Album", 2, "ArtistAlbumTitle"},
        {"Artist|Title|Album|Mode", 2, "ArtistAlbumTitle|Mode"},
    };
    for (const MergeRow& row : rows) {
        EXPECT_EQ(MergeColumns(row.columns, row.merge), row.merged) << row.columns << " " << row.merge;
    }
}

TEST(MergeColumns, ReturnsTheListUnchangedWithoutArtistOrTitle) {
    for (const char* columns :
         {"", "Number", "Number|Artist|Album", "Title|Album", "|", "|Artist|", "Album"}) {
        for (const std::int16_t merge : {1, 2, 3}) {
            EXPECT_EQ(MergeColumns(columns, merge), columns);
        }
    }
}

TEST(MergeColumns, CutsAtThePositionsMeasuredBeforeTheRemovals) {
    const MergeRow rows[] = {
        // With Album first, its removal shifts the rest against the measured positions.
        {"Album|Artist|Title|Year", 2, "ArtisArtistAlbumTitle"},
        {"Album|Number|Artist|Title|Duration", 2, "Number|ArtisArtistAlbumTitletion"},
        // Any other positive value has an empty name for the merged column.
        {"Number|Artist|Title|Year", 3, "Number||Year"},
        {"Artist|Title", 3, ""},
        // Names are found in any case but removed only in the exact spelling.
        {"artist|title|Year", 1, "ArtistTitle|title|Year"},
        {"ARTIST|Title", 1, "ArtistTitle"},
        {"title|Artist|Year", 1, "ArtistTitle|Year"},
        // The removals also shorten runs of empty entries.
        {"|Artist||Title|Year", 1, "ArtistTitle||Year"},
        {"Artist|Title|", 1, "ArtistTitle"},
        {"|Artist|Title", 1, "ArtistTitle"},
        {"||Artist|Title", 1, "AArtistTitle"},
        {"Artist|Title||", 1, "ArtistTitle|"},
        // Positions count characters, not bytes; a stray byte is one.
        {"Album|Title|ÄÖÜäöüß|Artist|Year", 2, "TitleArtistAlbumTitleöüß|Year"},
        {"ÄÖ|Artist|Title|Year", 1, "ÄÖ|ArtistTitle|Year"},
        {"\xE9\xE9|Artist|Title|あ", 1, "\xE9\xE9|ArtistTitle|あ"},
        // A name that contains both.
        {"ArtistTitle", 1, "ArtistTitleArtist"},
        {"Subtitle|Artist", 1, "SubArtistTitle"},
    };
    for (const MergeRow& row : rows) {
        EXPECT_EQ(MergeColumns(row.columns, row.merge), row.merged) << row.columns << " " << row.merge;
    }
}

// The required steps, with positions counted from 1 and texts cut from the left and the right.
std::string ReferenceMerge(const std::string& columns, std::int16_t merge) {
    std::string list = columns;
    const auto upper = [](std::string text) {
        for (char& c : text) {
            c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        }
        return text;
    };
    const auto replaceAll = [](std::string& text, const std::string& from, const std::string& to) {
        for (std::size_t at = text.find(from); at != std::string::npos;
             at = text.find(from, at + to.size())) {
            text.replace(at, from.size(), to);
        }
    };
    const int artist = static_cast<int>(upper(list).find("ARTIST") + 1);
    const int title = static_cast<int>(upper(list).find("TITLE") + 1);
    if (merge <= 0 || artist == 0 || title == 0) {
        return list;
    }
    const int start = artist < title ? artist : title;
    const int prefix = start - 1;
    const int bar = static_cast<int>(list.find('|', static_cast<std::size_t>(start - 1)) + 1);
    replaceAll(list, artist < title ? "Title" : "Artist", "");
    replaceAll(list, "||", "|");
    std::string name = merge == 1 ? "ArtistTitle" : "";
    if (merge == 2) {
        name = "ArtistAlbumTitle";
        replaceAll(list, "Album", "");
        replaceAll(list, "||", "|");
    }
    const int right = static_cast<int>(list.size()) - bar + 1;
    if (right < 0) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    const std::size_t tail = std::min<std::size_t>(static_cast<std::size_t>(right), list.size());
    list = list.substr(0, static_cast<std::size_t>(prefix)) + name + list.substr(list.size() - tail);
    if (!list.empty() && list.back() == '|') {
        list.pop_back();
    }
    if (!list.empty() && list.front() == '|') {
        list.erase(0, 1);
    }
    return list;
}

std::string MergeClassic(const std::string& columns, std::int16_t merge) {
    return MergeColumns(columns, merge);
}

std::string Attempt(std::string (*merge)(const std::string&, std::int16_t), const std::string& columns,
                    std::int16_t kind) {
    try {
        return merge(columns, kind);
    } catch (const RunTimeError& error) {
        return "error " + std::to_string(error.Number());
    }
}

TEST(MergeColumns, AgreesWithTheReferenceOnEveryOrderOfSixColumns) {
    std::vector<std::string> names = {"", "Album", "Artist", "Number", "Title", "artist"};
    int errors = 0;
    do {
        for (std::size_t count = 0; count <= names.size(); ++count) {
            std::string columns;
            for (std::size_t i = 0; i < count; ++i) {
                columns += (i > 0 ? "|" : "") + names[i];
            }
            for (const std::int16_t merge : {0, 1, 2, 3}) {
                const std::string expected = Attempt(ReferenceMerge, columns, merge);
                errors += expected == "error 5" ? 1 : 0;
                ASSERT_EQ(Attempt(MergeClassic, columns, merge), expected) << columns << " " << merge;
            }
        }
    } while (std::next_permutation(names.begin(), names.end()));
    EXPECT_GT(errors, 0);
}

TEST(MergeColumns, RaisesError5IfNothingIsLeftAfterTheMergedColumn) {
    // The removal of Album takes away more than what followed Artist.
    EXPECT_EQ(Attempt(MergeClassic, "Album|Album|Artist|Title", 2), "error 5");
    EXPECT_EQ(MergeColumns("Album|Album|Artist|Title", 1), "Album|Album|ArtistTitle");
}

TEST(ColumnKeyOf, KnowsTheModernColumnsInTheModernSetOnly) {
    for (const std::string_view name : {"Track", "Disc", "Album Artist", "Composer", "Comment"}) {
        EXPECT_EQ(ColumnKeyOf(name), ColumnKey::Unknown) << name;
        EXPECT_TRUE(KindOf(ColumnKeyOf(name, ColumnSet::Modern)).IsModern()) << name;
    }
    EXPECT_EQ(ColumnKeyOf("ALBUM artist", ColumnSet::Modern), ColumnKey::AlbumArtist);
    EXPECT_EQ(ColumnKeyOf("Artist", ColumnSet::Modern), ColumnKey::Artist);
}

TEST(IsChoosable, OffersModernColumnsInTheModernSetOnly) {
    EXPECT_FALSE(IsChoosable(ColumnKey::Track));
    EXPECT_TRUE(IsChoosable(ColumnKey::Track, ColumnSet::Modern));
    EXPECT_TRUE(IsChoosable(ColumnKey::FullPath, ColumnSet::Modern));
    EXPECT_FALSE(IsChoosable(ColumnKey::ArtistTitle, ColumnSet::Modern));
}

TEST(MergeColumns, LeavesTheAlbumArtistAloneInTheModernSet) {
    const MergeRow rows[] = {
        {"Number|Artist|Album|Title|Album Artist", 2, "Number|ArtistAlbumTitle|Album Artist"},
        {"Album Artist|Artist|Album|Title|Duration", 2, "Album Artist|ArtistAlbumTitle|Duration"},
        {"album artist|Artist|Title", 1, "album artist|ArtistTitle"},
        {"Album Artist|Title", 2, "Album Artist|Title"},
        {"Number|Artist|Album|Title|Duration", 2, "Number|ArtistAlbumTitle|Duration"},
    };
    for (const MergeRow& row : rows) {
        EXPECT_EQ(MergeColumns(row.columns, row.merge, ColumnSet::Modern), row.merged)
            << row.columns << " " << row.merge;
    }
    EXPECT_EQ(MergeColumns("Artist|Album|Title|Album Artist", 2), "ArtistAlbumTitle| Artist");
}

TEST(SplitColumns, KeepsUnknownNamesAndReturnsNoneForAnEmptyList) {
    EXPECT_TRUE(SplitColumns("").empty());
    const auto columns = SplitColumns("Number|Foo|ARTIST||x");
    ASSERT_EQ(columns.size(), 5U);
    EXPECT_EQ(columns[1].name, "Foo");
    EXPECT_EQ(columns[1].key, ColumnKey::Unknown);
    EXPECT_EQ(columns[2].name, "ARTIST");
    EXPECT_EQ(columns[2].key, ColumnKey::Artist);
    EXPECT_EQ(columns[3].name, "");
}

TEST(HeaderText, NamesTheMergedColumnsAndKeepsTheSpellingOfOthers) {
    EXPECT_EQ(HeaderText({"ArtistTitle", ColumnKey::ArtistTitle}), "Artist: Title");
    EXPECT_EQ(HeaderText({"ARTISTALBUMTITLE", ColumnKey::ArtistAlbumTitle}), "Artist (Album): Title");
    EXPECT_EQ(HeaderText({"nUMBER", ColumnKey::Number}), "nUMBER");
    EXPECT_EQ(HeaderText({"Foo", ColumnKey::Unknown}), "Foo");
}

} // namespace
} // namespace tunedex
