#include "ListingFixture.h"

namespace tunedex {
namespace {

class ModernPagesTest : public ListingTest {
  protected:
    ModernPagesTest() {
        settings.Modern = true;
        settings.Merge = 0;
    }
    // The first row of a page that holds only this track.
    std::string Row(const TrackInfo& track, const std::string& columns) {
        Use({track});
        settings.ActiveColumns = columns;
        return LineWith(Page(), "<tr bgcolor=\"#CECECE\"");
    }
    std::string LinkTo(const std::string& path) {
        TrackInfo track;
        track.FullPath = path;
        track.BaseFolder = "/music";
        const std::string row = Row(track, "");
        const std::size_t start = row.find("href=\"") + 6;
        return row.substr(start, row.find('"', start) - start);
    }
};

TEST_F(ModernPagesTest, AreTheClassicOnesWhereNothingNeedsEscaping) {
    UseMany(250);
    for (const char* type : {"HTML", "", "Other"}) {
        settings.DocumentType = type;
        settings.FontHTML = settings.ColourHTML = true;
        std::array<std::string, 2> pages;
        for (const bool modern : {false, true}) {
            const Settings kept = settings;
            settings.Modern = modern;
            EXPECT_FALSE(Write(kHtmlOutput));
            settings = kept;
            pages.at(modern ? 1 : 0) =
                Written("list.001.htm") + Written("list.002.htm") + Written("list.003.htm");
        }
        EXPECT_GT(pages[0].size(), 10000U);
        EXPECT_TRUE(pages[0] == pages[1]) << type;
    }
}

struct ModernLinkRow {
    std::int16_t type;
    std::string prefix;
    std::string path;
    std::string target;
};

TEST_F(ModernPagesTest, EncodeLinkTargets) {
    settings.DoLinks = true;
    for (const ModernLinkRow& row : {
             ModernLinkRow{0, "file:///", "/music/a b.mp3", "file:////music/a%20b.mp3"},
             ModernLinkRow{0, "file://", "/music/&#?%41[]'\"\\.mp3",
                           "file:///music/%26%23%3F%2541%5B%5D%27%22%5C.mp3"},
             ModernLinkRow{0, "", "/music/\n\t;\xFF花.mp3", "/music/%0A%09%3B%FF%E8%8A%B1.mp3"},
             ModernLinkRow{2, "", "/music/javascript:alert(1).mp3", "javascript%3Aalert%281%29.mp3"},
             ModernLinkRow{2, "http://a/?b=\"<c>\"&d=", "/music/x~y.mp3",
                           "http://a/?b=&quot;&lt;c&gt;&quot;&amp;d=x~y.mp3"},
             ModernLinkRow{1, "", "/music/a:b.mp3", "//music/ab.mp3"},
             ModernLinkRow{3, "x", "/music/a.mp3", "x"},
         }) {
        settings.LinkType = row.type;
        settings.LinkPrefix = row.prefix;
        EXPECT_EQ(LinkTo(row.path), row.target) << row.path;
    }
}

TEST_F(ModernPagesTest, EncodeTheNamesInTheNavigation) {
    UseMany(3);
    settings.Spanning = 1;
    settings.OutputFile = folder / "my <\"list\"> & more%20:\n.htm";
    EXPECT_FALSE(Write(kHtmlOutput));
    EXPECT_EQ(CountOf(Written("my <\"list\"> & more%20:\n.002.htm"),
                      "<a href=\"my%20%3C%22list%22%3E%20%26%20more%2520%3A%0A.003.htm\">"),
              2U);
}

TEST_F(ModernPagesTest, HideTheStyleSheetOfXhtmlFromBothKindsOfParser) {
    Use({});
    settings.DocumentType = "XHTML";
    const std::string page = Page();
    EXPECT_NE(page.find("<style type=\"text/css\">\r\n\t\t/*<![CDATA[*/\r\n\t\t\tbody {"), std::string::npos);
    EXPECT_NE(page.find("a {color: #0000FF;}\r\n\t\t/*]]>*/\r\n\t\t</style>"), std::string::npos);
}

TEST_F(ModernPagesTest, HaveAWholeCellForAnUnknownColumn) {
    EXPECT_EQ(Row(SevenTracks()[0], "Number|Foo"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td align=\"right\">1</td><td></td></tr>");
    settings.FontHTML = true;
    settings.Font[2] = {"F", "1", true, false};
    EXPECT_EQ(Row(SevenTracks()[0], "Foo"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td><font face=\"F\" size=\"1\"><b></b></font></td></tr>");
}

TEST_F(ModernPagesTest, HaveNoRowWithoutCells) {
    UseMany(2);
    settings.ActiveColumns = "";
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "\"><td></td></tr>"), 2U);
    EXPECT_EQ(CountOf(page, "\"><th></th></tr>"), 1U);
    EXPECT_EQ(CountOf(page, "<th colspan=\"1\">"), 1U);
    settings.DoLinks = true;
    EXPECT_EQ(CountOf(Page(), "<td></td>"), 0U) << "the link is a cell";
}

TEST_F(ModernPagesTest, ShowTheColumnsOfTheModernReaders) {
    TrackInfo track = SevenTracks()[0];
    track.Track = "3/12";
    track.AlbumArtist = "A & B";
    track.Comment = "<i>";
    EXPECT_EQ(Row(track, "Track|Disc|Album Artist|Composer|Comment"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td align=\"right\">3/12</td><td "
              "align=\"right\">&nbsp;</td><td>A &amp; B</td><td>&nbsp;</td><td>&lt;i&gt;</td></tr>");
    EXPECT_EQ(LineWith(Written("list.htm"), "<th"),
              "\t\t\t\t\t\t<tr bgcolor=\"#000066\"><th>Track</th><th>Disc</th><th align=\"left\">Album "
              "Artist</th><th align=\"left\">Composer</th><th align=\"left\">Comment</th></tr>");
}

TEST_F(ModernPagesTest, HaveNoBytesButThoseOfLatin1) {
    TrackInfo track = SevenTracks()[0];
    track.FullPath = "/music/\xE9\x80.mp3";
    Use({track});
    entities = {}; // escapes nothing
    settings.ActiveColumns = "Artist|Full Path|\x80"
                             "ber – naïve\x01";
    settings.WindowTitle = "A – \x7F";
    const std::string page = Page();
    EXPECT_NE(page.find("<title>A &#8211; &#65533;</title>"), std::string::npos);
    EXPECT_NE(page.find("<th>&#65533;ber &#8211; na\xEFve&#65533;</th>"), std::string::npos);
    EXPECT_NE(page.find("<td>/music/\xE9&#65533;.mp3</td>"), std::string::npos);
}

TEST_F(ModernPagesTest, KeepHostileSettingsInTheirPlaces) {
    const std::string hostile = "\"></style></title><script>alert(1)</script>]]>--><!--'&x;</td>{}\\";
    UseMany(2);
    for (const char* type : {"HTML", "XHTML", ""}) {
        settings.DocumentType = type;
        settings.FontHTML = settings.ColourHTML = settings.DoLinks = true;
        settings.Font.fill({hostile, hostile, true, true});
        settings.Colour.fill(hostile);
        settings.ActiveColumns = "Number|" + hostile;
        settings.LinkPrefix = hostile;
        const std::string page = Page();
        EXPECT_EQ(CountOf(page, "<script"), 0U);
        EXPECT_EQ(CountOf(page, "</style"), 1U);
        EXPECT_EQ(CountOf(page, "]]>"), type == std::string("XHTML") ? 1U : 0U);
        EXPECT_EQ(CountOf(page, "-->"), type == std::string("HTML") ? 1U : 0U);
        // A style sheet has no references.
        EXPECT_EQ(CountOf(page.substr(page.find("</head>")), "&x;"), 0U);
        EXPECT_EQ(CountOf(page, "<td"), 1U + 2 * 3);
    }
}

} // namespace
} // namespace tunedex
