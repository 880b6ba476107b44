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
                            fresh.ColourCSS, fresh.ColourHTML}) {
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

// A record whose members differ from the defaults, to detect any that SetDefaults() leaves out.
Settings Unlike() {
    Settings settings;
    for (std::string* text : {&settings.Directory, &settings.OutputFile, &settings.WindowTitle,
                              &settings.PageTitle, &settings.PageFooter, &settings.DocumentType,
                              &settings.LinkPrefix, &settings.ActiveColumns, &settings.InactiveColumns}) {
        *text = "other";
    }
    settings.ErrorLog = settings.DoLinks = settings.FontHTML = settings.ColourHTML = true;
    settings.LinkType = settings.TableSpacing = 7;
    settings.Font.fill({"other", "7", false, true});
    settings.Colour.fill("123456");
    return settings;
}

TEST(Settings, TheDefaultsReplaceEveryMember) {
    Settings settings = Unlike();
    settings.SetDefaults();

    EXPECT_EQ(settings.Directory, "");
    EXPECT_EQ(settings.OutputFile, "");
    EXPECT_EQ(settings.WindowTitle, "MP3 List (%D)");
    EXPECT_EQ(settings.PageTitle, "MP3 Listing (%C files)");
    EXPECT_EQ(settings.PageFooter, "Created on %D at %T");
    EXPECT_TRUE(settings.Recurse);
    EXPECT_EQ(settings.Spanning, 100);
    EXPECT_EQ(settings.SizeType, 2);
    EXPECT_EQ(settings.SortOrder, 1);
    EXPECT_TRUE(settings.ErrorWarnings);
    EXPECT_FALSE(settings.ErrorLog);
    EXPECT_TRUE(settings.ConfirmQuit);
    EXPECT_EQ(settings.DocumentType, "HTML");
    EXPECT_FALSE(settings.DoLinks);
    EXPECT_EQ(settings.LinkType, 0);
    EXPECT_EQ(settings.LinkPrefix, "file:///");
    EXPECT_EQ(settings.ActiveColumns, "Number|Artist|Album|Title|Duration");
    EXPECT_EQ(settings.InactiveColumns,
              "Bitrate|File Size|Frequency|Genre|Mode|MPEG Type|Year|Filename|Folder Path|Full Path");
    EXPECT_EQ(settings.Merge, 2);
    EXPECT_TRUE(settings.MoveTheArtists);
    EXPECT_EQ(settings.Font[0], (FontSetting{"Times New Roman, serif", "3", true, false}));
    EXPECT_EQ(settings.Font[1], (FontSetting{"Tahoma, Arial, sans-serif", "2", true, false}));
    EXPECT_EQ(settings.Font[2], (FontSetting{"Tahoma, Arial, sans-serif", "1", false, false}));
    EXPECT_TRUE(settings.FontCSS);
    EXPECT_FALSE(settings.FontHTML);
    EXPECT_EQ(settings.Colour,
              (std::array<std::string, 10>{"000000", "FFFFFF", "FFFF00", "000066", "000000", "CECECE",
                                           "000000", "DEDEDE", "0000FF", "000000"}));
    EXPECT_TRUE(settings.AltRows);
    EXPECT_TRUE(settings.ColourCSS);
    EXPECT_FALSE(settings.ColourHTML);
    EXPECT_EQ(settings.TableWidthUnit, 1);
    EXPECT_EQ(settings.TableWidth, 99);
    EXPECT_EQ(settings.TablePadding, 2);
    EXPECT_EQ(settings.TableBorder, 1);
    EXPECT_EQ(settings.TableSpacing, 0);
}

} // namespace
} // namespace tunedex
