#include "Html5Bodies.h"
#include "ListingFixture.h"

namespace tunedex {
namespace {

struct AlbumRow {
    std::string artist;
    std::string album;
    std::string albumArtist = {};
    std::string folder = "/music/";
    std::string duration = "1:30";
};

class Html5BodiesTest : public ListingTest {
  protected:
    Html5BodiesTest() { settings.GroupByAlbum = true; }

    void UseAlbums(const std::vector<AlbumRow>& rows) {
        std::vector<TrackInfo> infos;
        for (const AlbumRow& row : rows) {
            TrackInfo info = SevenTracks().front();
            info.Artist = row.artist;
            info.Album = row.album;
            info.AlbumArtist = row.albumArtist;
            info.FullPath = row.folder + std::to_string(infos.size()) + ".mp3";
            info.Duration = row.duration;
            infos.push_back(info);
        }
        Use(infos);
    }
    std::vector<Html5Body> Divide() {
        const Listing listing = MakeListing();
        return DivideIntoBodies(listing, 1, tracks.Count());
    }
    // "artist/album:tracks" of each heading.
    std::vector<std::string> Headings() {
        std::vector<std::string> headings;
        for (const Html5Body& body : Divide()) {
            if (body.hasHeading) {
                headings.push_back(body.heading.artist + "/" + body.heading.album + ":" +
                                   std::to_string(body.heading.tracks));
            }
        }
        return headings;
    }
};

using Names = std::vector<std::string>;

TEST_F(Html5BodiesTest, HoldAFixedNumberOfTracksWithoutGroups) {
    settings.GroupByAlbum = false;
    for (const std::size_t count : {0U, 1U, 199U, 200U, 201U, 450U}) {
        UseMany(count);
        std::size_t next = 1;
        for (const Html5Body& body : Divide()) {
            EXPECT_FALSE(body.hasHeading);
            EXPECT_EQ(body.first, next);
            EXPECT_EQ(Html5BodyRows(body), std::min<std::size_t>(kHtml5BodyTracks, count + 1 - next));
            next = body.last + 1;
        }
        EXPECT_EQ(next, count + 1);
    }
}

TEST_F(Html5BodiesTest, HaveAHeadingForEachRunOfAnAlbum) {
    UseAlbums({{"A", "One"}, {"A", "One"}, {"A", "Two"}, {"B", "Two", "", "/b/"}, {"A", "One"}});
    EXPECT_EQ(Headings(), (Names{"A/One:2", "A/Two:1", "B/Two:1", "A/One:1"}));
}

TEST_F(Html5BodiesTest, KeepAlbumsOfSeveralArtistsTogether) {
    UseAlbums({{"A", "Mix", "Various"},
               {"B", "Mix", "Various", "/x/"},
               {"C", "Mix"},
               {"D", "Mix"},
               {"E", "Mix", "", "/y/"},
               {"A", ""},
               {"B", ""}});
    EXPECT_EQ(Headings(), (Names{"Various/Mix:2", "Various artists/Mix:2", "E/Mix:1", "A/:1", "B/:1"}));
}

TEST_F(Html5BodiesTest, GatherFilesWithoutATag) {
    UseAlbums({{"/music/0.mp3", ""}, {"/music/1.mp3", ""}, {"A", "One"}});
    EXPECT_EQ(Headings(), (Names{"/:2", "A/One:1"}));
}

TEST_F(Html5BodiesTest, SumTheDurationsThatAreKnown) {
    UseAlbums({{"A", "One", "", "/music/", "59:30"},
               {"A", "One", "", "/music/", "0:45"},
               {"A", "One", "", "/music/", ""}});
    EXPECT_EQ(Divide().front().heading.seconds, 59 * 60 + 30 + 45);
}

TEST_F(Html5BodiesTest, ContinueLongAlbumsWithoutAHeading) {
    UseMany(450);
    const std::vector<Html5Body> bodies = Divide();
    ASSERT_EQ(bodies.size(), 3U);
    EXPECT_EQ(Headings(), Names{"Abba/Waterloo:450"});
    EXPECT_EQ(Html5BodyRows(bodies[0]), 201U);
    EXPECT_EQ(Html5BodyRows(bodies[1]), 200U);
    EXPECT_EQ(Html5BodyRows(bodies[2]), 50U);
}

TEST_F(Html5BodiesTest, KnowWhetherAHeadingNamesTheArtistOfEveryTrack) {
    struct Case {
        std::vector<AlbumRow> rows;
        bool named;
    };
    const std::vector<Case> cases = {
        {{}, true},
        {{{"A", "One"}, {"A", "One"}, {"B", "Two"}}, true},
        {{{"A", "One", "A"}, {"A feat. B", "One", "A"}}, false},
        {{{"A", "One"}, {"B", "One"}}, false},
        // A file without a tag shows its path.
        {{{"A", "One"}, {"/music/1.mp3", ""}}, false},
    };
    for (const Case& example : cases) {
        UseAlbums(example.rows);
        const Listing listing = MakeListing();
        EXPECT_EQ(HeadingsNameEveryArtist(listing, Divide()), example.named);
    }
}

TEST_F(Html5BodiesTest, AreLongOnlyFromThreeThousandTracksAPage) {
    const auto isLong = [](std::int16_t spanning, std::size_t count) {
        return IsLongHtml5Page(PageFiles("list.htm", spanning, count));
    };
    EXPECT_FALSE(isLong(0, 0));
    EXPECT_FALSE(isLong(0, 3000));
    EXPECT_TRUE(isLong(0, 3001));
    EXPECT_FALSE(isLong(100, 1000000));
    EXPECT_TRUE(isLong(5000, 10000));
}

} // namespace
} // namespace tunedex
