// The entity table, loaded line by line and applied slot by slot.
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

// Every slot but the last, in order, each over the result of the one before. Gives up with an empty result
// when the text grows beyond `longest` bytes on the way, and says so.
struct Escaped {
    std::string text;
    bool tooLong = false;
};
Escaped Escape(const std::vector<EntitySlot>& slots, std::string_view text, std::size_t longest);

} // namespace tunedex::plain
