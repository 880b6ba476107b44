// A text in a store, shared by all rows that show it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace tunedex {

// Copying it copies a pointer. Valid as long as the store.
class SharedText {
  public:
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
    operator std::string_view() const {
        return View();
    } // NOLINT(google-explicit-constructor): used as a text
    bool Empty() const { return View().empty(); }
    // Equal for the same stored text. Texts that were shared in one store are equal if and only if this is.
    const void* Identity() const { return record_; }

  private:
    friend class LongText;
    friend class TextStore;

    // In place of the length of a long text; its length, 64 bits, precedes the mark.
    static constexpr std::uint32_t kLongMark = 0xFFFFFFFFU;

    explicit SharedText(const char* record) : record_(record) {}

    std::string_view LongView() const {
        std::uint64_t length = 0;
        std::memcpy(&length, record_ - sizeof length, sizeof length);
        return {record_ + sizeof kLongMark, length};
    }

    const char* record_ = nullptr; // length (32 bits), then the text; null for the empty text
};

} // namespace tunedex
