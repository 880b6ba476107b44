#include "ListingFixture.h"
#include "Sha256.h"
#include "ShippedFiles.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <set>

namespace tunedex {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class Html5WriterTest : public ListingTest {
  protected:
    Html5WriterTest() {
        settings.DocumentType = "HTML5";
        settings.Merge = 0;
        settings.Spanning = 0;
        settings.ActiveColumns = "Number|Artist|Album|Title|Duration";
    }
    // The rows of the page's tracks.
    static std::vector<std::string> Rows(const std::string& page) {
        std::vector<std::string> rows;
        for (std::size_t at = page.find("\n<tr><td>"); at != std::string::npos;
             at = page.find("\n<tr><td>", at + 1)) {
            rows.push_back(page.substr(at + 1, page.find('\n', at + 1) - at - 1));
        }
        return rows;
    }
    // The contents of all elements of this name.
    static std::vector<std::string> Contents(const std::string& page, const std::string& element) {
        std::vector<std::string> contents;
        const std::string open = "<" + element + ">";
        for (std::size_t at = page.find(open); at != std::string::npos; at = page.find(open, at + 1)) {
            contents.push_back(
                page.substr(at + open.size(), page.find("</" + element + ">", at) - at - open.size()));
        }
        return contents;
    }
    std::set<std::string> Files() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder / "")) {
            names.insert(entry.path().filename());
        }
        return names;
    }
};

TEST_F(Html5WriterTest, RowsHoldTheEscapedTextsOfTheirColumns) {
    Use(SevenTracks());
    const std::vector<std::string> rows = Rows(Page());
    ASSERT_EQ(rows.size(), 7U);
    EXPECT_EQ(rows[0], "<tr><td>1<td>Abba<td>Waterloo<td>Waterloo<td>4:10");
    EXPECT_EQ(rows[2], "<tr><td>3<td>Nobody<td><td>Alone<td>0:00");
    EXPECT_EQ(rows[3],
              "<tr><td>4<td>R&amp;B \"All\" &lt;Stars&gt;<td>A&amp;B<td>1 &lt; 2 &amp; 3 &gt; 2<td>75:03");
    EXPECT_EQ(rows[5], "<tr><td>6<td>\xE6\x97\xA5\xE6\x9C\xAC<td>\xD0\x9C\xD0\xB8\xD1\x80<td>\xE3\x81\x82 "
                       "\xE2\x82\xAC 5<td>26:08");
}

TEST_F(Html5WriterTest, MergedColumnsHaveABoldArtist) {
    Use(SevenTracks());
    settings.Merge = 2;
    const std::vector<std::string> rows = Rows(Page());
    EXPECT_EQ(rows[0], "<tr><td>1<td><b>Abba (Waterloo):</b> Waterloo<td>4:10");
    EXPECT_EQ(rows[2], "<tr><td>3<td><b>Nobody:</b> Alone<td>0:00");
}

TEST_F(Html5WriterTest, EscapesByTheStandardWhateverTheEntityTableSays) {
    Use(SevenTracks());
    const std::string page = Page();
    for (const std::vector<std::string>& lines :
         {std::vector<std::string>{}, std::vector<std::string>{"<\t<b>", "a\tXYZ", "&\t"}}) {
        entities = EntityTable();
        entities.Load(lines, "table", faults);
        EXPECT_EQ(Page(), page);
    }
}

TEST_F(Html5WriterTest, ClassicAndModernRunsWriteTheSamePage) {
    Use(SevenTracks());
    settings.DoLinks = true;
    const std::string page = Page();
    settings.Modern = true;
    EXPECT_EQ(Page(), page);
}

TEST_F(Html5WriterTest, OtherTypesAreNotHtml5) {
    Use(SevenTracks());
    for (const char* type : {"HTML", "XHTML", "", "html5", "HTML 5", "HTML5 "}) {
        settings.DocumentType = type;
        EXPECT_THAT(Page(), Not(HasSubstr("<!DOCTYPE html>"))) << type;
    }
}

TEST_F(Html5WriterTest, ThePolicyPermitsExactlyItsStylesAndItsScript) {
    UseMany(30);
    for (const std::int16_t spanning : {0, 10}) {
        settings.Spanning = spanning;
        settings.GroupByAlbum = spanning != 0;
        ASSERT_FALSE(Write(kHtmlOutput));
        const std::string page = Written(spanning == 0 ? "list.htm" : "list.002.htm");
        const std::vector<std::string> styles = Contents(page, "style");
        const std::vector<std::string> scripts = Contents(page, "script");
        ASSERT_EQ(styles.size(), 2U);
        ASSERT_EQ(scripts.size(), 1U);
        const auto source = [](const std::string& text) { return " 'sha256-" + Sha256Base64(text) + "'"; };
        EXPECT_THAT(page,
                    HasSubstr("<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; "
                              "style-src" +
                              source(styles[0]) + source(styles[1]) + "; script-src" + source(scripts[0]) +
                              (spanning == 0 ? "" : " 'strict-dynamic'") +
                              "; base-uri 'none'; form-action 'none'\">\n"));
        // Before everything that it applies to.
        EXPECT_LT(page.find("Content-Security-Policy"), page.find("<title>"));
        EXPECT_LT(page.find("Content-Security-Policy"), page.find("<style>"));
    }
}

