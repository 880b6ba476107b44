#include "HtmlWriter.h"
#include "ListingFixture.h"
#include "Placeholders.h"
#include "StyleSheet.h"
#include "Text.h"

#include <algorithm>
#include <random>

namespace tunedex {
namespace {

using EscapeTest = ListingTest;
using HtmlBitsTest = ListingTest;
using HtmlWriterTest = ListingTest;
using PlaceholdersTest = ListingTest;
using StyleSheetTest = ListingTest;

std::string LineWith(const std::string& page, const std::string& part) {
    const std::size_t at = page.find(part);
    if (at == std::string::npos) {
        return "nothing with " + part;
    }
    const std::size_t from = page.rfind('\n', at) + 1;
    return page.substr(from, page.find("\r\n", at) - from);
}

std::size_t CountOf(const std::string& page, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = page.find(part); at != std::string::npos; at = page.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

// ---- placeholders

struct PlaceholderRow {
    const char* text;
    const char* inTitle;
    const char* inPage;
};

TEST_F(PlaceholdersTest, AreReplacedOneAfterTheOther) {
    const PlaceholderRow rows[] = {
        {"MP3 List (%D)", "MP3 List (2026-11-21)", "MP3 List (2026-11-21)"},
        {"MP3 Listing (%C files)", "MP3 Listing (250 files)", "MP3 Listing (250 files)"},
        {"%D %T %C %N %S %P", "2026-11-21 14:05 250 0 953.67 MB 4:05",
         "2026-11-21 14:05 250 0 953.67 MB 4:05"},
        {"%d %t %c %n %s %p %l", "%d %t %c %n %s %p %l", "%d %t %c %n %s %p %l"},
        {"100%% done", "100% done", "100% done"},
        {"a%Lb", "a - b", "a<br>b"},
        {"%%L", " - ", "<br>"},
        {"%%D", "%2026-11-21", "%2026-11-21"}, // the date comes first
        {"%%%", "%%", "%%"},
        {"%C%C", "250250", "250250"},
        {"", "", ""},
        {"%", "%", "%"},
    };
    UseMany(250);
    for (const PlaceholderRow& row : rows) {
        settings.WindowTitle = settings.PageTitle = settings.PageFooter = row.text;
        Listing listing = MakeListing();
        ExpandTitlePlaceholders(listing, "<br>");
        EXPECT_EQ(settings.WindowTitle, row.inTitle) << row.text;
        EXPECT_EQ(settings.PageTitle, row.inPage) << row.text;
        EXPECT_EQ(settings.PageFooter, row.inPage) << row.text;
    }
}

TEST_F(PlaceholdersTest, ShowTheSizeInTheUnitOfTheSettings) {
    Use(SevenTracks());
    totals.TotalBytes = 1234567;
    for (const auto& [type, text] : std::vector<std::pair<std::int16_t, std::string>>{
             {0, "1,234,567 b. 1"}, {1, "1,205.63 kB 1"}, {2, "1.18 MB 1"}, {3, " 1"}}) {
        settings.SizeType = type;
        settings.PageTitle = "%S %N";
        Listing listing = MakeListing();
        ExpandTitlePlaceholders(listing, "<br>");
        EXPECT_EQ(settings.PageTitle, text);
    }
    totals.TotalBytes = 9007199254740992.0; // 8 PB, beyond any 32-bit number
    settings.SizeType = 0;
    settings.PageTitle = "%S";
    Listing listing = MakeListing();
    ExpandTitlePlaceholders(listing, "<br>");
    EXPECT_EQ(settings.PageTitle, "9,007,199,254,740,992 b.");
}

TEST_F(PlaceholdersTest, ReadTheClockAfreshForEachText) {
    class TickingClock final : public Clock {
      public:
        std::tm LocalTime() const override {
            std::tm time{};
            time.tm_year = 126;
            time.tm_mday = 1;
            time.tm_min = ++minute_;
            return time;
        }
        void Sleep(std::chrono::milliseconds /*duration*/) override {}

      private:
        mutable int minute_ = 0;
    };
    const TickingClock ticking;
    settings.WindowTitle = settings.PageTitle = settings.PageFooter = "%T";
    Listing listing{settings, tracks, totals, entities, locale, ticking, monitor};
    ExpandTitlePlaceholders(listing, "<br>");
    EXPECT_EQ(settings.WindowTitle, "00:01");
    EXPECT_EQ(settings.PageTitle, "00:02");
    EXPECT_EQ(settings.PageFooter, "00:03");
}

TEST(PlayTimeText, ShowsHoursFromAnHourOn) {
    for (const auto& [seconds, text] :
         std::vector<std::pair<double, std::string>>{{0, "0:00"},
                                                     {9, "0:09"},
                                                     {59, "0:59"},
                                                     {60, "1:00"},
                                                     {245, "4:05"},
                                                     {3599, "59:59"},
                                                     {3600, "1:00:00"},
                                                     {3725, "1:02:05"},
                                                     {36000, "10:00:00"},
                                                     {360000, "100:00:00"},
                                                     {8640000001.0, "2400000:00:01"}}) {
        EXPECT_EQ(PlayTimeText(seconds), text);
    }
}

// ---- style block

std::string Lines(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

std::string StyleBlock(const Settings& settings) {
    std::string page;
    WriteStyleBlock(page, settings);
    return page;
}

TEST_F(StyleSheetTest, HoldsColoursAndFonts) {
    EXPECT_EQ(
        StyleBlock(settings),
        Lines({"\t\t<style type=\"text/css\">", "\t\t<!--",
               "\t\t\tbody {color: #000000; background-color: #FFFFFF; font-family: Times New Roman, serif; "
               "font-size: small; font-weight: bold;}",
               "\t\t\ttr {color: #000000; background-color: #CECECE;}",
               "\t\t\ttr.r2 {color: #000000; background-color: #DEDEDE;}",
               "\t\t\tth {color: #FFFF00; background-color: #000066; font-family: Tahoma, Arial, sans-serif; "
               "font-size: x-small; font-weight: bold;}",
               "\t\t\ttd {font-family: Tahoma, Arial, sans-serif; font-size: xx-small; font-weight: normal; "
               "font-style: normal;}",
               "\t\t\ta {color: #0000FF;}", "\t\t//-->", "\t\t</style>"}));
}

TEST_F(StyleSheetTest, KeepsEmptyRulesWithColoursOnly) {
    settings.FontCSS = false;
    EXPECT_EQ(StyleBlock(settings),
              Lines({"\t\t<style type=\"text/css\">", "\t\t<!--",
                     "\t\t\tbody {color: #000000; background-color: #FFFFFF;}",
                     "\t\t\ttr {color: #000000; background-color: #CECECE;}",
                     "\t\t\ttr.r2 {color: #000000; background-color: #DEDEDE;}",
                     "\t\t\tth {color: #FFFF00; background-color: #000066;}", "\t\t\ttd }",
                     "\t\t\ta {color: #0000FF;}", "\t\t//-->", "\t\t</style>"}));
}

TEST_F(StyleSheetTest, HasNoLinkRuleWithFontsOnly) {
    settings.ColourCSS = false;
    settings.DocumentType = "XHTML";
    settings.Font = {FontSetting{"A", "7", false, true}, FontSetting{"B", "9", true, true},
                     FontSetting{"C", "4", true, true}};
    EXPECT_EQ(StyleBlock(settings),
              Lines({"\t\t<style type=\"text/css\">", "\t\t<![CDATA[",
                     "\t\t\tbody {font-family: A; font-size: xx-large; font-style: italic;}", "\t\t\ttr }",
                     "\t\t\ttr.r2 }",
                     "\t\t\tth {font-family: B; font-size: small; font-weight: bold; font-style: italic;}",
                     "\t\t\ttd {font-family: C; font-size: medium; font-weight: bold; font-style: italic;}",
                     "\t\t]]>", "\t\t</style>"}));
}

TEST_F(StyleSheetTest, HidesNothingInAnUnknownDocumentType) {
    settings.DocumentType = "html";
    const std::string block = StyleBlock(settings);
    EXPECT_NE(block.find("<style type=\"text/css\">\r\n\t\t\r\n\t\t\tbody"), std::string::npos);
    EXPECT_NE(block.find("a {color: #0000FF;}\r\n\t\t\r\n\t\t</style>"), std::string::npos);
}

TEST(CssSizeName, NamesSevenSizes) {
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"1", "xx-small"}, {"2", "x-small"},  {"3", "small"},  {"4", "medium"}, {"5", "large"},
        {"6", "x-large"},  {"7", "xx-large"}, {"0", "small"},  {"8", "small"},  {"9", "small"},
        {"", "small"},     {"10", "small"},   {"11", "small"}, {"+1", "small"}};
    for (const auto& [size, name] : rows) {
        EXPECT_EQ(CssSizeName(size), name) << size;
    }
}

// ---- fragments

TEST_F(HtmlBitsTest, OpenAFontTagForWhatIsDoneWithTags) {
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

TEST_F(HtmlBitsTest, RaiseError9ForAnIndexThatIsNone) {
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

TEST_F(HtmlBitsTest, LinkThePagesToOneAnother) {
    const PageFiles files{"C:\\lists\\base", ".html", 3};
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
    EXPECT_EQ((PageFiles{"x", ".htm", 1}.PathOf(1)), "x.001.htm");
    EXPECT_EQ((PageFiles{"x", ".htm", 1}.PathOf(999)), "x.999.htm");
    EXPECT_EQ((PageFiles{"x", ".htm", 1}.PathOf(1000)), "x.1000.htm");
}

TEST_F(HtmlBitsTest, WriteTheTableOfTheWidthAndSpacingAsked) {
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
    EXPECT_EQ(foot(5), "\t\t\t\t\t\t<tr bgcolor=\"#000066\"><th colspan=\"5\">Created with Tunedex v1.0 by "
                       "Orvando</th></tr>\r\n" +
                           rest);
    settings.DoLinks = settings.ColourHTML = true;
    EXPECT_EQ(foot(5),
              "\t\t\t\t\t\t<tr bgcolor=\"#000066\"><th colspan=\"6\"><font color=\"#FFFF00\">Created with "
              "Tunedex v1.0 by Orvando</font></th></tr>\r\n" +
                  rest);
}

TEST_F(HtmlBitsTest, WriteTheHeadingWithThePageNumberOnlyWhereThereAreSeveral) {
    settings.PageTitle = "A & <b>B</b>";
    const auto heading = [&](int page, int count) {
        std::string text;
        WritePageHeading(text, settings, page, count, "<br />");
        return text;
    };
    EXPECT_EQ(heading(1, 1), "\t\t<p align=\"center\">A & <b>B</b></p>\r\n");
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

TEST_F(HtmlBitsTest, LeadALinkToTheFileInTheFormAskedFor) {
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

// ---- rows

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

TEST_F(HtmlRowTest, HoldsACellForEachColumn) {
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
    // Empty is what was so before escaping.
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

TEST_F(HtmlRowTest, LeavesACellOfAnUnknownColumnBroken) {
    EXPECT_EQ(Row(SevenTracks()[0], "Number|Foo"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td align=\"right\">1</td><td</td></tr>");
    settings.FontHTML = true;
    settings.Font[2] = {"F", "1", true, true};
    EXPECT_EQ(Row(SevenTracks()[0], "Foo"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td</i></b></font></td></tr>");
}

TEST_F(HtmlRowTest, EndsInALinkWhenAsked) {
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

TEST_F(HtmlRowTest, WritesCharactersThatThePageLacksAsReferences) {
    settings.DoLinks = true;
    EXPECT_EQ(Row(SevenTracks()[5], "Artist|Title|Album"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td>&#26085;&#26412;</td><td>&#12354; &#8364; "
              "5</td><td>&#1052;&#1080;&#1088;</td><td align=\"center\"><a "
              "href=\"file:////music/&#26085;&#26412;/&#12354;.mp3\">Link</a></td></tr>");
    EXPECT_EQ(Row(SevenTracks()[1], "Artist"),
              "\t\t\t\t\t\t<tr bgcolor=\"#CECECE\"><td>Bj&ouml;rk</td><td align=\"center\"><a "
              "href=\"file:////music/Bj\xF6rk/J\xF3ga.mp3\">Link</a></td></tr>");
}

TEST_F(HtmlRowTest, SaysNothingOfFontsWhereTheStyleSheetDoes) {
    settings.Font[0] = settings.Font[1] = settings.Font[2] = {"F", "1", true, true};
    Use(SevenTracks());
    settings.Merge = 0;
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "<font"), 0U);
    EXPECT_EQ(CountOf(page, "<b>"), 0U);
    EXPECT_EQ(CountOf(page, "<i>"), 0U);
}

TEST_F(HtmlRowTest, ColoursOnlyWithColourTags) {
    settings.ColourHTML = true;
    settings.Merge = 0;
    Use(SevenTracks());
    const std::string page = Page();
    EXPECT_GT(CountOf(page, "<font"), 10U);
    EXPECT_EQ(CountOf(page, "<font"), CountOf(page, "<font color=\"#"));
    EXPECT_EQ(CountOf(page, "face="), 0U);
    EXPECT_EQ(CountOf(page, "<b>"), 0U);
}

// ---- pages

TEST_F(HtmlWriterTest, BeginsAPageAsItsDocumentTypeAsks) {
    Use({});
    settings.FontCSS = settings.ColourCSS = false;
    settings.WindowTitle = "a & <b>";
    const std::string rest =
        "\t<head>\r\n\t\t<title>a & <b></title>\r\n\t\t<meta http-equiv=\"Content-Type\" "
        "content=\"text/html; charset=iso-8859-1\"";
    const std::string generator =
        "\t\t<meta name=\"generator\" content=\"Tunedex v1.0 by Orvando (https://tunedex.example/)\"";
    const std::string body =
        "\t</head>\r\n\t<body bgcolor=\"#FFFFFF\" text=\"#000000\" link=\"#0000FF\">\r\n";
    std::string page = Page();
    EXPECT_TRUE(
        page.starts_with("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
                         "\"http://www.w3.org/TR/1999/REC-html401-19991224/loose.dtd\">\r\n<html>\r\n" +
                         rest + ">\r\n" + generator + ">\r\n" + body))
        << page;
    settings.DocumentType = "XHTML";
    page = Page();
    EXPECT_TRUE(page.starts_with(
        "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>\r\n<!DOCTYPE html PUBLIC \"-//W3C//DTD "
        "XHTML 1.0 Transitional//EN\" "
        "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\">\r\n<html "
        "xmlns=\"http://www.w3.org/1999/xhtml\" xml:lang=\"en\" lang=\"en\">\r\n" +
        rest + " />\r\n" + generator + " />\r\n" + body))
        << page;
    for (const char* unknown : {"", "html", "Xhtml", "HTML "}) {
        settings.DocumentType = unknown;
        EXPECT_TRUE(Page().starts_with("\r\n\r\n" + rest + ">\r\n" + generator + ">\r\n" + body)) << unknown;
    }
}

TEST_F(HtmlWriterTest, EndsAPageWithTheFooterAndTheHomePage) {
    Use({});
    settings.PageFooter = "";
    EXPECT_TRUE(Page().ends_with(
        "\t\t<p align=\"center\">\r\n\t\t\t<br><br>\r\n\t\t\t<a "
        "href=\"https://tunedex.example/\" target=\"_blank\">https://tunedex.example/</a><br>\r\n\t\t</"
        "p>\r\n\t</body>\r\n</html>\r\n"));
    settings.DocumentType = "XHTML";
    settings.PageFooter = "by %C & me";
    settings.FontHTML = settings.ColourHTML = true;
    EXPECT_TRUE(Page().ends_with(
        "\t\t<p align=\"center\">\r\n\t\t\t<font face=\"Tahoma, Arial, sans-serif\" size=\"1\" "
        "color=\"#000000\">by 0 & me<br /><br />\r\n\t\t\t<a "
        "href=\"https://tunedex.example/\" target=\"_blank\">https://tunedex.example/</a></font><br "
        "/>\r\n\t\t</p>\r\n\t</body>\r\n</html>\r\n"));
}

TEST_F(HtmlWriterTest, HasAStyleBlockWhereTheSettingsAskForOne) {
    Use({});
    for (const auto& [fonts, colours] :
         std::vector<std::pair<bool, bool>>{{false, false}, {true, false}, {false, true}}) {
        settings.FontCSS = fonts;
        settings.ColourCSS = colours;
        EXPECT_EQ(CountOf(Page(), "<style"), fonts || colours ? 1U : 0U);
    }
}

struct PagesRow {
    std::size_t tracks;
    std::int16_t spanning;
    std::int32_t pages;
};

TEST_F(HtmlWriterTest, DividesTheTracksAmongThePages) {
    for (const PagesRow& row :
         {PagesRow{0, 100, 1}, PagesRow{99, 100, 1}, PagesRow{100, 100, 1}, PagesRow{101, 100, 2},
          PagesRow{200, 100, 2}, PagesRow{250, 100, 3}, PagesRow{250, 0, 1}, PagesRow{250, -5, 1},
          PagesRow{3, 1, 3}, PagesRow{1, 1, 1}, PagesRow{1000, 1, 1000}}) {
        settings.Spanning = row.spanning;
        EXPECT_EQ(PlanPages(settings, row.tracks).count, row.pages) << row.tracks << " " << row.spanning;
    }
}

TEST_F(HtmlWriterTest, WritesOnePageUnderTheNameOfTheSettings) {
    UseMany(100);
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "Previous Page"), 0U);
    EXPECT_EQ(CountOf(page, "<title>MP3 List (2026-11-21)</title>"), 1U);
    EXPECT_EQ(CountOf(page, "Page 1 of 1"), 0U);
    EXPECT_FALSE(folder.Exists("list.001.htm"));
    EXPECT_EQ(CountOf(page, "<td align=\"right\">4:10</td>"), 100U);
}

TEST_F(HtmlWriterTest, WritesSeveralPagesUnderNumberedNames) {
    UseMany(250);
    settings.OutputFile = folder / "my.list.html";
    EXPECT_FALSE(Write(kHtmlOutput));
    EXPECT_FALSE(folder.Exists("my.list.html"));
    EXPECT_FALSE(folder.Exists("my.list.004.html"));
    const std::size_t rows[] = {100, 100, 50};
    for (int number = 1; number <= 3; ++number) {
        const std::string n = std::to_string(number);
        const std::string page = Written("my.list.00" + n + ".html");
        EXPECT_EQ(CountOf(page, "<title>MP3 List (2026-11-21) - Page " + n + " of 3</title>"), 1U);
        EXPECT_EQ(CountOf(page, "<br><font size=\"2\">Page " + n + " of 3</font></p>"), 1U);
        EXPECT_EQ(CountOf(page, "<p align=\"center\"><font size=\"2\">"), 2U) << "above and below the table";
        EXPECT_EQ(CountOf(page, "<td align=\"right\">4:10</td>"), rows[number - 1]);
        EXPECT_EQ(CountOf(page, "<td align=\"right\">" + std::to_string((number - 1) * 100 + 1) + "</td>"),
                  1U);
        // The rows' kinds begin anew on each page.
        EXPECT_TRUE(LineWith(page, std::to_string((number - 1) * 100 + 1) + "</td>")
                        .starts_with("\t\t\t\t\t\t<tr bgcolor=\"#CECECE\">"));
    }
    EXPECT_EQ(CountOf(Written("my.list.002.html"), "<a href=\"my.list.001.html\">"), 2U);
    EXPECT_EQ(CountOf(Written("my.list.002.html"), "<a href=\"my.list.003.html\">"), 2U);
}

TEST_F(HtmlWriterTest, AppendsItsExtensionWhereItIsMissing) {
    const std::vector<std::pair<std::string, std::string>> names = {
        {"list", "list.htm"},         {"list.HTML", "list.HTML"},
        {"list.Htm", "list.Htm"},     {"list.html5", "list.html5.htm"},
        {"list.txt", "list.txt.htm"}, {"htm", "htm.htm"},
        {"list.", "list..htm"}};
    for (const auto& [name, written] : names) {
        settings.OutputFile = folder / name;
        EXPECT_FALSE(Write(kHtmlOutput));
        EXPECT_TRUE(folder.Exists(written)) << name;
        EXPECT_EQ(settings.OutputFile, folder / written);
    }
}

TEST_F(HtmlWriterTest, WritesHtmlForAnUnknownType) {
    Use(SevenTracks());
    for (const int type : {3, -1, 99}) {
        EXPECT_FALSE(Write(type));
        EXPECT_TRUE(Written("list.htm").starts_with("<!DOCTYPE HTML"));
    }
}

TEST_F(HtmlWriterTest, HasHeadAndFootAndNoRowsWithoutTracks) {
    Use({});
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "<th"), 4U);
    EXPECT_EQ(CountOf(page, "<td"), 1U) << "the outer table's";
}

TEST_F(HtmlWriterTest, AlternatesTheRowsWhenAsked) {
    UseMany(5);
    std::string page = Page();
    EXPECT_EQ(CountOf(page, "<tr bgcolor=\"#CECECE\">"), 3U);
    EXPECT_EQ(CountOf(page, "<tr bgcolor=\"#DEDEDE\" class=\"r2\">"), 2U);
    EXPECT_LT(page.find("#CECECE\">"), page.find("#DEDEDE\" class"));
    settings.FontCSS = false;
    EXPECT_EQ(CountOf(Page(), "<tr bgcolor=\"#DEDEDE\">"), 2U)
        << "the class goes with the fonts, whatever the colours do";
    settings.AltRows = false;
    settings.FontCSS = true;
    EXPECT_EQ(CountOf(Page(), "<tr bgcolor=\"#CECECE\">"), 5U);
}

TEST_F(HtmlWriterTest, UsesTheAlternateTextColourInFontTags) {
    UseMany(2);
    settings.ColourHTML = true;
    settings.Colour[4] = "111111";
    settings.Colour[6] = "222222";
    const std::string page = Page();
    EXPECT_NE(LineWith(page, "bgcolor=\"#CECECE\"").find("<font color=\"#111111\">"), std::string::npos);
    EXPECT_NE(LineWith(page, "bgcolor=\"#DEDEDE\"").find("<font color=\"#222222\">"), std::string::npos);
}

TEST_F(HtmlWriterTest, ShowsEachRowAsItIsWritten) {
    UseMany(2);
    Page();
    EXPECT_EQ(monitor.statuses,
              (std::vector<std::string>{"Writing entry for file 1/2...", "Writing entry for file 2/2..."}));
    EXPECT_EQ(monitor.positions, (std::vector<std::int32_t>{1, 2}));
}

TEST_F(HtmlWriterTest, KeepsThePagesBeforeAnAbortAndTheRowsOfTheOneItIsIn) {
    UseMany(9);
    settings.Spanning = 3;
    monitor.abortAtQuestion = 4 + 2; // three rows and the page, then two rows
    EXPECT_TRUE(Write(kHtmlOutput));
    EXPECT_TRUE(Written("list.001.htm").ends_with("</html>\r\n"));
    const std::string cut = Written("list.002.htm");
    EXPECT_TRUE(cut.ends_with("<td align=\"right\">5</td><td><b>Abba (Waterloo):</b> Title 5</td><td "
                              "align=\"right\">4:10</td></tr>\r\n"))
        << cut;
    EXPECT_FALSE(folder.Exists("list.003.htm"));
}

TEST_F(HtmlWriterTest, AsksBetweenPagesToo) {
    UseMany(9);
    settings.Spanning = 3;
    monitor.abortAtQuestion = 4; // after the first page's three rows
    EXPECT_TRUE(Write(kHtmlOutput));
    EXPECT_TRUE(Written("list.001.htm").ends_with("</html>\r\n"));
    EXPECT_FALSE(folder.Exists("list.002.htm"));
}

TEST_F(HtmlWriterTest, WritesTheSameBytesTwice) {
    Use(SevenTracks());
    settings.DoLinks = settings.FontHTML = true;
    const Settings before = settings;
    const std::string first = Page();
    settings = before;
    EXPECT_EQ(Page(), first);
}

TEST_F(HtmlWriterTest, WritesALongPageWhole) {
    UseMany(20000);
    settings.Spanning = 0;
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "<td align=\"right\">4:10</td>"), 20000U);
    EXPECT_TRUE(page.ends_with("</html>\r\n"));
}

TEST_F(HtmlWriterTest, EmptiesNothingButTheAttributeOfAnEmptyColour) {
    Use({});
    settings.Colour.fill("");
    EXPECT_EQ(CountOf(Page(), "bgcolor=\"#\""), 4U);
}

// ---- entities

std::string EscapedOneSlotAfterTheOther(const EntityTable& table, std::string text) {
    const auto& slots = table.Slots();
    for (std::size_t slot = 0; slot + 1 < slots.size(); ++slot) {
        std::string character;
        AppendUtf8(character, FromWindows1252(static_cast<unsigned char>(slots[slot].code)));
        text = ReplaceAll(text, character, slots[slot].text);
    }
    return text;
}

TEST_F(EscapeTest, AgreesWithReplacingOneSlotAfterTheOther) {
    std::mt19937 random(11);
    const std::vector<std::string> pieces = {"a", "b",  "c", "&", ";", "<", "\xC3\xA9", "\xE2\x82\xAC",
                                             "",  "amp"};
    const std::vector<int> codes = {97, 98, 99, 38, 59, 60, 0xE9, 0x80, 0};
    int changed = 0;
    for (int round = 0; round < 2000; ++round) {
        std::vector<std::string> lines;
        for (auto count = random() % 8; count > 0; --count) {
            std::string line = std::to_string(codes[random() % codes.size()]) + "\t";
            for (auto parts = random() % 4; parts > 0; --parts) {
                line += pieces[random() % pieces.size()];
            }
            lines.push_back(random() % 5 == 0 ? "# a comment" : line);
        }
        EntityTable table;
        table.Load(lines, "table", faults);
        std::string text;
        for (auto length = random() % 30; length > 0; --length) {
            text += pieces[random() % pieces.size()];
        }
        text += std::string(random() % 2, '\0');
        const std::string expected = EscapedOneSlotAfterTheOther(table, text);
        ASSERT_EQ(table.EscapeEntities(text), expected) << testing::PrintToString(lines) << text;
        changed += expected != text ? 1 : 0;
    }
    EXPECT_GT(changed, 500);
    EXPECT_EQ(faults.str(), "");
}

TEST_F(EscapeTest, AppliesTheShippedTableOnce) {
    EXPECT_EQ(entities.EscapeEntities("a & <b> \"c\" &amp; \xC3\xA9 \xE2\x82\xAC \x01"),
              "a &amp; &lt;b&gt; &quot;c&quot; &amp;amp; &eacute; &#8364; ");
    std::string everything;
    for (unsigned code = 0; code < 256; ++code) {
        AppendUtf8(everything, FromWindows1252(static_cast<unsigned char>(code)));
    }
    EXPECT_EQ(entities.EscapeEntities(everything), EscapedOneSlotAfterTheOther(entities, everything));
}

} // namespace
} // namespace tunedex
