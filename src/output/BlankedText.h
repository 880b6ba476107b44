// Passes text on to a page with blanks for characters that would end its line or field.
#pragma once

#include "PageBuffer.h"

#include <cstdint>
#include <string_view>

namespace tunedex {

class BlankedText {
  public:
    // `ends` are the characters, of TAB to CR (09 to 0D). It and the page must outlive this.
    BlankedText(PageBuffer& page, std::string_view ends) : page_(page), ends_(ends) {}

    void Put(std::string_view text);
    void PutNumber(std::int64_t value) { page_.PutNumber(value); }

  private:
    PageBuffer& page_;
    std::string_view ends_;
};

} // namespace tunedex