TEST_F(Html5WriterTest, StylesAndScriptSurviveTheirElements) {
    for (const ShippedFile& part : PageParts()) {
        EXPECT_EQ(part.bytes.find("</"), std::string_view::npos) << part.path;
        EXPECT_EQ(part.bytes.find("<!--"), std::string_view::npos) << part.path;
        EXPECT_EQ(part.bytes.find('\r'), std::string_view::npos) << part.path;
        EXPECT_EQ(part.bytes.find('\0'), std::string_view::npos) << part.path;
        EXPECT_GT(part.bytes.size(), 1000U) << part.path;
    }
}

TEST_F(Html5WriterTest, StyleAndScriptAreSmall) {
    std::size_t bytes = 0;
    for (const ShippedFile& part : PageParts()) {
        bytes += part.bytes.size();
    }
    EXPECT_LT(bytes, 25U * 1024U);
}

TEST_F(Html5WriterTest, TitlesKeepTheirMarkupAndTheWindowTitleIsText) {
    Use(SevenTracks());
    settings.WindowTitle = "<b>%C</b> & co";
    settings.PageTitle = "<b>%C tracks</b>%Lnext";
    settings.PageFooter = "<i>R&amp;B</i><script>alert(1)</script>";
    const std::string page = Page();
    EXPECT_THAT(page, HasSubstr("<title>&lt;b&gt;7&lt;/b&gt; &amp; co</title>"));
    EXPECT_THAT(page, HasSubstr("<h1><b>7 tracks</b><br>next</h1>"));
    EXPECT_THAT(page, HasSubstr("<div><i>R&amp;B</i><script>alert(1)</script></div>"));
}

TEST_F(Html5WriterTest, LinksAreEncoded) {
    Use(SevenTracks());
    settings.DoLinks = true;
    settings.LinkType = 0;
    settings.LinkPrefix = "file:///\"x";
    const std::vector<std::string> rows = Rows(Page());
    EXPECT_THAT(rows[3],
                EndsWith("<td><a href=\"file:///&quot;x/music/R%26B/%22quoted%22%20%3Cb%3E.mp3\">Link</a>"));
}

TEST_F(Html5WriterTest, UnknownColumnsAndNoColumnsGiveWholeRows) {
    Use({SevenTracks().front()});
    settings.ActiveColumns = "Nonsense <b>|Title";
    EXPECT_THAT(Page(), HasSubstr(">Nonsense &lt;b&gt;<th"));
    EXPECT_EQ(Rows(Page()).front(), "<tr><td><td>Waterloo");
    settings.ActiveColumns = "";
    EXPECT_EQ(Rows(Page()).front(), "<tr><td>");
}

TEST_F(Html5WriterTest, PagesNameThemselvesTheirNeighboursAndTheIndex) {
    UseMany(25);
    settings.Spanning = 10;
    settings.OutputFile = folder / "my list.htm";
    ASSERT_FALSE(Write(kHtmlOutput));
    EXPECT_EQ(Files(), (std::set<std::string>{"my list.001.htm", "my list.002.htm", "my list.003.htm",
                                              "my list.search.js"}));
    const std::string page = Written("my list.002.htm");
    EXPECT_THAT(page, HasSubstr(" - Page 2 of 3</title>"));
    EXPECT_THAT(page, HasSubstr("<p>Page 2 of 3</p>"));
    EXPECT_EQ(CountOf(page, "<a href=\"my%20list.001.htm\" rel=\"prev\">&lt;&lt; Previous Page</a>"), 2U);
    EXPECT_EQ(CountOf(page, "<a href=\"my%20list.003.htm\" rel=\"next\">Next Page &gt;&gt;</a>"), 2U);
    EXPECT_THAT(page, HasSubstr("data-index=\"my%20list.search.js\" data-first=\"11\" data-total=\"25\">"));
    EXPECT_EQ(Rows(page).size(), 10U);
    EXPECT_THAT(Written("my list.001.htm"), HasSubstr("<span>&lt;&lt; Previous Page</span>"));
    EXPECT_THAT(Written("my list.003.htm"), HasSubstr("<span>Next Page &gt;&gt;</span>"));
}

