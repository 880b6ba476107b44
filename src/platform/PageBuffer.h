// The text of a page on its way to the file: put together at speed from many short pieces.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

namespace tunedex {

class PageBuffer {
  public:
    // So many bytes are moved in one step, and so many must be readable behind a padded text, whatever they
    // hold: copying in whole steps is several times as fast as to the byte.
    static constexpr std::size_t kStep = 16;

    // Appends any text.
    void Put(std::string_view text) {
        MakeRoom(text.size());
        std::copy(text.begin(), text.end(), End());
        Advance(text.size());
    }
    // Appends a padded text.
    void PutPadded(std::string_view text) {
        MakeRoom(text.size());
        for (std::size_t i = 0; i < text.size(); i += kStep) {
            std::memcpy(End() + i, text.data() + i, kStep);
        }
        Advance(text.size());
    }

    // Appends a number in decimal digits.
    void PutNumber(std::int64_t value) {
        constexpr std::size_t kLongest = 20;
        MakeRoom(kLongest);
        Advance(static_cast<std::size_t>(std::to_chars(End(), End() + kLongest, value).ptr - End()));
    }

    // For who fills the buffer without us: makes room for so many bytes and one step more, tells where they
    // go, and takes note of how many went.
    void MakeRoom(std::size_t count) {
        if (capacity_ - used_ < count + kStep) {
            Grow(count + kStep);
        }
    }
    char* End() { return bytes_.get() + used_; }
    void Advance(std::size_t count) { used_ += count; }

    std::string_view View() const { return {bytes_.get(), used_}; }
    std::size_t Size() const { return used_; }
    // Takes back what was appended beyond the first `size` bytes.
    void CutTo(std::size_t size) { used_ = size; }
    // Keeps the memory.
    void Clear() { used_ = 0; }

  private:
    void Grow(std::size_t needed) {
        constexpr std::size_t kLeast = 4096;
        const std::size_t capacity = std::max({kLeast, capacity_ * 2, used_ + needed});
        std::unique_ptr<char[]> bytes(new char[capacity]); // NOLINT(modernize-avoid-c-arrays): not zeroed
        std::copy_n(bytes_.get(), used_, bytes.get());
        bytes_ = std::move(bytes);
        capacity_ = capacity;
    }

    std::unique_ptr<char[]> bytes_; // NOLINT(modernize-avoid-c-arrays): not zeroed
    std::size_t capacity_ = 0;
    std::size_t used_ = 0;
};

} // namespace tunedex
