#include "PageBuffer.h"

#include "Text.h"

#include <array>
#include <charconv>
#include <utility>

namespace tunedex {

void PageBuffer::SetSink(std::size_t pieceBytes, Sink sink) {
    pieceBytes_ = pieceBytes;
    sink_ = std::move(sink);
    text_.reserve(pieceBytes);
}

void PageBuffer::HandOver() {
    sink_(View());
    Clear();
}

// A text that does not fit. A long one is split, so that the buffer need not hold it whole.
void PageBuffer::PutInPieces(std::string_view text) {
    constexpr std::size_t kLongestPiece = 65536;
    while (!text.empty()) {
        const std::string_view piece = text.substr(0, WholeCharacters(text, kLongestPiece));
        if (text_.size() + piece.size() > pieceBytes_) {
            HandOver();
        }
        text_ += piece;
        text.remove_prefix(piece.size());
    }
}

void PageBuffer::PutNumber(std::int64_t value) {
    constexpr std::size_t kLongest = 20; // of INT64_MIN
    std::array<char, kLongest> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    Put({digits.data(), static_cast<std::size_t>(end - digits.data())});
}

} // namespace tunedex
