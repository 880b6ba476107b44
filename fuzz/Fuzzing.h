// What every fuzz target is made of: a function of bytes that ends the program when something is not as it
// should be. Fuzz.cpp runs one of them under libFuzzer, Replay.cpp all of them over kept files.
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

// All targets; what one of them expects of its bytes is told in its file.
std::span<const Target> Targets();
// The target of that name; ends the program where there is none.
const Target& FindTarget(std::string_view name);

// Ends the program with a message unless `holds`.
void Require(bool holds, const char* what);
void RequireEqual(std::string_view value, std::string_view expected, const char* what);

inline std::string TextOf(Bytes bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

inline Bytes BytesOf(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

// Takes a target's input apart. What is no longer there is 0, or empty.
class Input {
  public:
    explicit Input(Bytes bytes) : rest_(bytes) {}

    bool Empty() const { return rest_.empty(); }
    std::uint8_t Byte();
    // The bytes up to `end`, or up to the end of all.
    std::string Until(std::uint8_t end);
    std::string Rest();

  private:
    Bytes rest_;
};

// A folder of the process's own below the temporary folder, empty at each call and gone with the process.
const std::string& EmptyFolder();

} // namespace tunedex::fuzz
