#include "HtmlWriter.h"

#include "ListingFixture.h"

#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tunedex {
namespace {

using HtmlWriterTest = ListingTest;

TEST_F(HtmlWriterTest, BeginsAPageByItsDocumentType) {
    Use({});
    settings.FontCSS = settings.ColourCSS = false;
    settings.WindowTitle = "a & <b>";
    const std::string rest =
        "\t<head>\r\n\t\t<title>a & <b></title>\r\n\t\t<meta http-equiv=\"Content-Type\" "
        "content=\"text/html; charset=iso-8859-1\"";
    const std::string generator =
        "\t\t<meta name=\"generator\" content=\"Tunedex v1.1 by Orvando (https://tunedex.example/)\"";
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
    const std::string bare = "\r\n\r\n" + rest + ">\r\n" + generator + ">\r\n" + body;
    for (const char* unknown : {"", "html", "Xhtml", "HTML "}) {
        settings.DocumentType = unknown;
        EXPECT_TRUE(Page().starts_with(bare)) << unknown;
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

TEST_F(HtmlWriterTest, HasAStyleBlockWithFontCssOrColourCss) {
    Use({});
    for (const auto& [fonts, colours] :
         std::vector<std::pair<bool, bool>>{{false, false}, {true, false}, {false, true}}) {
        settings.FontCSS = fonts;
        settings.ColourCSS = colours;
        EXPECT_EQ(CountOf(Page(), "<style"), fonts || colours ? 1U : 0U);
    }
}

TEST_F(HtmlWriterTest, WritesOnePageToTheOutputFile) {
    UseMany(100);
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "Previous Page"), 0U);
    EXPECT_EQ(CountOf(page, "<title>MP3 List (2026-11-21)</title>"), 1U);
    EXPECT_EQ(CountOf(page, "Page 1 of 1"), 0U);
    EXPECT_FALSE(folder.Exists("list.001.htm"));
    EXPECT_EQ(CountOf(page, "<td align=\"right\">4:10</td>"), 100U);
}

TEST_F(HtmlWriterTest, WritesSeveralPagesToNumberedFiles) {
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
        // The alternation restarts on each page.
        EXPECT_TRUE(LineWith(page, std::to_string((number - 1) * 100 + 1) + "</td>")
                        .starts_with("\t\t\t\t\t\t<tr bgcolor=\"#CECECE\">"));
    }
    EXPECT_EQ(CountOf(Written("my.list.002.html"), "<a href=\"my.list.001.html\">"), 2U);
    EXPECT_EQ(CountOf(Written("my.list.002.html"), "<a href=\"my.list.003.html\">"), 2U);
}

TEST_F(HtmlWriterTest, AppendsAMissingExtension) {
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

TEST_F(HtmlWriterTest, AlternatesTheRowsWithAltRows) {
    UseMany(5);
    std::string page = Page();
    EXPECT_EQ(CountOf(page, "<tr bgcolor=\"#CECECE\">"), 3U);
    EXPECT_EQ(CountOf(page, "<tr bgcolor=\"#DEDEDE\" class=\"r2\">"), 2U);
    EXPECT_LT(page.find("#CECECE\">"), page.find("#DEDEDE\" class"));
    settings.FontCSS = false;
    EXPECT_EQ(CountOf(Page(), "<tr bgcolor=\"#DEDEDE\">"), 2U)
        << "the class depends on FontCSS, not on ColourCSS";
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

TEST_F(HtmlWriterTest, ReportsEachRowToTheMonitor) {
    UseMany(2);
    Page();
    EXPECT_EQ(monitor.statuses,
              (std::vector<std::string>{"Writing entry for file 1/2...", "Writing entry for file 2/2..."}));
    EXPECT_EQ(monitor.positions, (std::vector<std::int32_t>{1, 2}));
}

TEST_F(HtmlWriterTest, KeepsThePagesAndRowsBeforeAnAbort) {
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

TEST_F(HtmlWriterTest, ChecksForAnAbortBetweenPages) {
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

TEST_F(HtmlWriterTest, WritesEveryRowOfALongPage) {
    UseMany(20000);
    settings.Spanning = 0;
    const std::string page = Page();
    EXPECT_EQ(CountOf(page, "<td align=\"right\">4:10</td>"), 20000U);
    EXPECT_TRUE(page.ends_with("</html>\r\n"));
}

TEST_F(HtmlWriterTest, WritesAnEmptyColourAsAnEmptyValue) {
    Use({});
    settings.Colour.fill("");
    EXPECT_EQ(CountOf(Page(), "bgcolor=\"#\""), 4U);
}

TEST_F(HtmlWriterTest, LooksForStaleTemporaryFilesOnceForAllPages) {
    UseMany(9);
    settings.Spanning = 3;
    const auto leave = [&] {
        folder.Write(".tunedex-1-1.tmp", "left");
        const timespec time{1'000'000'000, 0};
        const std::array<timespec, 2> times = {time, time};
        ASSERT_EQ(utimensat(AT_FDCWD, (folder / ".tunedex-1-1.tmp").c_str(), times.data(), 0), 0);
    };
    leave();
    bool removed = false;
    monitor.abortWhen = [&] {
        if (!removed && folder.Exists("list.001.htm")) {
            removed = !folder.Exists(".tunedex-1-1.tmp");
            leave();
        }
        return false;
    };
    EXPECT_FALSE(Write(kHtmlOutput));
    EXPECT_TRUE(removed);
    EXPECT_TRUE(folder.Exists("list.003.htm"));
    EXPECT_TRUE(folder.Exists(".tunedex-1-1.tmp")) << "later pages do not list the folder again";
}

TEST_F(HtmlWriterTest, LooksForStaleTemporaryFilesInEachFolderThatALinkedPageIsIn) {
    UseMany(9);
    settings.Spanning = 3;
    folder.Write("elsewhere/first.htm", "old");
    ASSERT_EQ(symlink("elsewhere/first.htm", (folder / "list.001.htm").c_str()), 0);
    const timespec time{1'000'000'000, 0};
    const std::array<timespec, 2> times = {time, time};
    for (const char* name : {".tunedex-1-1.tmp", "elsewhere/.tunedex-1-2.tmp"}) {
        folder.Write(name, "left");
        ASSERT_EQ(utimensat(AT_FDCWD, (folder / name).c_str(), times.data(), 0), 0);
    }
    EXPECT_FALSE(Write(kHtmlOutput));
    EXPECT_FALSE(folder.Exists("elsewhere/.tunedex-1-2.tmp"));
    EXPECT_FALSE(folder.Exists(".tunedex-1-1.tmp"));
}

} // namespace
} // namespace tunedex
