// Reference: the entity table, loaded line by line and applied slot by slot.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex::plain {

struct EntitySlot {
    std::int16_t code = 0;
    std::string text;
};

std::vector<EntitySlot> LoadEntities(const std::vector<std::string>& lines);

// Applies every slot but the last, in order, each to the result of the previous one. Sets `tooLong` and
// returns an empty text if the text exceeds `longest` bytes on the way.
struct Escaped {
    std::string text;
    bool tooLong = false;
};
Escaped Escape(const std::vector<EntitySlot>& slots, std::string_view text, std::size_t longest);

} // namespace tunedex::plain
