#include "HTMLBits.h"

#include "ListingFixture.h"
#include "Text.h"

namespace tunedex {
namespace {

using HtmlBitsTest = ListingTest;

TEST_F(HtmlBitsTest, OpenAFontTagWithTheEnabledAttributes) {
    settings.ColourHTML = settings.FontHTML = false;
    EXPECT_EQ(FontOpen(settings, 2, 4), "");
    EXPECT_EQ(FontClose(settings), "");
    settings.ColourHTML = true;
    EXPECT_EQ(FontOpen(settings, 1, 2), "<font color=\"#FFFF00\">");
    EXPECT_EQ(FontClose(settings), "</font>");
    settings.FontHTML = true;
    EXPECT_EQ(FontOpen(settings, 0, 0),
              "<font face=\"Times New Roman, serif\" size=\"3\" color=\"#000000\">");
    settings.ColourHTML = false;
    EXPECT_EQ(FontOpen(settings, 2, 0), "<font face=\"Tahoma, Arial, sans-serif\" size=\"1\">");
    EXPECT_EQ(FontClose(settings), "</font>");
}

TEST_F(HtmlBitsTest, RaiseError9ForAnIndexOutOfRange) {
    for (const bool tags : {false, true}) {
        settings.FontHTML = settings.ColourHTML = tags;
        for (const auto& [font, colour] :
             std::vector<std::pair<std::size_t, std::size_t>>{{3, 0}, {0, 10}, {99, 99}}) {
            try {
                FontOpen(settings, font, colour);
                ADD_FAILURE() << font << " " << colour;
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.Number(), 9);
            }
        }
        FontOpen(settings, 2, 9);
    }
}

TEST_F(HtmlBitsTest, CloseItalicBeforeBoldAndOnlyWithFontTags) {
    settings.Font[2] = {"F", "1", true, true};
    settings.FontHTML = true;
    EXPECT_EQ(StrengthOpen(settings, 2) + StrengthClose(settings, 2), "<b><i></i></b>");
    settings.Font[2].italic = false;
    EXPECT_EQ(StrengthOpen(settings, 2) + StrengthClose(settings, 2), "<b></b>");
    settings.Font[2] = {"F", "1", false, true};
    EXPECT_EQ(StrengthOpen(settings, 2) + StrengthClose(settings, 2), "<i></i>");
    settings.FontHTML = false;
    settings.ColourHTML = true;
    EXPECT_EQ(StrengthOpen(settings, 2) + StrengthClose(settings, 2), "");
}

TEST_F(HtmlBitsTest, LinkEachPageToItsNeighbours) {
    const PageFiles files("C:\\lists\\base.html", 1, 3);
    const auto navigation = [&](int page) {
        std::string text;
        WriteNavigation(text, page, files, PathStyle::Windows());
        return text;
    };
    const std::string open = "\t\t<p align=\"center\"><font size=\"2\">";
    const std::string between = "&nbsp;&nbsp;&#124;&nbsp;&nbsp;";
    EXPECT_EQ(navigation(1), open + "&lt;&lt; Previous Page" + between +
                                 "<a href=\"base.002.html\">Next Page &gt;&gt;</a></font></p>\r\n");
    EXPECT_EQ(navigation(2), open + "<a href=\"base.001.html\">&lt;&lt; Previous Page</a>" + between +
                                 "<a href=\"base.003.html\">Next Page &gt;&gt;</a></font></p>\r\n");
    EXPECT_EQ(navigation(3), open + "<a href=\"base.002.html\">&lt;&lt; Previous Page</a>" + between +
                                 "Next Page &gt;&gt;</font></p>\r\n");
}

TEST_F(HtmlBitsTest, WriteTheTableWithTheWidthAndSpacingOfTheSettings) {
    const auto head = [&] {
        std::string text;
        WriteTableHead(text, settings,
                       SplitColumns("Number|Artist|ArtistTitle|ArtistAlbumTitle|Album|Title|Year|Genre|MPEG "
                                    "Type|Mode|Bitrate|Frequency|Duration|File Size|Filename|Folder "
                                    "Path|Full Path|Foo"));
        return text;
    };
    settings.TableBorder = 3;
    settings.TablePadding = 4;
    settings.Colour[9] = "ABCDEF";
    EXPECT_TRUE(head().starts_with(
        "\t\t<table width=\"99%\" border=\"0\" cellspacing=\"0\" cellpadding=\"0\" "
        "align=\"center\">\r\n\t\t\t<tr>\r\n\t\t\t\t<td>\r\n\t\t\t\t\t<table width=\"100%\" "
        "border=\"0\" bgcolor=\"#ABCDEF\" cellspacing=\"3\" cellpadding=\"4\">\r\n"));
    settings.TableWidthUnit = 0;
    EXPECT_TRUE(head().starts_with("\t\t<table width=\"99\" border"));
    EXPECT_EQ(
        LineWith(head(), "<th>Number"),
        "\t\t\t\t\t\t<tr bgcolor=\"#000066\"><th>Number</th><th align=\"left\">Artist</th><th "
        "align=\"left\">Artist: "
        "Title</th><th align=\"left\">Artist (Album): Title</th><th align=\"left\">Album</th><th "
        "align=\"left\">Title</th><th>Year</th><th>Genre</th><th>MPEG "
        "Type</th><th>Mode</th><th>Bitrate</th><th>Frequency</th><th>Duration</th><th>File Size</th><th "
        "align=\"left\">Filename</th><th align=\"left\">Folder Path</th><th align=\"left\">Full "
        "Path</th><th>Foo</th></tr>");
    settings.DoLinks = settings.FontHTML = true;
    settings.Font[1] = {"F", "2", true, true};
    EXPECT_TRUE(
        head().ends_with("<th><font face=\"F\" size=\"2\"><b><i>Foo</i></b></font></th><th><font face=\"F\" "
                         "size=\"2\">Link</font></th></tr>\r\n"))
        << head();
}

TEST_F(HtmlBitsTest, SpanTheFootOverAllColumns) {
    const auto foot = [&](std::size_t columns) {
        std::string text;
        WriteTableFoot(text, settings, columns);
        return text;
    };
    const std::string rest = "\t\t\t\t\t</table>\r\n\t\t\t\t</td>\r\n\t\t\t</tr>\r\n\t\t</table>\r\n";
    EXPECT_EQ(foot(5), "\t\t\t\t\t\t<tr bgcolor=\"#000066\"><th colspan=\"5\">Created with Tunedex v1.1 by "
                       "Orvando</th></tr>\r\n" +
                           rest);
    settings.DoLinks = settings.ColourHTML = true;
    EXPECT_EQ(foot(5),
              "\t\t\t\t\t\t<tr bgcolor=\"#000066\"><th colspan=\"6\"><font color=\"#FFFF00\">Created with "
              "Tunedex v1.1 by Orvando</font></th></tr>\r\n" +
                  rest);
}

TEST_F(HtmlBitsTest, NumberTheHeadingOnlyOnSeveralPages) {
    settings.PageTitle = "A & <b>B</b>";
    const auto heading = [&](int page, int count) {
        std::string text;
        WritePageHeading(text, settings, page, count);
        return text;
    };
    EXPECT_EQ(heading(1, 1), "\t\t<p align=\"center\">A & <b>B</b></p>\r\n");
    EXPECT_EQ(heading(2, 12),
              "\t\t<p align=\"center\">A & <b>B</b><br><font size=\"2\">Page 2 of 12</font></p>\r\n");
    settings.DocumentType = "XHTML";
    EXPECT_EQ(heading(2, 12),
              "\t\t<p align=\"center\">A & <b>B</b><br /><font size=\"2\">Page 2 of 12</font></p>\r\n");
    settings.FontHTML = true;
    settings.Font[0] = {"F", "3", true, true};
    EXPECT_EQ(
        heading(1, 1),
        "\t\t<p align=\"center\"><font face=\"F\" size=\"3\"><b><i>A & <b>B</b></i></b></font></p>\r\n");
}

struct LinkRow {
    std::string path;
    std::string base;
    std::int16_t type;
    PathStyle style;
    std::string_view target;
};

TEST_F(HtmlBitsTest, LinkToTheFileInTheFormOfTheSettings) {
    const PathStyle windows = PathStyle::Windows();
    const PathStyle native = PathStyle::Unix();
    const LinkRow rows[] = {
        {"C:\\Music\\a.mp3", "C:\\Music", 0, windows, "file:///C:/Music/a.mp3"},
        {"C:\\Music\\a.mp3", "C:\\Music", 1, windows, "file:////C/Music/a.mp3"},
        {"C:\\Music\\b\\a.mp3", "C:\\Music", 2, windows, "file:///b/a.mp3"},
        {"C:\\Music\\a.mp3", "C:\\Music\\", 2, windows, "file:///a.mp3"},
        {"C:\\Music\\a.mp3", "D:\\Other", 2, windows, "file:///C:/Music/a.mp3"},
        {"D:\\x\\C:\\Music\\a.mp3", "C:\\Music", 2, windows, "file:///a.mp3"},
        {"C:\\Music\\a.mp3", "C:\\Music", 3, windows, "file:///"},
        {"C:\\Music\\a.mp3", "C:\\Music", -1, windows, "file:///"},
        {"/home/me/a.mp3", "/home/me", 0, native, "file:////home/me/a.mp3"},
        {"/home/me/a:b.mp3", "/home/me", 0, native, "file:////home/me/a:b.mp3"},
        {"/home/me/a:b.mp3", "/home/me", 1, native, "file://///home/me/ab.mp3"},
        {"/home/me/x/a.mp3", "/home/me", 2, native, "file:///x/a.mp3"},
        {"/home/me/x/a.mp3", "/home/me/", 2, native, "file:///x/a.mp3"},
        {"/home/me/a\\b.mp3", "/home/me/", 0, native, "file:////home/me/a\\b.mp3"},
        {"/home/me/a b&<\">%20#?.mp3", "/home/me/", 0, native, "file:////home/me/a b&<\">%20#?.mp3"},
    };
    for (const LinkRow& row : rows) {
        TrackInfo track;
        track.FullPath = row.path;
        track.BaseFolder = row.base;
        Use({track});
        settings.LinkType = row.type;
        EXPECT_EQ(LinkTarget(settings, tracks.At(1), row.style), row.target) << row.path;
    }
    settings.LinkPrefix = "";
    settings.LinkType = 2;
    EXPECT_EQ(LinkTarget(settings, tracks.At(1), native), "a b&<\">%20#?.mp3");
}

class HtmlRowTest : public ListingTest {
  protected:
    // The first row of a page that holds only this track.
    std::string Row(const TrackInfo& track, const std::string& columns, std::int16_t merge = 0) {
        Use({track});
        settings.ActiveColumns = columns;
        settings.Merge = merge;
        return LineWith(Page(), "<tr bgcolor=\"#CECECE\"");
    }
};

TEST_F(HtmlRowTest, HasACellForEachColumn) {
    settings.SizeType = 1;
    EXPECT_EQ(Row(SevenTracks()[3],
                  "Number|Artist|Album|Title|Year|Genre|MPEG Type|Mode|Bitrate|Frequency|Duration|File "
                  "Size|Filename|Folder Path|Full Path"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td align=\"right\">1</td><td>R&amp;B &quot;All&quot; "
              "&lt;Stars&gt;</td><td>A&amp;B</td><td>1 &lt; 2 &amp; 3 &gt; "
              "2</td><td>2001</td><td>R&amp;B</td><td>1.0 "
              "II</td><td>Dual Channel</td><td align=\"right\">320</td><td align=\"right\">32000</td><td "
              "align=\"right\">75:03</td><td align=\"right\">2,048.00 kB</td><td>&quot;quoted&quot; "
              "&lt;b&gt;.mp3</td><td>/music/R&amp;B</td><td>/music/R&amp;B/&quot;quoted&quot; "
              "&lt;b&gt;.mp3</td></tr>");
}

TEST_F(HtmlRowTest, ShowsABlankForAnEmptyAlbumYearAndGenreOnly) {
    TrackInfo track;
    track.FullPath = "a.mp3";
    EXPECT_EQ(Row(track, "Artist|Title|Album|Year|Genre|Mode|MPEG Type|Bitrate|Duration"),
              "\t\t\t\t\t\t<tr "
              "bgcolor=\"#CECECE\"><td></td><td></td><td>&nbsp;</td><td>&nbsp;</td><td>&nbsp;</td><td></"
              "td><td></td><td "
              "align=\"right\"></td><td align=\"right\"></td></tr>");
    // A text that escaping makes empty shows no blank.
    entities.Load({"65\t", "66\tB"}, "table", faults);
    track.Album = track.Artist = "A";
    EXPECT_EQ(Row(track, "Artist|Album"), "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td></td><td></td></tr>");
}

TEST_F(HtmlRowTest, MergesArtistAlbumAndTitleIntoOneCell) {
    EXPECT_EQ(Row(SevenTracks()[3], "Artist|Album|Title", 2),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td><b>R&amp;B &quot;All&quot; &lt;Stars&gt; "
              "(A&amp;B):</b> 1 &lt; 2 "
              "&amp; 3 &gt; 2</td></tr>");
    EXPECT_EQ(Row(SevenTracks()[2], "Artist|Album|Title", 2),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td><b>Nobody:</b> Alone</td></tr>");
    EXPECT_EQ(Row(SevenTracks()[0], "Artist|Title", 1),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td><b>Abba:</b> Waterloo</td></tr>");
}

TEST_F(HtmlRowTest, LeavesTheStartTagOfAnUnknownColumnsCellUnfinished) {
    EXPECT_EQ(Row(SevenTracks()[0], "Number|Foo"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td align=\"right\">1</td><td</td></tr>");
    settings.FontHTML = true;
    settings.Font[2] = {"F", "1", true, true};
    EXPECT_EQ(Row(SevenTracks()[0], "Foo"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td</i></b></font></td></tr>");
}

TEST_F(HtmlRowTest, EndsInALinkWithDoLinks) {
    settings.DoLinks = true;
    EXPECT_EQ(Row(SevenTracks()[0], "Year"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td>1974</td><td align=\"center\"><a "
              "href=\"file:////music/Abba/01 Waterloo.mp3\">Link</a></td></tr>");
    settings.FontHTML = settings.ColourHTML = true;
    settings.Font[2] = {"F", "1", true, true};
    EXPECT_EQ(
        Row(SevenTracks()[0], "Year"),
        "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td><font face=\"F\" size=\"1\" "
        "color=\"#000000\"><b><i>1974</i></b></font></td><td align=\"center\"><font face=\"F\" size=\"1\" "
        "color=\"#000000\"><b><i><a href=\"file:////music/Abba/01 "
        "Waterloo.mp3\">Link</a></i></b></font></td></tr>");
}

TEST_F(HtmlRowTest, WritesCharactersOutsideTheCodePageAsReferences) {
    settings.DoLinks = true;
    EXPECT_EQ(Row(SevenTracks()[5], "Artist|Title|Album"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td>&#26085;&#26412;</td><td>&#12354; &#8364; "
              "5</td><td>&#1052;&#1080;&#1088;</td><td align=\"center\"><a "
              "href=\"file:////music/&#26085;&#26412;/&#12354;.mp3\">Link</a></td></tr>");
    EXPECT_EQ(Row(SevenTracks()[1], "Artist"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td>Bj&ouml;rk</td><td align=\"center\"><a "
              "href=\"file:////music/Bj\xF6rk/J\xF3ga.mp3\">Link</a></td></tr>");
}

TEST_F(HtmlRowTest, HasNoFontTagsWhenTheStyleSheetSetsFonts) {
    settings.Font[0] = settings.Font[1] = settings.Font[2] = {"F", "1", true, true};
    Use(SevenTracks());
    settings.Merge = 0;
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "<font"), 0U);
    EXPECT_EQ(CountOf(page, "<b>"), 0U);
    EXPECT_EQ(CountOf(page, "<i>"), 0U);
}

TEST_F(HtmlRowTest, HasOnlyColoursInFontTagsWithColourHtml) {
    settings.ColourHTML = true;
    settings.Merge = 0;
    Use(SevenTracks());
    const std::string page = Page();
    EXPECT_GT(CountOf(page, "<font"), 10U);
    EXPECT_EQ(CountOf(page, "<font"), CountOf(page, "<font color=\"#"));
    EXPECT_EQ(CountOf(page, "face="), 0U);
    EXPECT_EQ(CountOf(page, "<b>"), 0U);
}

} // namespace
} // namespace tunedex
