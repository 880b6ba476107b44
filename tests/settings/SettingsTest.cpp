#include "Settings.h"

#include <gtest/gtest.h>

namespace tunedex {
namespace {

TEST(Settings, ANewRecordIsEmptyZeroAndFalse) {
    const Settings fresh;
    for (const std::string* text :
         {&fresh.Directory, &fresh.OutputFile, &fresh.WindowTitle, &fresh.PageTitle, &fresh.PageFooter,
          &fresh.DocumentType, &fresh.LinkPrefix, &fresh.ActiveColumns, &fresh.InactiveColumns}) {
        EXPECT_EQ(*text, "");
    }
    for (const bool flag : {fresh.Recurse, fresh.ErrorWarnings, fresh.ErrorLog, fresh.ConfirmQuit,
                            fresh.DoLinks, fresh.MoveTheArtists, fresh.FontCSS, fresh.FontHTML, fresh.AltRows,
                            fresh.ColourCSS, fresh.ColourHTML, fresh.GroupByAlbum, fresh.Modern}) {
        EXPECT_FALSE(flag);
    }
    for (const int number :
         {fresh.Spanning, fresh.SizeType, fresh.SortOrder, fresh.LinkType, fresh.Merge, fresh.TableWidthUnit,
          fresh.TableWidth, fresh.TablePadding, fresh.TableBorder, fresh.TableSpacing}) {
        EXPECT_EQ(number, 0);
    }
    for (const FontSetting& font : fresh.Font) {
        EXPECT_EQ(font, (FontSetting{"", "", false, false}));
    }
    for (const std::string& colour : fresh.Colour) {
        EXPECT_EQ(colour, "");
    }
}

} // namespace
} // namespace tunedex
