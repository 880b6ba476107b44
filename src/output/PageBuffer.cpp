#include "PageBuffer.h"

#include "Text.h"

namespace tunedex {

void PageBuffer::HandOver() {
    sink_(View());
    Clear();
}

// A text that does not fit. A long one goes in piece by piece, so that the buffer need not hold it whole.
void PageBuffer::PutSlowly(std::string_view text) {
    constexpr std::size_t kLongestPiece = 65536;
    while (!text.empty()) {
        const std::string_view piece = text.substr(0, WholeCharacters(text, kLongestPiece));
        MakeRoom(piece.size());
        std::copy(piece.begin(), piece.end(), End());
        Advance(piece.size());
        text.remove_prefix(piece.size());
    }
}

void PageBuffer::Grow(std::size_t needed) {
    if (sink_ && used_ + needed > pieceBytes_) {
        HandOver();
    }
    if (capacity_ - used_ >= needed) {
        return;
    }
    constexpr std::size_t kLeast = 4096;
    const std::size_t most = sink_ ? std::max(pieceBytes_, needed) : SIZE_MAX;
    const std::size_t capacity = std::min(most, std::max({kLeast, capacity_ * 2, used_ + needed}));
    std::unique_ptr<char[]> bytes(new char[capacity + kStep]); // NOLINT(modernize-avoid-c-arrays): not zeroed
    std::copy_n(bytes_.get(), used_, bytes.get());
    bytes_ = std::move(bytes);
    capacity_ = capacity;
}

} // namespace tunedex
