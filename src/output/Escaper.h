// Makes texts safe for HTML and XHTML with the user's entity table.
#pragma once

#include "EntityTable.h"
#include "PageBuffer.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

class Escaper {
  public:
    // Bytes. A table that replaces a character by two of itself doubles with every such line: a longer
    // expansion is a mistake, not an entity.
    static constexpr std::size_t kLongestExpansion = 1U << 20U;

    // Applies the whole table to each character of Windows-1252 once; the table need not outlive this.
    explicit Escaper(const EntityTable& table);

    // Appends the text with every slot but the last applied to it, one after the other over the result of the
    // one before. Stray bytes are left alone. Raises error 6 when the text holds a character that the slots
    // expand to more than kLongestExpansion bytes.
    void AppendEscaped(std::string& result, std::string_view text) const;
    std::string EscapeEntities(std::string_view text) const;
    // The same for a padded text, into a page.
    void PutEscaped(PageBuffer& page, std::string_view text) const;

  private:
    // A step's bytes looked at together.
    using StepBytes [[gnu::vector_size(PageBuffer::kStep)]] = unsigned char;

    std::string_view Expansion(unsigned char byte) const;
    // Calls `put` with the escaped text, piece by piece.
    template <class Put> void Escape(std::string_view text, Put put) const;
    std::size_t PlainLength(const StepBytes& bytes) const;

    // By byte in Windows-1252. Each slot replaces single characters, so a text's result is its characters'
    // results side by side.
    std::vector<std::string> expansions_;
    std::array<bool, 256> changes_{};    // whether the character differs from its expansion
    std::array<bool, 256> tooLong_{};    // whether its expansion is too long to be made
    std::array<bool, 256> staysAscii_{}; // by byte of UTF-8: whether it is a character that does not change
    // Each filled with one of the ASCII characters that change, controls left out: a usual table has five.
    std::array<StepBytes, 8> marks_{};
    bool manyMarks_ = false; // there are more
};

} // namespace tunedex
