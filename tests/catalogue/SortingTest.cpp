#include "Sorting.h"

#include "Fakes.h"
#include "References.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {
namespace {

using test::FakeMonitor;

TrackInfo Track(std::string artist, std::string album = "", std::string title = "") {
    TrackInfo track;
    track.Artist = std::move(artist);
    track.Album = std::move(album);
    track.Title = std::move(title);
    return track;
}

TrackTable TableOf(const std::vector<TrackInfo>& tracks) {
    TrackTable table(tracks.size());
    for (const TrackInfo& track : tracks) {
        table.Append(track);
    }
    return table;
}

std::vector<TrackInfo> ContentOf(const TrackTable& table) {
    std::vector<TrackInfo> tracks;
    for (std::size_t position = 1; position <= table.Count(); ++position) {
        tracks.push_back(table.Copy(position));
    }
    return tracks;
}

std::vector<TrackInfo> Sorted(const std::vector<TrackInfo>& tracks, std::int16_t sortOrder) {
    TrackTable table = TableOf(tracks);
    FakeMonitor monitor;
    EXPECT_FALSE(SortTracks(table, sortOrder, monitor));
    return ContentOf(table);
}

// The tracks after the reference exchanges.
std::vector<TrackInfo> SortedByReference(std::vector<TrackInfo> tracks, std::int16_t sortOrder) {
    tracks.insert(tracks.begin(), TrackInfo());
    test::ReferenceSort(tracks, sortOrder);
    tracks.erase(tracks.begin());
    return tracks;
}

// Fields are unique per track, so that a misplaced one shows; keys come from a short list, so that ties are
// frequent.
std::vector<TrackInfo> RandomTracks(std::mt19937& random, std::size_t count, unsigned variety) {
    constexpr std::string_view kTexts[] = {
        "",          "a",         "A",        "aA",           "Abba",     "ABBA",
        "abba ",     "\xC3\xA4",  "\xC3\x84", "\xC3\xBF",     "\xC5\xB8", "Zz Top",
        "12345678a", "12345678B", "12345678", "\xE3\x81\x82", "_",        "\xFF"};
    const auto text = [&] {
        return std::string(kTexts[random() % std::min<std::size_t>(variety, std::size(kTexts))]);
    };
    std::vector<TrackInfo> tracks;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string n = std::to_string(i);
        TrackInfo track{"/p/" + n,
                        "/b/" + n,
                        static_cast<std::int32_t>(i),
                        text(),
                        text(),
                        text(),
                        "y" + n,
                        "g" + n,
                        "k" + n,
                        "f" + n,
                        "m" + n,
                        "t" + n,
                        "d" + n,
                        static_cast<std::int16_t>(i % 3),
                        static_cast<std::int32_t>(i)};
        if (random() % 10 == 0) {
            track.Artist = track.FullPath; // as in a file without tags
            track.TagType = kNoTag;
        }
        tracks.push_back(track);
    }
    return tracks;
}

TEST(SortTracks, AgreesWithTheReferenceExchangesForEveryRecord) {
    std::mt19937 random(1);
    for (int round = 0; round < 1000; ++round) {
        const std::size_t count = random() % (round % 20 == 0 ? 400 : 40);
        const auto tracks = RandomTracks(random, count, 1 + random() % 18);
        const auto order = static_cast<std::int16_t>(1 + random() % 2);
        ASSERT_TRUE(Sorted(tracks, order) == SortedByReference(tracks, order)) << "round " << round;
    }
}

TEST(SortTracks, AgreesWithTheReferenceForEverySmallCountAndForLongRuns) {
    std::mt19937 random(2);
    for (std::size_t count = 0; count < 34; ++count) {
        for (const std::int16_t order : {1, 2}) {
            const auto tracks = RandomTracks(random, count, 3);
            ASSERT_TRUE(Sorted(tracks, order) == SortedByReference(tracks, order)) << count;
        }
    }
    const auto many = RandomTracks(random, 3000, 18);
    EXPECT_TRUE(Sorted(many, 1) == SortedByReference(many, 1));
    EXPECT_TRUE(Sorted(many, 2) == SortedByReference(many, 2));
}

TEST(SortTracks, MovesNothingForAnyOtherOrder) {
    std::mt19937 random(3);
    const auto tracks = RandomTracks(random, 50, 18);
    for (const std::int16_t order : {0, 3, -1, 32767}) {
        EXPECT_TRUE(Sorted(tracks, order) == tracks) << order;
    }
}

TEST(SortTracks, HasNothingToDoForOneTrackOrNone) {
    EXPECT_TRUE(Sorted({}, 1).empty());
    EXPECT_TRUE(Sorted({Track("a")}, 2) == std::vector{Track("a")});
}

std::string ArtistsOf(const std::vector<TrackInfo>& tracks) {
    std::string artists;
    for (const TrackInfo& track : tracks) {
        artists += track.Artist + "|";
    }
    return artists;
}

