// Escapes texts for HTML and XHTML with the user's entity table.
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
    // Bytes. A table that replaces a character by two of the same doubles with every such line: a longer
    // expansion is a mistake, not an entity.
    static constexpr std::size_t kLongestExpansion = 1U << 20U;

    // Applies the whole table to each character of Windows-1252 once; the table need not outlive this.
    explicit Escaper(const EntityTable& table);

    // Appends the text with every slot but the last applied in turn, each to the result of the one before.
    // Stray bytes are kept. Raises error 6 when the text contains a character whose expansion is longer than
    // kLongestExpansion.
    void AppendEscaped(std::string& result, std::string_view text) const;
    std::string EscapeEntities(std::string_view text) const;
    void PutEscaped(PageBuffer& page, std::string_view text) const;

  private:
    std::string_view Expansion(unsigned char byte) const;
    // Calls `put` with the escaped text, piece by piece.
    template <class Put> void Escape(std::string_view text, Put put) const;

    // By byte in Windows-1252. Each slot replaces single characters, so the result of a text is the sequence
    // of the results of its characters.
    std::vector<std::string> expansions_;
    std::array<bool, 256> changes_{};    // the character differs from its expansion
    std::array<bool, 256> tooLong_{};    // the expansion is too long to be computed
    std::array<bool, 256> staysAscii_{}; // by byte of UTF-8: a character that does not change
};

} // namespace tunedex
