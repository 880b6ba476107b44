#include "SortByAlbum.h"

#include "Fakes.h"
#include "Sorting.h"
#include "Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tunedex {
namespace {

using test::FakeMonitor;
using testing::ElementsAre;

TrackInfo Song(std::string path, std::string artist, std::string album, std::string disc, std::string number,
               std::string title = "", std::string albumArtist = "") {
    TrackInfo track;
    track.FullPath = std::move(path);
    track.Artist = std::move(artist);
    track.Album = std::move(album);
    track.Disc = std::move(disc);
    track.Track = std::move(number);
    track.Title = std::move(title);
    track.AlbumArtist = std::move(albumArtist);
    track.TagType = kId3v2Tag;
    return track;
}

TrackTable Filled(const std::vector<TrackInfo>& tracks) {
    TrackTable table(tracks.size());
    for (const TrackInfo& track : tracks) {
        table.Append(track);
    }
    return table;
}

std::vector<std::string> SortedPaths(const std::vector<TrackInfo>& tracks, std::int16_t order = kAscending) {
    TrackTable table = Filled(tracks);
    FakeMonitor monitor;
    EXPECT_FALSE(SortByAlbum(table, order, CodeOrder(), monitor));
    std::vector<std::string> paths;
    for (std::size_t position = 1; position <= table.Count(); ++position) {
        paths.emplace_back(table.At(position).FullPath.View());
    }
    return paths;
}

TEST(SortByAlbum, OrdersDiscsAndTracksByNumber) {
    EXPECT_THAT(SortedPaths({Song("1", "a", "x", "2", "1"), Song("2", "a", "x", "1", "10/12"),
                             Song("3", "a", "x", "1", "9"), Song("4", "a", "x", "1", "09/12", "z"),
                             Song("5", "a", "x", "", "99"), Song("6", "a", "w", "3", "1")}),
                ElementsAre("6", "5", "3", "4", "2", "1"));
}

TEST(SortByAlbum, KeepsACompilationTogetherByItsAlbumArtist) {
    EXPECT_THAT(SortedPaths({Song("1", "zz", "hits", "", "1", "", "m various"),
                             Song("2", "a", "hits", "", "2", "", "m various"),
                             Song("3", "n", "hits", "", "1"), Song("4", "b", "hits", "", "1")}),
                ElementsAre("4", "1", "2", "3"));
}

TEST(SortByAlbum, OrdersEqualTracksByTitleThenByPath) {
    EXPECT_THAT(SortedPaths({Song("d", "a", "x", "", "", "t"), Song("b", "a", "x", "", "", "u"),
                             Song("c", "a", "x", "", "", "t"), Song("a", "a", "x", "", "", "u")}),
                ElementsAre("c", "d", "a", "b"));
}

TEST(SortByAlbum, DescendingIsTheExactReverse) {
    std::vector<TrackInfo> tracks;
    for (int i = 0; i < 300; ++i) {
        const auto digit = [i](int divisor, int modulus) { return std::to_string(i / divisor % modulus); };
        tracks.push_back(Song("/" + std::to_string(i), digit(1, 3), digit(3, 2), digit(6, 2), digit(12, 4),
                              digit(48, 2), digit(96, 2) == "0" ? "" : "2"));
    }
    std::vector<std::string> ascending = SortedPaths(tracks);
    const std::vector<std::string> descending = SortedPaths(tracks, kDescending);
    EXPECT_TRUE(std::equal(ascending.rbegin(), ascending.rend(), descending.begin(), descending.end()));
}

TEST(SortByAlbum, OrdersByPathForAnyOtherOrder) {
    for (const std::int16_t order : {std::int16_t{kNoSorting}, std::int16_t{3}, std::int16_t{-1}}) {
        EXPECT_THAT(SortedPaths({Song("b", "a", "x", "", ""), Song("c", "", "x", "", ""),
                                 Song("a", "z", "x", "", "")},
                                order),
                    ElementsAre("a", "b", "c"));
    }
}

TEST(SortByAlbum, MovesWholeTracks) {
    TrackInfo first = Song("1", "b", "x", "1", "2", "t", "b");
    first.Mode = "Mono";
    first.MpegType = "1.0 III";
    first.BaseFolder = "/one";
    TrackInfo second = Song("2", "a", "", "", "");
    second.Mode = "Stereo";
    second.BaseFolder = "/two";
    second.TagType = kId3v1Tag;
    TrackTable table = Filled({first, second});
    FakeMonitor monitor;
    EXPECT_FALSE(SortByAlbum(table, kAscending, CodeOrder(), monitor));
    EXPECT_TRUE(table.Copy(1) == second);
    EXPECT_TRUE(table.Copy(2) == first);
}

// Compares letters without regard to case, as a collation does that finds two paths equal.
class AnyCase final : public Collation {
  public:
    std::vector<std::uint32_t> Ranks(const std::vector<std::string_view>& texts,
                                     const Step& /*step*/) const override {
        return RanksOf(texts.size(), [&](std::uint32_t a, std::uint32_t b) {
            return UpperCase(texts[a]).compare(UpperCase(texts[b]));
        });
    }
};

TEST(SortByAlbum, TellsPathsThatCollateEqualApartByTheirBytes) {
    TrackTable table =
        Filled({Song("b", "a", "", "", ""), Song("B", "A", "", "", ""), Song("a", "a", "", "", "")});
    FakeMonitor monitor;
    EXPECT_FALSE(SortByAlbum(table, kAscending, AnyCase(), monitor));
    EXPECT_EQ(table.At(1).FullPath.View(), "a");
    EXPECT_EQ(table.At(2).FullPath.View(), "B");
    EXPECT_EQ(table.At(3).FullPath.View(), "b");
}

TEST(SortByAlbum, LeavesTheTableUnchangedOnAbort) {
    TrackTable table = Filled({Song("b", "b", "", "", ""), Song("a", "a", "", "", "")});
    FakeMonitor monitor;
    monitor.abort = true;
    EXPECT_TRUE(SortByAlbum(table, kAscending, CodeOrder(), monitor));
    EXPECT_EQ(table.At(1).FullPath.View(), "b");
}

TEST(SortByAlbum, AcceptsAnEmptyTable) {
    TrackTable table;
    FakeMonitor monitor;
    EXPECT_FALSE(SortByAlbum(table, kAscending, CodeOrder(), monitor));
    EXPECT_EQ(table.Count(), 0U);
}

} // namespace
} // namespace tunedex
