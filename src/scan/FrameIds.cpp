#include "FrameIds.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tunedex {

namespace {

struct KnownFrame {
    std::string_view longId;  // ID3v2.3 and 2.4
    std::string_view shortId; // ID3v2.2; empty where it has no such frame
    FrameUse use;
};

constexpr std::array kKnownFrames = {
    KnownFrame{"TIT2", "TT2", {FrameContent::Text, &TrackInfo::Title}},
    KnownFrame{"TPE1", "TP1", {FrameContent::Text, &TrackInfo::Artist}},
    KnownFrame{"TALB", "TAL", {FrameContent::Text, &TrackInfo::Album}},
    KnownFrame{"TYER", "TYE", {FrameContent::Text, &TrackInfo::Year}},
    KnownFrame{"TCON", "TCO", {FrameContent::Genre, &TrackInfo::Genre}},
    KnownFrame{"TRCK", "TRK", {FrameContent::Text, &TrackInfo::Track}},
    KnownFrame{"TPOS", "TPA", {FrameContent::Text, &TrackInfo::Disc}},
    KnownFrame{"TPE2", "TP2", {FrameContent::Text, &TrackInfo::AlbumArtist}},
    KnownFrame{"TCOM", "TCM", {FrameContent::Text, &TrackInfo::Composer}},
    KnownFrame{"COMM", "COM", {FrameContent::Comment, &TrackInfo::Comment}},
    KnownFrame{"TDRC", "", {FrameContent::Date, &TrackInfo::Year, 0}},
    KnownFrame{"TDRL", "", {FrameContent::Date, &TrackInfo::Year, 1}},
    KnownFrame{"TDOR", "", {FrameContent::Date, &TrackInfo::Year, 2}},
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
    const std::string_view text = TextOfId(id);
    const auto* const found =
        std::find_if(kKnownFrames.begin(), kKnownFrames.end(),
                     [text](const auto& frame) { return frame.longId == text || frame.shortId == text; });
    return found == kKnownFrames.end() ? FrameUse() : found->use;
}

bool IsFrameId(std::span<const std::uint8_t, 4> id) {
    const std::string_view text = TextOfId(id);
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9'); });
}

} // namespace tunedex
