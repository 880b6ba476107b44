// HTML fragments between the head and the end of a page. Each function appends to `page`, with CR LF line
// ends.
#pragma once

#include "Escaper.h"
#include "OutputList.h"
#include "PageBuffer.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// n TABs.
std::string Indent(int n);

// The opening font tag; empty unless FontHTML or ColourHTML is set. Raises error 9 for an index out of range.
std::string FontOpen(const Settings& settings, std::size_t fontIndex, std::size_t colourIndex);
std::string FontClose(const Settings& settings);
// The tags for bold and italic; empty unless FontHTML is set.
std::string StrengthOpen(const Settings& settings, std::size_t fontIndex);
std::string StrengthClose(const Settings& settings, std::size_t fontIndex);

// The page files of a listing on several pages.
struct PageFiles {
    std::string baseName;  // the path before the extension
    std::string extension; // with its full stop
    std::int32_t count = 1;

    // The path of page `page`, counted from 1: base.001.htm. The number has at least three digits.
    std::string PathOf(std::int32_t page) const;
};

void WriteNavigation(std::string& page, std::int32_t number, const PageFiles& files, PathStyle style);
void WritePageHeading(std::string& page, const Settings& settings, std::int32_t number, std::int32_t count,
                      std::string_view lineBreak);
void WriteTableHead(std::string& page, const Settings& settings, const std::vector<Column>& columns);
void WriteTableFoot(std::string& page, const Settings& settings, std::size_t columnCount);

// Plain and Normal rows use the cell colours, Alternate rows the alternate ones.
enum class RowKind { Plain = 0, Normal = 1, Alternate = 2 };

// Writes table rows. The markup around the cells is built once per listing.
class TrackRowWriter {
  public:
    explicit TrackRowWriter(const Listing& listing);

    void WriteTrackRow(PageBuffer& page, RowKind kind, std::size_t position) const;

  private:
    // The markup of a row: pieces[i] precedes the text of cell i, the last piece follows the last cell.
    struct RowFrame {
        std::vector<std::string> pieces;
        std::string linkClose; // from the end of the link target to the end of the row; empty without links
    };

    RowFrame MakeFrame(bool alternate) const;
    void PutCell(PageBuffer& page, ColumnKey key, const TrackRow& track, std::size_t position) const;

    const Listing& listing_;
    const Escaper escaper_;
    std::array<RowFrame, 2> frames_; // normal, alternate
};

// The link of a track: `LinkPrefix` and the path in the form of `LinkType`, not escaped.
std::string LinkTarget(const Settings& settings, const TrackRow& track, PathStyle style);

} // namespace tunedex