TEST(SortTracks, ComparesAlbumThenTitleIfArtistsDifferInCaseOnly) {
    const auto sorted = Sorted({Track("abba", "b"), Track("ABBA", "a"), Track("Abba", "c")}, 1);
    EXPECT_EQ(ArtistsOf(sorted), "ABBA|abba|Abba|");
    const auto titles = Sorted({Track("x", "A", "two"), Track("X", "a", "One"), Track("x", "", "zero")}, 1);
    EXPECT_EQ(titles[0].Title, "zero");
    EXPECT_EQ(titles[1].Title, "One");
    EXPECT_EQ(titles[2].Title, "two");
}

TEST(SortTracks, NeverExchangesTracksThatDifferInCaseOnly) {
    for (const std::int16_t order : {1, 2}) {
        const std::vector<TrackInfo> pair = {Track("b", "C", "d"), Track("B", "c", "D")};
        EXPECT_TRUE(Sorted(pair, order) == pair);
        const std::vector<TrackInfo> reversed = {pair[1], pair[0]};
        EXPECT_TRUE(Sorted(reversed, order) == reversed);
    }
}

TEST(SortTracks, ComparesLongTextsToTheirLastCharacterWithoutRegardToCase) {
    // The boundaries of the pieces in which a long text is upper-cased fall inside a two-byte letter.
    std::string letters;
    while (letters.size() < 200000) {
        letters += "\xC3\xA4";
    }
    const std::string small = "a" + letters;
    const std::string capital = "A" + letters;
    const std::vector<TrackInfo> tracks = {Track("x", "", small + "b"),   Track("x", "", capital + "A"),
                                           Track("x", "", capital + "B"), Track("x", "", small + "a"),
                                           Track(small, capital, "z"),    Track(capital, small, "Y")};
    for (const std::int16_t order : {1, 2}) {
        EXPECT_TRUE(Sorted(tracks, order) == SortedByReference(tracks, order)) << order;
    }
}

TEST(SortTracks, ReversesTheOrderWhenDescending) {
    EXPECT_EQ(ArtistsOf(Sorted({Track("ABBA"), Track("Zz Top")}, 2)), "Zz Top|ABBA|");
    EXPECT_EQ(ArtistsOf(Sorted({Track("ABBA"), Track("Zz Top")}, 1)), "ABBA|Zz Top|");
}

TEST(SortTracks, ComparesKeysAsTheyAreStored) {
    EXPECT_EQ(ArtistsOf(Sorted({Track("Unknown Artist"), Track("Beatles, The"), Track("/music/a.mp3"),
                                Track("Cure, The"), Track("The The")},
                               1)),
              "/music/a.mp3|Beatles, The|Cure, The|The The|Unknown Artist|");
    // By code point: blanks and digits before letters, accented letters after them.
    EXPECT_EQ(ArtistsOf(Sorted({Track("\xC3\xA9"), Track("z"), Track("A b"), Track("Ab"), Track("_"),
                                Track("10"), Track("9")},
                               1)),
              "10|9|A b|Ab|z|_|\xC3\xA9|");
}

TEST(SortTracks, KeepsBaseFolderModeTypeAndTagKindWithTheirRow) {
    TrackInfo first{"/p/1", "/b/1", 1,      "Z",       "t1", "al1", "y1", "g1",
                    "k1",   "f1",   "Mono", "1.0 III", "d1", 1,     61};
    TrackInfo second{"/p/2", "/b/2", 2,        "A",      "t2", "al2", "y2", "g2",
                     "k2",   "f2",   "Stereo", "2.0 II", "d2", 2,     62};
    const auto sorted = Sorted({first, second}, 1);
    EXPECT_TRUE(sorted[0] == (TrackInfo{"/p/2", "/b/1", 2, "A", "t2", "al2", "y2", "g2", "k2", "f2", "Mono",
                                        "1.0 III", "d2", 1, 62}));
    EXPECT_TRUE(sorted[1] == (TrackInfo{"/p/1", "/b/2", 1, "Z", "t1", "al1", "y1", "g1", "k1", "f1", "Stereo",
                                        "2.0 II", "d1", 2, 61}));
}

TEST(SortTracks, LeavesTheTableUnchangedWhenAborted) {
    std::mt19937 random(4);
    for (const std::size_t count : {2U, 10U, 3000U, 30000U}) {
        const auto tracks = RandomTracks(random, count, 18);
        TrackTable table = TableOf(tracks);
        FakeMonitor monitor;
        monitor.abort = true;
        EXPECT_TRUE(SortTracks(table, 1, monitor)) << count;
        EXPECT_TRUE(ContentOf(table) == tracks);
    }
}

TEST(SortTracks, PollsForAnAbortRepeatedly) {
    std::mt19937 random(5);
    TrackTable table = TableOf(RandomTracks(random, 30000, 18));
    FakeMonitor monitor;
    monitor.abortAtQuestion = 20;
    EXPECT_TRUE(SortTracks(table, 1, monitor));
    EXPECT_EQ(monitor.asked, 20);
}

} // namespace
} // namespace tunedex
