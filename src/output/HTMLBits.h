// The HTML fragments that pages are made of. Each Write function appends to `page`, with CR LF line ends.
#pragma once

#include "Escaper.h"
#include "OutputList.h"
#include "PageBuffer.h"
#include "PageFiles.h"
#include "PagePolicy.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// n TABs.
std::string Indent(int n);

// The line break of the document type.
std::string_view LineBreak(const Settings& settings);

// The opening font tag; empty unless FontHTML or ColourHTML is set. Raises error 9 for an index out of range.
std::string FontOpen(const Settings& settings, std::size_t fontIndex, std::size_t colourIndex);
std::string FontClose(const Settings& settings);
// The tags for bold and italic; empty unless FontHTML is set.
std::string StrengthOpen(const Settings& settings, std::size_t fontIndex);
std::string StrengthClose(const Settings& settings, std::size_t fontIndex);

// The head of a page up to "<title>", and from "</title>" to the body tag with the style block, if any.
void WriteHeadStart(std::string& page, const Settings& settings);
void WriteHeadRest(std::string& page, const Settings& settings, std::string_view styleBlock);

// Page numbers count from 1.
void WriteNavigation(std::string& page, std::int32_t number, const PageFiles& files, PathStyle style,
                     const PagePolicy& policy = kClassicPages);
void WritePageHeading(std::string& page, const Settings& settings, std::int32_t number, std::int32_t count);
void WriteTableHead(std::string& page, const Settings& settings, const std::vector<Column>& columns);
void WriteTableFoot(std::string& page, const Settings& settings, std::size_t columnCount);

// The end of a page: footer, home page, closing tags.
void WriteEnd(std::string& page, const Settings& settings);

// Writes table rows. The markup around the cells is built once per listing.
class TrackRowWriter {
  public:
    TrackRowWriter(const Listing& listing, const PagePolicy& policy);

    // `alternate` selects the alternate colours; `position` counts from 1.
    void WriteTrackRow(PageBuffer& page, bool alternate, std::size_t position) const;

  private:
    // The markup of a row: pieces[i] precedes the text of cell i, the last piece follows the last cell.
    struct RowFrame {
        std::vector<std::string> pieces;
        std::string linkClose; // from the end of the link target to the end of the row; empty without links
    };

    RowFrame MakeFrame(bool alternate) const;
    void PutCell(PageBuffer& page, ColumnKey key, std::size_t position) const;

    const Listing& listing_;
    const PagePolicy& policy_;
    const Escaper escaper_;
    std::array<RowFrame, 2> frames_; // normal, alternate
};

// The path of a link to a track in the form of `LinkType`, and the whole link: `LinkPrefix` and that path.
// Not escaped.
std::string LinkPath(const Settings& settings, const TrackRow& track, PathStyle style);
std::string LinkTarget(const Settings& settings, const TrackRow& track, PathStyle style);

} // namespace tunedex
