// The user's table of characters and the HTML entities that replace them.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

inline constexpr std::string_view kEntityFileName = "html_entities.lst";

class EntityTable {
  public:
    struct Slot {
        std::int16_t code = 0; // a character of Windows-1252, 0 to 255
        std::string text;
    };

    // One empty slot: nothing is replaced.
    EntityTable() { slots_.resize(1); }

    // Replaces the table by a file's lines CODE TAB TEXT; comments begin with "#", and text after a second
    // TAB is ignored. Without a file nothing is replaced. An invalid line is skipped and reported on
    // `faults`. Raises the error of a file that cannot be read.
    void Load(const std::string& path, std::ostream& faults);
    // The same from lines already read; `name` is the file's name in reports.
    void Load(const std::vector<std::string>& lines, std::string_view name, std::ostream& faults);

    // One slot more than the file has lines: entries in file order, then empty slots. All but the last are
    // applied in order, each to the result of the previous one; an empty slot removes NUL characters.
    const std::vector<Slot>& Slots() const { return slots_; }

  private:
    std::vector<Slot> slots_;
};

} // namespace tunedex
