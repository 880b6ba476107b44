// The page files of an HTML listing: their paths, their tracks and the links between them. Pages and tracks
// count from 1.
#pragma once

#include "Path.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace tunedex {

class PageFiles {
  public:
    struct TrackRange {
        std::size_t first;
        std::size_t last; // first - 1 without tracks
    };

    // Splits the tracks into pages of `spanning`; 0 or less puts all on one page. `outputFile` must have an
    // extension.
    PageFiles(std::string outputFile, std::int16_t spanning, std::size_t trackCount);

    std::int32_t Count() const { return count_; } // at least 1

    // The output file if it is the only page, else a numbered file, such as list.001.htm. The number has at
    // least three digits.
    std::string PathOf(std::int32_t page) const;

    // The target of a link from one page to another: its file name without the folder.
    std::string LinkTo(std::int32_t page, PathStyle style) const;

    TrackRange TracksOf(std::int32_t page) const;

  private:
    std::string outputFile_;
    std::size_t trackCount_;
    std::size_t perPage_;
    std::int32_t count_;
};

} // namespace tunedex
