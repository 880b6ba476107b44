// Shared by the fuzz targets. A target is a function of bytes that aborts if a property does not hold.
// Fuzz.cpp runs one of them under libFuzzer, Replay.cpp any of them on kept inputs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tunedex::fuzz {

using Bytes = std::span<const std::uint8_t>;

struct Target {
    std::string_view name;
    void (*run)(Bytes bytes);
};

// All targets. Each target's file describes its input.
std::span<const Target> Targets();
// The target of that name; aborts if there is none.
const Target& FindTarget(std::string_view name);

// Aborts with a message unless `holds`.
void Require(bool holds, const char* what);
void RequireEqual(std::string_view value, std::string_view expected, const char* what);

inline std::string TextOf(Bytes bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

inline Bytes BytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

// Consumes a target's input from the front. Reads past the end give 0 or an empty text.
class Input {
  public:
    explicit Input(Bytes bytes) : rest_(bytes) {}

    bool Empty() const { return rest_.empty(); }
    std::uint8_t Byte();
    // The bytes before the next `end`, which is consumed, or all that are left.
    std::string Until(std::uint8_t end);
    std::string Rest();

  private:
    Bytes rest_;
};

// A temporary folder of this process, emptied at each call and removed at exit.
const std::string& EmptyFolder();

} // namespace tunedex::fuzz
