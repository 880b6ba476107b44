#include "CellText.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace tunedex {
namespace {

struct PathRow {
    std::string path;
    PathStyle style;
    std::string_view name;
    std::string_view folder;
};

TEST(PutCellText, SplitsThePathOfATrack) {
    const PathRow rows[] = {
        {"C:\\Music\\a.mp3", PathStyle::Windows(), "a.mp3", "C:\\Music"},
        {"C:\\a.mp3", PathStyle::Windows(), "a.mp3", "C:"},
        {"a.mp3", PathStyle::Windows(), "a.mp3", ""},
        {"/music/b/a.mp3", PathStyle::Unix(), "a.mp3", "/music/b"},
        {"/a.mp3", PathStyle::Unix(), "a.mp3", ""},
        {"/music/a\\b.mp3", PathStyle::Unix(), "a\\b.mp3", "/music"},
    };
    const Locale locale;
    for (const PathRow& row : rows) {
        TrackTable table;
        TrackInfo track;
        track.FullPath = row.path;
        table.Append(track);
        const auto cell = [&](ColumnKey key) {
            PageBuffer text;
            PutCellText(text, key, table, 1, {0, locale, row.style});
            return std::string(text.View());
        };
        EXPECT_EQ(cell(ColumnKey::Filename), row.name);
        EXPECT_EQ(cell(ColumnKey::FolderPath), row.folder);
        EXPECT_EQ(cell(ColumnKey::FullPath), row.path);
    }
}

} // namespace
} // namespace tunedex
