#include "Html5Columns.h"

#include "Html5Style.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tunedex {

namespace {

constexpr std::size_t kSample = 1000; // tracks whose texts are measured
constexpr int kMostWidth = 60;        // of a column; longer texts continue on the next line
constexpr int kLeastFlexible = 12;    // a flexible column need not be wider
constexpr int kSortMark = 2;          // characters beside the header

struct Trait {
    ColumnKey key;
    int importance;
    bool flexible = false;
};

constexpr std::array kTraits = {
    Trait{.key = ColumnKey::Number, .importance = 40},
    Trait{.key = ColumnKey::Artist, .importance = 90, .flexible = true},
    Trait{.key = ColumnKey::Album, .importance = 75, .flexible = true},
    Trait{.key = ColumnKey::Title, .importance = 100, .flexible = true},
    Trait{.key = ColumnKey::Duration, .importance = 80},
    Trait{.key = ColumnKey::Bitrate, .importance = 28},
    Trait{.key = ColumnKey::FileSize, .importance = 30},
    Trait{.key = ColumnKey::Frequency, .importance = 14},
    Trait{.key = ColumnKey::Genre, .importance = 35, .flexible = true},
    Trait{.key = ColumnKey::Mode, .importance = 15},
    Trait{.key = ColumnKey::MpegType, .importance = 10},
    Trait{.key = ColumnKey::Year, .importance = 50},
    Trait{.key = ColumnKey::Filename, .importance = 70, .flexible = true},
    Trait{.key = ColumnKey::FolderPath, .importance = 8, .flexible = true},
    Trait{.key = ColumnKey::FullPath, .importance = 7, .flexible = true},
    Trait{.key = ColumnKey::Track, .importance = 60},
    Trait{.key = ColumnKey::Disc, .importance = 26},
    Trait{.key = ColumnKey::AlbumArtist, .importance = 45, .flexible = true},
    Trait{.key = ColumnKey::Composer, .importance = 27, .flexible = true},
    Trait{.key = ColumnKey::Comment, .importance = 20, .flexible = true},
    Trait{.key = ColumnKey::ArtistTitle, .importance = 100, .flexible = true},
    Trait{.key = ColumnKey::ArtistAlbumTitle, .importance = 100, .flexible = true},
    Trait{.key = ColumnKey::Unknown, .importance = 1, .flexible = true},
};
static_assert(std::equal(kTraits.begin(), kTraits.end(), kColumns.begin(), kColumns.end(),
                         [](const Trait& trait, const ColumnKind& kind) { return trait.key == kind.key; }));
constexpr int kLinkImportance = 65;

// Counts characters; those of East Asian scripts are two wide.
class WidthCount {
  public:
    void Put(std::string_view text) {
        for (const char c : text) {
            const auto byte = static_cast<unsigned char>(c);
            width_ += (byte & 0xC0U) != 0x80 ? 1 : 0;
            // U+3000 to U+DFFF and what lies beyond the first plane.
            width_ += byte >= 0xE3 ? 1 : 0;
        }
    }
    void PutNumber(std::int64_t value) { Put(std::to_string(value)); }
    int Width() const { return width_; }

  private:
    int width_ = 0;
};

int WidthOf(std::string_view text) {
    WidthCount count;
    count.Put(text);
    return count.Width();
}

int WidthOfCell(const Listing& listing, ColumnKey key, std::size_t position) {
    WidthCount count;
    PutCellText(count, key, listing.tracks, position, listing.Cells());
    return count.Width();
}

std::vector<int> SampledWidths(const Listing& listing, ColumnKey key) {
    const std::size_t total = listing.tracks.Count();
    const std::size_t step = total / kSample + 1;
    std::vector<int> widths;
    for (std::size_t position = 1; position <= total; position += step) {
        widths.push_back(WidthOfCell(listing, key, position));
    }
    std::sort(widths.begin(), widths.end());
    return widths;
}

// What nine of ten texts of a flexible column need, and all of another one.
int TextWidth(const Listing& listing, ColumnKey key, bool flexible) {
    if (key == ColumnKey::Number) {
        return WidthOf(std::to_string(listing.tracks.Count()));
    }
    const std::vector<int> widths = SampledWidths(listing, key);
    if (widths.empty()) {
        return 1;
    }
    return flexible ? widths[widths.size() * 9 / 10] : widths.back();
}

// In characters of the cells' font.
int HeaderWidth(const Settings& settings, std::string_view header) {
    const bool fonts = settings.FontCSS || settings.FontHTML;
    const double ratio =
        fonts ? Html5FontSize(settings.Font[kHeaderFont].size) / Html5FontSize(settings.Font[kCellFont].size)
              : 1;
    return static_cast<int>(std::ceil((WidthOf(header) + kSortMark) * ratio));
}

void SetWidth(Html5Column& column, int textWidth, int headerWidth) {
    column.headerWidth = headerWidth;
    column.width = std::clamp(std::max(textWidth, headerWidth), 1, kMostWidth);
    column.leastWidth =
        column.flexible ? std::min(column.width, std::max(kLeastFlexible, headerWidth)) : column.width;
}

Html5Column Measured(const Listing& listing, const Column& source) {
    const Trait& trait = kTraits.at(static_cast<std::size_t>(source.key));
    Html5Column column;
    column.header = HeaderText(source);
    column.key = source.key;
    column.right = KindOf(source.key).rightCells;
    column.flexible = trait.flexible;
    column.importance = trait.importance;
    SetWidth(column, TextWidth(listing, source.key, trait.flexible),
             HeaderWidth(listing.settings, column.header));
    return column;
}

Html5Column LinkColumn(const Settings& settings) {
    Html5Column column;
    column.header = "Link";
    column.isLink = true;
    column.importance = kLinkImportance;
    SetWidth(column, WidthOf(column.header), HeaderWidth(settings, column.header));
    return column;
}

} // namespace

std::vector<Html5Column> MeasureHtml5Columns(const Listing& listing) {
    std::vector<Html5Column> columns;
    for (const Column& column : listing.columns) {
        columns.push_back(Measured(listing, column));
    }
    if (listing.settings.DoLinks) {
        columns.push_back(LinkColumn(listing.settings));
    }
    return columns;
}

} // namespace tunedex
