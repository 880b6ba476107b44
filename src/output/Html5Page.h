// The parts of an HTML5 page around its table rows.
#pragma once

#include "Html5Columns.h"
#include "OutputList.h"
#include "PageFiles.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// What all pages of a listing share. Placeholders are expanded before it is made.
class Html5Page {
  public:
    Html5Page(const Listing& listing, const PageFiles& files, const std::vector<Html5Column>& columns);

    // Up to the first table body. Pages count from 1.
    std::string Start(std::int32_t number) const;
    // From the end of the table.
    std::string End(std::int32_t number) const;

    // The number of columns below a heading.
    std::size_t HeadingSpan() const { return headingSpan_; }

    // The name of the index file of a listing of several pages, beside them: list.search.js for list.htm.
    static std::string IndexPath(std::string_view outputFile);

  private:
    void WriteColumns(bool headingsNameEveryArtist);
    std::string Policy() const;
    std::string Title(std::int32_t number) const;
    std::string Navigation(std::int32_t number, std::string_view name) const;
    std::string TableStart(std::int32_t number) const;
    std::string HeaderRow() const;

    const Listing& listing_;
    const PageFiles& files_;
    const std::vector<Html5Column>& columns_;
    std::string theme_; // the style of this listing
    bool grouped_ = false;
    std::size_t headingSpan_ = 0;
};

} // namespace tunedex
