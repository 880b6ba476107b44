#include "TagBytes.h"

#include <algorithm>
#include <cstring>

namespace tunedex {

std::size_t Resynchroniser::Decode(std::span<std::uint8_t> bytes) {
    std::size_t kept = 0;
    for (const std::uint8_t byte : bytes) {
        failed_ = failed_ || (afterFF_ && byte >= 0xE0);
        if (!afterFF_ || byte != 0) {
            bytes[kept] = byte;
            ++kept;
        }
        afterFF_ = byte == 0xFF;
    }
    return kept;
}

std::size_t PlainTagBytes::Peek(std::uint64_t ahead, std::span<std::uint8_t> buffer) {
    const std::uint64_t left = ahead < Left() ? Left() - ahead : 0;
    return file_.Read(position_ + ahead, buffer.first(std::min<std::uint64_t>(buffer.size(), left)));
}

std::size_t PlainTagBytes::Read(std::span<std::uint8_t> buffer) {
    const std::size_t got = Peek(0, buffer);
    position_ += got;
    return got;
}

bool UnsynchronisedTagBytes::Load() {
    // The first piece is in the window of the file, with the tag's header.
    constexpr std::size_t kFirstPiece = 1024;
    constexpr std::size_t kLaterPiece = 65536;
    const std::size_t piece = decoded_.empty() ? kFirstPiece : kLaterPiece;
    const std::size_t count = std::min<std::uint64_t>(piece, end_ - position_);
    const std::size_t held = Held();
    std::copy(decoded_.begin() + static_cast<std::ptrdiff_t>(taken_), decoded_.end(), decoded_.begin());
    taken_ = 0;
    decoded_.resize(held + count);
    const std::span<std::uint8_t> space = std::span(decoded_).subspan(held);
    const std::size_t got = file_.Read(position_, space);
    decoded_.resize(held + resynchroniser_.Decode(space.first(got)));
    position_ = got < count ? end_ : position_ + got; // the file was truncated after it was opened
    return got > 0;
}

std::size_t UnsynchronisedTagBytes::Peek(std::uint64_t ahead, std::span<std::uint8_t> buffer) {
    while (Held() < ahead + buffer.size() && Load()) {
    }
    if (Held() <= ahead) {
        return 0;
    }
    const std::size_t count = std::min<std::uint64_t>(buffer.size(), Held() - ahead);
    std::copy_n(decoded_.begin() + static_cast<std::ptrdiff_t>(taken_ + ahead), count, buffer.begin());
    return count;
}

std::size_t UnsynchronisedTagBytes::Read(std::span<std::uint8_t> buffer) {
    std::size_t done = 0;
    while (done < buffer.size() && (Held() > 0 || Load())) {
        const std::size_t count = std::min(Held(), buffer.size() - done);
        std::copy_n(decoded_.begin() + static_cast<std::ptrdiff_t>(taken_), count,
                    buffer.begin() + static_cast<std::ptrdiff_t>(done));
        taken_ += count;
        done += count;
    }
    return done;
}

void UnsynchronisedTagBytes::Skip(std::uint64_t count) {
    while (count > 0 && (Held() > 0 || Load())) {
        const std::size_t step = std::min<std::uint64_t>(Held(), count);
        taken_ += step;
        count -= step;
    }
}

} // namespace tunedex
