#include "DefaultSettings.h"

#include "Columns.h"
#include "Themes.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace tunedex {
namespace {

TEST(DefaultSettings, AreThese) {
    const Settings settings = DefaultSettings();
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

TEST(DefaultSettings, HoldEachChoosableColumnOnce) {
    const Settings settings = DefaultSettings();
    const std::string lists = "|" + settings.ActiveColumns + "|" + settings.InactiveColumns + "|";
    std::size_t length = 1;
    for (const ColumnKind& kind : kColumns) {
        const std::string name = "|" + std::string(kind.name) + "|";
        if (IsChoosable(kind.key)) {
            EXPECT_NE(lists.find(name), std::string::npos) << name;
            length += name.size() - 1;
        }
    }
    EXPECT_EQ(lists.size(), length);
}

TEST(DefaultSettings, AreThoseOfTheShippedThemeClassic) {
    const Settings defaults = DefaultSettings();
    Settings themed = defaults;
    themed.Colour.fill("");
    themed.Font.fill({});
    std::ostringstream faults;
    LoadSettings(themed, ThemePath(TUNEDEX_SOURCE_DIR "/data/", "Classic"), "", {}, faults);
    EXPECT_EQ(themed, defaults);
}

} // namespace
} // namespace tunedex
