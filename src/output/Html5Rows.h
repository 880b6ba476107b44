// The table rows of HTML5 pages and of their search index.
#pragma once

#include "Html5Bodies.h"
#include "Html5Columns.h"
#include "Html5Text.h"
#include "OutputList.h"
#include "PageBuffer.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tunedex {

// The row of a heading that spans `span` columns.
void PutHtml5Heading(PageBuffer& page, const Html5Heading& heading, std::size_t span);

class Html5Rows {
  public:
    // Both must outlive this.
    Html5Rows(const Listing& listing, const std::vector<Html5Column>& columns)
        : listing_(listing), columns_(columns) {}

    // A row of a page. End tags are left out where the standard makes them optional.
    void PutTrack(PageBuffer& page, std::size_t position) const;

    // The texts of a track as an array of JSON; of a link, its target.
    void PutIndexed(PageBuffer& index, std::size_t position) const;

  private:
    void PutCell(PageBuffer& page, ColumnKey key, std::size_t position) const;
    std::string LinkOf(std::size_t position) const;

    const Listing& listing_;
    const std::vector<Html5Column>& columns_;
};

} // namespace tunedex
