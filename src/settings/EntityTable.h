// The user's table of characters and the HTML entities that replace them.
#pragma once

#include "PageBuffer.h"

#include <array>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

inline constexpr std::string_view kEntityFileName = "html_entities.lst";

class EntityTable {
  public:
    // Bytes. A table that replaces a character by two of itself doubles with every such line: a longer
    // expansion is a mistake, not an entity.
    static constexpr std::size_t kLongestExpansion = 1U << 20U;

    struct Slot {
        std::int16_t code = 0; // a character of Windows-1252, 0 to 255
        std::string text;
    };

    // One empty slot: nothing is replaced.
    EntityTable();

    // Rebuilds the table from a file of lines CODE TAB TEXT; comments begin with "#". No file: nothing is
    // replaced. A line that is no entry is skipped, with a line on `faults`. Raises the error of a file that
    // cannot be read.
    void Load(const std::string& path, std::ostream& faults);
    // The same from lines already read; `name` is what faults call the file.
    void Load(const std::vector<std::string>& lines, std::string_view name, std::ostream& faults);

    // One slot more than the file has lines: entries in file order, then empty slots. Only the last is never
    // applied.
    const std::vector<Slot>& Slots() const { return slots_; }

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

    void BuildExpansions();
    std::string_view Expansion(unsigned char byte) const;
    // Calls `put` with the escaped text, piece by piece.
    template <class Put> void Escape(std::string_view text, Put put) const;
    std::size_t PlainLength(const StepBytes& bytes) const;

    std::vector<Slot> slots_;
    // What all slots together make of one character, by its byte in Windows-1252. Each slot replaces single
    // characters, so a text's result is its characters' results side by side.
    std::vector<std::string> expansions_;
    std::array<bool, 256> changes_{};    // whether the character differs from its expansion
    std::array<bool, 256> tooLong_{};    // whether its expansion is too long to be made
    std::array<bool, 256> staysAscii_{}; // by byte of UTF-8: whether it is a character that does not change
    // Each filled with one of the ASCII characters that change, controls left out: a usual table has five.
    std::array<StepBytes, 8> marks_{};
    bool manyMarks_ = false; // there are more
};

} // namespace tunedex
