#include "Html5ColumnRules.h"
#include "ListingFixture.h"

#include <gmock/gmock.h>

namespace tunedex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class Html5ColumnsTest : public ListingTest {
  protected:
    std::vector<Html5Column> Measure(const std::string& columns) {
        Listing listing = MakeListing();
        listing.columns = SplitColumns(columns, ColumnSet::Modern);
        return MeasureHtml5Columns(listing);
    }
    std::string Rules(const std::vector<Html5Column>& columns, const std::vector<bool>& shown) {
        std::string style;
        WriteHtml5ColumnRules(style, columns, shown, "#tracks", settings);
        return style;
    }
};

TEST_F(Html5ColumnsTest, AreAsWideAsNineOfTenTexts) {
    std::vector<TrackInfo> infos(100, SevenTracks().front());
    for (std::size_t i = 0; i < infos.size(); ++i) {
        infos[i].Title = std::string(i < 89 ? 20 : 30, 'x');
        infos[i].Album = std::string(i < 95 ? 25 : 500, 'x');
        infos[i].Artist =
            "\xE8\x8A\xB1\xE3\x81\xAE\xE6\xA5\xBD\xE5\x9B\xA3"; // four characters, each two wide
        infos[i].Duration = i == 50 ? "100:00" : "1:00";
        infos[i].Genre = "R\xC3\xB6"
                         "ck";
    }
    Use(infos);
    settings.FontCSS = settings.FontHTML = false;
    const std::vector<Html5Column> columns = Measure("Title|Album|Artist|Duration|Genre|Number");
    std::vector<int> widths;
    widths.reserve(columns.size());
    for (const Html5Column& column : columns) {
        widths.push_back(column.width);
    }
    // At least as wide as the header and the mark of its order; Number has three digits.
    EXPECT_THAT(widths, ElementsAre(30, 25, 8, 10, 7, 8));
}

TEST_F(Html5ColumnsTest, HaveALimit) {
    std::vector<TrackInfo> infos(3, SevenTracks().front());
    for (TrackInfo& info : infos) {
        info.Title = std::string(5000, 'x');
        info.Year = std::string(5000, 'y');
    }
    Use(infos);
    for (const Html5Column& column : Measure("Title|Year")) {
        EXPECT_EQ(column.width, 60);
    }
}

TEST_F(Html5ColumnsTest, CountTheHeaderInTheFontOfTheCells) {
    Use(SevenTracks());
    settings.FontCSS = true;
    settings.Font[kHeaderFont].size = "5";
    settings.Font[kCellFont].size = "3";
    EXPECT_EQ(Measure("Number").front().width, 12); // (6 + 2) * 1.5
}

TEST_F(Html5ColumnsTest, OfAListingWithoutTracksHaveAWidth) {
    Use({});
    for (const Html5Column& column : Measure("Number|Title|Nonsense|")) {
        EXPECT_GE(column.width, 1);
        EXPECT_LE(column.leastWidth, column.width);
    }
}

TEST_F(Html5ColumnsTest, IncludeTheLinks) {
    settings.DoLinks = true;
    Use(SevenTracks());
    const std::vector<Html5Column> columns = Measure("Title");
    ASSERT_EQ(columns.size(), 2U);
    EXPECT_TRUE(columns[1].isLink);
    EXPECT_EQ(columns[1].header, "Link");
}

TEST_F(Html5ColumnsTest, FoldTheLeastImportantFirst) {
    Use(SevenTracks());
    const std::vector<Html5Column> columns = Measure("Number|Artist|Title|Full Path|Duration");
    const std::string rules = Rules(columns, std::vector<bool>(5, true));
    std::vector<std::string> order;
    std::vector<int> widths;
    for (std::size_t at = rules.find("(max-width:"); at != std::string::npos;
         at = rules.find("(max-width:", at + 1)) {
        widths.push_back(std::stoi(rules.substr(at + 11)));
        const std::size_t content = rules.find("content:\"", at) + 9;
        order.push_back(rules.substr(content, rules.find(':', content) - content));
    }
    EXPECT_THAT(order, ElementsAre("Full Path", "Number", "Duration", "Artist")); // never the title
    EXPECT_TRUE(std::is_sorted(widths.rbegin(), widths.rend()));
}

TEST_F(Html5ColumnsTest, AreRightAlignedWhereTheirCellsAre) {
    Use(SevenTracks());
    const std::string rules = Rules(Measure("Number|Title|Bitrate"), {true, true, true});
    EXPECT_THAT(rules, HasSubstr("#tracks :is(td,thead th):nth-child(1){text-align:right}"));
    EXPECT_THAT(rules, Not(HasSubstr("nth-child(2){text-align:right}")));
    EXPECT_THAT(rules, HasSubstr("#tracks :is(td,thead th):nth-child(3){text-align:right}"));
}

TEST_F(Html5ColumnsTest, ThatAreNotShownTakeNoWidth) {
    Use(SevenTracks());
    const std::vector<Html5Column> columns = Measure("Title|Album");
    const std::string least = std::to_string(columns[0].headerWidth);
    const std::string width = std::to_string(columns[0].width);
    const std::string rules = Rules(columns, {true, false});
    EXPECT_THAT(rules, HasSubstr("#tracks{--cols:minmax(min(calc(" + least + "ch + var(--pad)),100%)," +
                                 width + "fr) ;"));
    EXPECT_THAT(rules, HasSubstr("#tracks :is(td,thead th):nth-child(2){display:none}"));
    EXPECT_THAT(rules, HasSubstr("@media print{\n#tracks thead th:nth-child(1){width:100%}\n}"));
    EXPECT_THAT(rules, Not(HasSubstr("max-width")));
}

TEST_F(Html5ColumnsTest, ShareTheWidthIfNoneIsFlexible) {
    Use(SevenTracks());
    const std::string rules = Rules(Measure("Number|Year"), {true, true});
    EXPECT_THAT(rules, testing::StartsWith("#tracks{--cols:minmax(min("));
}

TEST_F(Html5ColumnsTest, HaveHeadersThatCannotLeaveTheStyle) {
    Use(SevenTracks());
    const std::string rules = Rules(Measure("Title|</style>\"x"), {true, true});
    EXPECT_THAT(rules, HasSubstr(R"(content:"\3c /style>\"x: ")"));
    EXPECT_THAT(rules, Not(HasSubstr("</style")));
}

} // namespace
} // namespace tunedex
