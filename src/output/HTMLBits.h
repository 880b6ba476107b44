// The fragments of a page between its head and its end. Each appends to the page's text; line ends are CR LF.
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

// The opening font tag for a font and a text colour, or nothing where neither fonts nor colours are done with
// tags. Raises error 9 for an index that no font or colour has.
std::string FontOpen(const Settings& settings, std::size_t fontIndex, std::size_t colourIndex);
std::string FontClose(const Settings& settings);
// The tags for bold and italic inside a font tag.
std::string StrengthOpen(const Settings& settings, std::size_t fontIndex);
std::string StrengthClose(const Settings& settings, std::size_t fontIndex);

// The files of a listing of several pages.
struct PageFiles {
    std::string baseName;  // the path before the extension
    std::string extension; // with its full stop
    std::int32_t count = 1;

    // The file of page `page`, counted from 1: base.001.htm.
    std::string PathOf(std::int32_t page) const;
};

void WriteNavigation(std::string& page, std::int32_t number, const PageFiles& files, PathStyle style);
void WritePageHeading(std::string& page, const Settings& settings, std::int32_t number, std::int32_t count,
                      std::string_view lineBreak);
void WriteTableHead(std::string& page, const Settings& settings, const std::vector<Column>& columns);
void WriteTableFoot(std::string& page, const Settings& settings, std::size_t columnCount);

// Which colours a row has: always the normal ones, or normal and alternate ones in turn.
enum class RowKind { Plain = 0, Normal = 1, Alternate = 2 };

// Writes rows: what is the same in each row of a listing is made once.
class TrackRowWriter {
  public:
    explicit TrackRowWriter(const Listing& listing);

    void WriteTrackRow(PageBuffer& page, RowKind kind, std::size_t position) const;

  private:
    // A text with the bytes behind it that a PageBuffer wants.
    class PaddedText {
      public:
        PaddedText() = default;
        explicit PaddedText(const std::string& text)
            : padded_(text + std::string(PageBuffer::kStep, '\0')), size_(text.size()) {}
        operator std::string_view() const { // NOLINT(google-explicit-constructor): it is a text
            return std::string_view(padded_).substr(0, size_);
        }

      private:
        std::string padded_;
        std::size_t size_ = 0;
    };

    // The markup of a row: pieces[i] stands before the text of cell i, the last one behind the last cell.
    struct RowFrame {
        std::vector<PaddedText> pieces;
        PaddedText linkClose; // behind the link, where there are links: the end of the row
    };

    RowFrame MakeFrame(bool alternate) const;
    void PutCell(PageBuffer& page, ColumnKey key, const TrackRow& track, std::size_t position) const;

    const Listing& listing_;
    const Escaper escaper_;
    std::array<RowFrame, 2> frames_; // normal, alternate
};

// Where a track's link leads: the prefix and the path in the form that `LinkType` asks for.
std::string LinkTarget(const Settings& settings, const TrackRow& track, PathStyle style);

} // namespace tunedex
