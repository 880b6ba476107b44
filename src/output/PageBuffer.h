// The text of a page on its way to the file: put together at speed from many short pieces. With a sink its
// memory is bounded, however long the page and each text on it.
#pragma once

#include "SharedText.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>

namespace tunedex {

class PageBuffer {
  public:
    // So many bytes are moved in one step, and so many must be readable behind a padded text, whatever they
    // hold: copying in whole steps is several times as fast as to the byte.
    static constexpr std::size_t kStep = SharedText::kPadding;

    // Takes the text of a full buffer. Each call gets whole characters, where each text that is put holds
    // them.
    using Sink = std::function<void(std::string_view)>;

    // From now on a buffer of `pieceBytes` bytes is handed to `sink` instead of growing. What the sink raises
    // leaves the call that filled the buffer.
    void SetSink(std::size_t pieceBytes, Sink sink) {
        pieceBytes_ = pieceBytes;
        sink_ = std::move(sink);
    }
    // Hands what is in the buffer to the sink, which must be set.
    void HandOver();

    // Appends any text.
    void Put(std::string_view text) {
        if (capacity_ - used_ < text.size()) {
            PutSlowly(text);
            return;
        }
        std::copy(text.begin(), text.end(), End());
        Advance(text.size());
    }
    // Appends a padded text.
    void PutPadded(std::string_view text) {
        if (capacity_ - used_ < text.size()) {
            PutSlowly(text);
            return;
        }
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

    // For callers that write directly: reserve `count + kStep` bytes, write at End(), then Advance(). `count`
    // is small: with a sink, reserving the bytes of a whole text would take its memory a second time.
    void MakeRoom(std::size_t count) {
        if (capacity_ - used_ < count) {
            Grow(count);
        }
    }
    char* End() { return bytes_.get() + used_; }
    void Advance(std::size_t count) { used_ += count; }

    std::string_view View() const { return {bytes_.get(), used_}; }
    std::size_t Size() const { return used_; }
    // Drops what was appended beyond the first `size` bytes. With a sink only the latest text is sure to be
    // in the buffer still.
    void CutTo(std::size_t size) { used_ = size; }
    // Keeps the memory.
    void Clear() { used_ = 0; }

  private:
    void PutSlowly(std::string_view text);
    void Grow(std::size_t needed);

    Sink sink_;
    std::size_t pieceBytes_ = 0;
    std::unique_ptr<char[]> bytes_; // NOLINT(modernize-avoid-c-arrays): not zeroed
    std::size_t capacity_ = 0;      // one step less than is allocated
    std::size_t used_ = 0;
};

} // namespace tunedex
