// A text that belongs to a store and is shared by every row that shows it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tunedex {

// Copying it copies a pointer; valid as long as what stores the text. It is padded: at least kPadding bytes
// behind it can be read, whatever they hold, and so behind each part of it.
class SharedText {
  public:
    static constexpr std::size_t kPadding = 16;

    SharedText() = default;
    std::string_view View() const {
        if (record_ == nullptr) {
            return {};
        }
        std::uint32_t length = 0;
        std::memcpy(&length, record_, sizeof length);
        if (length == kLongMark) [[unlikely]] {
            return LongView();
        }
        return {record_ + sizeof length, length};
    }
    operator std::string_view() const { return View(); } // NOLINT(google-explicit-constructor): it is a text
    bool Empty() const { return View().empty(); }
    // The same for the same stored text, which for two shared texts means: equal.
    const void* Identity() const { return record_; }

  private:
    friend class LongText;
    friend class TextStore;

    // In place of the length: a length of 64 bits precedes it.
    static constexpr std::uint32_t kLongMark = 0xFFFFFFFFU;

    explicit SharedText(const char* record) : record_(record) {}

    std::string_view LongView() const {
        std::uint64_t length = 0;
        std::memcpy(&length, record_ - sizeof length, sizeof length);
        return {record_ + sizeof kLongMark, length};
    }

    const char* record_ = nullptr; // four bytes of length, then the text; none for the empty text
};

} // namespace tunedex