TEST_F(Html5WriterTest, TheIndexHoldsEveryTrackAsJson) {
    Use(SevenTracks());
    settings.Spanning = 3;
    settings.DoLinks = true;
    settings.LinkPrefix = "";
    ASSERT_FALSE(Write(kHtmlOutput));
    const std::string index = Written("list.search.js");
    EXPECT_THAT(index, StartsWith("tunedexIndex({\"perPage\":3,\"pages\":[\"list.001.htm\",\"list.002.htm\","
                                  "\"list.003.htm\"],\"rows\":[\n[\"1\",\"Abba\",\"Waterloo\",\"Waterloo\","
                                  "\"4:10\",\"/music/Abba/01%20Waterloo.mp3\"],\n"));
    EXPECT_THAT(index, HasSubstr(R"(["4","R&B \"All\" <Stars>","A&B","1 < 2 & 3 > 2","75:03",)"));
    EXPECT_THAT(index, EndsWith("\"/music/Zz%20Top/La%20Grange.mp3\"]\n]});\n"));
    EXPECT_EQ(CountOf(index, "\n"), 9U);
}

TEST_F(Html5WriterTest, OnePageHasNoIndex) {
    UseMany(25);
    Page();
    EXPECT_EQ(Files(), std::set<std::string>{"list.htm"});
}

TEST_F(Html5WriterTest, AlbumsHaveHeadings) {
    std::vector<TrackInfo> infos(3, SevenTracks().front());
    infos[2].Album = "R&B <1>";
    infos[2].Duration = "61:00";
    Use(infos);
    settings.GroupByAlbum = true;
    const std::string page = Page();
    EXPECT_THAT(
        page, HasSubstr("<tbody>\n<tr class=\"album\"><th scope=\"rowgroup\" colspan=\"3\"><span>Abba</span> "
                        "Waterloo <small>2 tracks, 8:20</small>\n<tr><td>1"));
    EXPECT_THAT(page, HasSubstr("<span>Abba</span> R&amp;B &lt;1&gt; <small>1 track, 1:01:00</small>\n"));
    EXPECT_THAT(page, HasSubstr("class=\"grouped\""));
    EXPECT_EQ(Rows(page).size(), 3U);
    settings.GroupByAlbum = false;
    EXPECT_THAT(Page(), Not(HasSubstr("rowgroup\"")));
}

TEST_F(Html5WriterTest, LongTablesSayHowHighTheirBodiesAre) {
    UseMany(3050);
    std::string page = Page();
    EXPECT_EQ(CountOf(page, "class=\"long\""), 1U);
    EXPECT_EQ(CountOf(page, "<tbody>\n"), 15U);
    EXPECT_EQ(CountOf(page, "<tbody class=\"n50\">\n"), 1U);
    EXPECT_EQ(CountOf(page, "\n.n50{--rows:50}\n"), 1U);
    UseMany(450);
    page = Page();
    EXPECT_EQ(CountOf(page, "class=\"long\""), 0U);
    EXPECT_EQ(CountOf(page, "<tbody>\n"), 3U);
}

TEST_F(Html5WriterTest, AnAbortKeepsTheRowsWrittenAndLeavesAnIncompleteIndexOrNone) {
    UseMany(25);
    settings.Spanning = 10;
    monitor.abortAtQuestion = 16;
    EXPECT_TRUE(Write(kHtmlOutput));
    EXPECT_EQ(Files(), (std::set<std::string>{"list.001.htm", "list.002.htm"}));
    EXPECT_EQ(Rows(Written("list.001.htm")).size(), 10U);
    EXPECT_EQ(Rows(Written("list.002.htm")).size(), 5U);
    EXPECT_THAT(Written("list.002.htm"), Not(HasSubstr("</html>")));
    monitor.asked = 0;
    monitor.abortAtQuestion = 40;
    EXPECT_TRUE(Write(kHtmlOutput));
    // A script still, but of fewer tracks than the pages say: they do not use it.
    EXPECT_THAT(Written("list.search.js"), EndsWith("\n]});\n"));
    EXPECT_LT(CountOf(Written("list.search.js"), "\n["), 25U);
}

TEST_F(Html5WriterTest, StatusAndBarNameEachTrack) {
    UseMany(3);
    Page();
    EXPECT_EQ(monitor.statuses,
              (std::vector<std::string>{"Writing entry for file 1/3...", "Writing entry for file 2/3...",
                                        "Writing entry for file 3/3..."}));
    EXPECT_EQ(monitor.positions, (std::vector<std::int32_t>{1, 2, 3}));
}

TEST_F(Html5WriterTest, AListingWithoutTracksIsAWholePage) {
    Use({});
    for (const bool grouped : {false, true}) {
        settings.GroupByAlbum = grouped;
        const std::string page = Page();
        EXPECT_EQ(Rows(page).size(), 0U);
        EXPECT_THAT(page, EndsWith("</script>\n</body>\n</html>\n"));
    }
}

TEST_F(Html5WriterTest, APageTakesFewerBytesThanHtml) {
    UseMany(1000);
    const std::size_t html5 = Page().size();
    settings.DocumentType = "HTML";
    EXPECT_LT(html5 * 10, Page().size() * 13);
}

} // namespace
} // namespace tunedex
