// The columns of an HTML5 page: their widths, which the writer chooses so that nothing moves while a browser
// draws a long table piece by piece.
#pragma once

#include "OutputList.h"

#include <string>
#include <vector>

namespace tunedex {

struct Html5Column {
    std::string header;
    ColumnKey key = ColumnKey::Unknown;
    bool isLink = false;
    bool right = false;    // header and cells right-aligned
    bool flexible = false; // takes a share of the width that is left, in proportion to `width`
    int width = 0;         // characters
    int headerWidth = 0;   // characters of the cells' font; a flexible column has this at least
    int leastWidth = 0;    // below which it should fold away
    int importance = 0;    // the least important column folds away first
};

// The columns of a listing and, if it has links, the one for them. Widths are those of a sample of the
// tracks.
std::vector<Html5Column> MeasureHtml5Columns(const Listing& listing);

} // namespace tunedex
