// Texts as HTML5 pages and their search index hold them. Stray bytes and what the HTML standard permits in no
// document (control characters other than white space, noncharacters) become U+FFFD.
#pragma once

#include "PageBuffer.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tunedex {

enum class TextPlace {
    Element,   // the content of an element: references for & < >
    Attribute, // a value between double quotes: the same, and a reference for "
    Json       // a string of JSON (RFC 8259) between its quotes, which a script can hold too
};

// The entity table of the user has no part in it.
void PutHtml5Text(PageBuffer& page, std::string_view text, TextPlace place = TextPlace::Element);
std::string Html5Text(std::string_view text, TextPlace place = TextPlace::Element);

// Markup of the user: as it is, except for U+FFFD as above, and for meta and link elements, which become
// text. A content security policy keeps them neither from leading to another page nor from connecting to a
// host.
std::string Html5Markup(std::string_view markup);

// What PutCellText needs of a page: escapes texts for their place.
class Html5Cell {
  public:
    explicit Html5Cell(PageBuffer& page, TextPlace place = TextPlace::Element) : page_(page), place_(place) {}

    void Put(std::string_view text) { PutHtml5Text(page_, text, place_); }
    void PutNumber(std::int64_t value) { page_.PutNumber(value); }

  private:
    PageBuffer& page_;
    TextPlace place_;
};

} // namespace tunedex
