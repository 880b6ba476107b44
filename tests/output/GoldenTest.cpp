// Compares whole pages with the files in tests/output/golden. After an intended change of pages, run
// tools/regenerate-goldens and review its diff before the commit.
#include "ListingFixture.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace tunedex {
namespace {

constexpr const char* kGoldenFolder = TUNEDEX_SOURCE_DIR "/tests/output/golden/";

class GoldenTest : public ListingTest {
  protected:
    GoldenTest() {
        Use(SevenTracks());
        settings.OutputFile = folder / "list.htm";
    }

    // Compares the written files `pages` with their goldens, in whose names `name` replaces "list".
    void ExpectGolden(const std::string& name, const std::vector<std::string>& pages = {"list.htm"}) {
        ASSERT_FALSE(Write(kHtmlOutput));
        for (const std::string& page : pages) {
            const std::string golden = kGoldenFolder + name + page.substr(4);
            const std::string written = Written(page);
            if (std::getenv("TUNEDEX_REGENERATE_GOLDENS") != nullptr) {
                std::ofstream(golden, std::ios::binary) << written;
                continue;
            }
            const std::string expected = test::ReadBytes(golden);
            const auto differ =
                std::mismatch(written.begin(), written.end(), expected.begin(), expected.end());
            const auto line = std::count(written.begin(), differ.first, '\n') + 1;
            EXPECT_TRUE(written == expected)
                << golden << " differs from line " << line << " on. The page written:\n"
                << written;
        }
    }
};

TEST_F(GoldenTest, DefaultSettings) {
    ExpectGolden("default");
}

TEST_F(GoldenTest, XhtmlWithLinksAndFontTags) {
    settings.DocumentType = "XHTML";
    settings.DoLinks = true;
    settings.LinkType = 2;
    settings.LinkPrefix = "";
    settings.FontHTML = settings.ColourHTML = true;
    settings.ColourCSS = false;
    settings.Font[2].italic = true;
    settings.PageTitle = "Music of %D%L%C files, %S, %P";
    ExpectGolden("xhtml-links-fonts");
}

TEST_F(GoldenTest, SpanningPages) {
    settings.Spanning = 3;
    ExpectGolden("spanning", {"list.001.htm", "list.002.htm", "list.003.htm"});
}

TEST_F(GoldenTest, AllFifteenColumns) {
    settings.ActiveColumns =
        "Number|Artist|Album|Title|Year|Genre|MPEG Type|Mode|Bitrate|Frequency|Duration|File "
        "Size|Filename|Folder Path|Full Path";
    settings.Merge = 0;
    settings.SizeType = 1;
    ExpectGolden("all-columns");
}

TEST_F(GoldenTest, ArtistAndTitleMerged) {
    settings.Merge = 1;
    ExpectGolden("merge-artist-title");
}

TEST_F(GoldenTest, ArtistAlbumAndTitleMerged) {
    settings.Merge = 2;
    settings.ActiveColumns = "Number|Artist|Title|Album|Year";
    ExpectGolden("merge-artist-album-title");
}

TEST_F(GoldenTest, AlternateRowsOff) {
    settings.AltRows = false;
    settings.ColourCSS = false;
    ExpectGolden("no-alternate-rows");
}

} // namespace
} // namespace tunedex
