#include "FrameIds.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tunedex {

namespace {

// An ID as a number, so that it compares in one step.
constexpr std::uint32_t CodeOf(char a, char b, char c, char d) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(a)) << 24U |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b)) << 16U |
           static_cast<std::uint32_t>(static_cast<unsigned char>(c)) << 8U | static_cast<unsigned char>(d);
}

struct KnownFrame {
    std::uint32_t longCode;  // of the ID in ID3v2.3 and 2.4
    std::uint32_t shortCode; // of the ID in ID3v2.2 and a NUL
    FrameUse use;
};

constexpr KnownFrame Known(const char (&longId)[5], const char (&shortId)[4], FrameUse use) {
    return {CodeOf(longId[0], longId[1], longId[2], longId[3]),
            CodeOf(shortId[0], shortId[1], shortId[2], '\0'), use};
}

// ID3v2.2 has no dates.
constexpr const char kNone[4] = {};

constexpr std::array kKnownFrames = {
    Known("TIT2", "TT2", {FrameContent::Text, &TrackInfo::Title}),
    Known("TPE1", "TP1", {FrameContent::Text, &TrackInfo::Artist}),
    Known("TALB", "TAL", {FrameContent::Text, &TrackInfo::Album}),
    Known("TYER", "TYE", {FrameContent::Text, &TrackInfo::Year}),
    Known("TCON", "TCO", {FrameContent::Genre, &TrackInfo::Genre}),
    Known("TRCK", "TRK", {FrameContent::Text, &TrackInfo::Track}),
    Known("TPOS", "TPA", {FrameContent::Text, &TrackInfo::Disc}),
    Known("TPE2", "TP2", {FrameContent::Text, &TrackInfo::AlbumArtist}),
    Known("TCOM", "TCM", {FrameContent::Text, &TrackInfo::Composer}),
    Known("COMM", "COM", {FrameContent::Comment, &TrackInfo::Comment}),
    Known("TDRC", kNone, {FrameContent::Date, &TrackInfo::Year, 0}),
    Known("TDRL", kNone, {FrameContent::Date, &TrackInfo::Year, 1}),
    Known("TDOR", kNone, {FrameContent::Date, &TrackInfo::Year, 2}),
};

// A frame of version 2.2 in a tag of 2.3, as some writers leave it, has a fourth byte that is no letter.
std::string_view TextOfId(std::span<const std::uint8_t, 4> id) {
    const std::string_view text(reinterpret_cast<const char*>(id.data()), id.size());
    return text.back() == '\0' || text.back() == ' ' ? text.substr(0, 3) : text;
}

} // namespace

FrameUse UseOfFrame(std::span<const std::uint8_t, 4> id) {
    if (id[0] != 'T' && id[0] != 'C') {
        return {};
    }
    const char last = id[3] == ' ' ? '\0' : static_cast<char>(id[3]);
    const std::uint32_t code =
        CodeOf(static_cast<char>(id[0]), static_cast<char>(id[1]), static_cast<char>(id[2]), last);
    const auto* const found =
        std::find_if(kKnownFrames.begin(), kKnownFrames.end(),
                     [code](const auto& frame) { return frame.longCode == code || frame.shortCode == code; });
    return found == kKnownFrames.end() ? FrameUse() : found->use;
}

bool IsFrameId(std::span<const std::uint8_t, 4> id) {
    const std::string_view text = TextOfId(id);
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); });
}

} // namespace tunedex
