#include "FrameSearch.h"

#include "ByteWindow.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

namespace tunedex {

namespace {

// A frame in the free format is at most this long: 640 kbit/s at 32,000 Hz in layer III are 2880 bytes, in
// layer II as many.
constexpr std::size_t kLongestFreeFrame = 4608;

// A Xing, Info or VBRI header ends within this many bytes of its frame.
constexpr std::size_t kVbrReach = 64;

// Measuring a frame in the free format takes a search; this bounds those of a file that is no audio.
constexpr int kMostMeasured = 64;

std::uint32_t BigEndianAt(std::span<const std::uint8_t> bytes, std::size_t at) {
    return (static_cast<std::uint32_t>(bytes[at]) << 24U) |
           (static_cast<std::uint32_t>(bytes[at + 1]) << 16U) |
           (static_cast<std::uint32_t>(bytes[at + 2]) << 8U) | bytes[at + 3];
}

bool HasMark(std::span<const std::uint8_t> bytes, std::size_t at, std::string_view mark) {
    return bytes.size() >= at + mark.size() && std::memcmp(bytes.data() + at, mark.data(), mark.size()) == 0;
}

class FirstFrameSearch {
  public:
    explicit FirstFrameSearch(const AudioBytes& audio) : window_(audio.file, audio.end), end_(audio.end) {}

    std::optional<FoundFrame> Run(std::uint64_t offset) {
        while (offset < end_) {
            const auto bytes = window_.From(offset, 1);
            if (bytes.empty()) {
                break;
            }
            const void* sync = std::memchr(bytes.data(), 0xFF, bytes.size());
            const std::size_t skipped =
                sync == nullptr
                    ? bytes.size()
                    : static_cast<std::size_t>(static_cast<const std::uint8_t*>(sync) - bytes.data());
            offset += skipped;
            if (sync == nullptr) {
                continue;
            }
            const auto frame = FrameAt(offset);
            if (frame && frame->nextHead) {
                return frame;
            }
            ++offset;
        }
        return unconfirmed_;
    }

  private:
    // The frame at `offset`, with its follower if that is of the same stream.
    std::optional<FoundFrame> FrameAt(std::uint64_t offset) {
        const auto head = ParseFrameHead(window_.From(offset, kLongestFrame + kFrameHeadBytes));
        if (!head) {
            return std::nullopt;
        }
        FoundFrame frame{offset, *head, head->Length(), std::nullopt};
        if (head->bitrate == 0) {
            Measure(frame);
            return frame;
        }
        frame.nextHead = FollowerAt(frame, frame.length);
        if (!frame.nextHead && !unconfirmed_ && EndsAudio(frame)) {
            unconfirmed_ = frame;
        }
        return frame;
    }

    // Whether the audio ends before another header could follow.
    bool EndsAudio(const FoundFrame& frame) const {
        return end_ - frame.offset < frame.length + kFrameHeadBytes;
    }

    // The header `distance` behind the frame, if it is of the same stream.
    std::optional<FrameHead> FollowerAt(const FoundFrame& frame, std::size_t distance) {
        const auto bytes = window_.From(frame.offset, distance + kFrameHeadBytes);
        if (bytes.size() < distance + kFrameHeadBytes) {
            return std::nullopt;
        }
        const auto head = ParseFrameHead(bytes.subspan(distance));
        return head && head->Matches(frame.head) ? head : std::nullopt;
    }

    // Sets the length of a frame in the free format: the distance to the next one if a third follows as far
    // behind, give or take a padding slot, or the audio ends before that.
    void Measure(FoundFrame& frame) {
        const std::size_t slot = frame.head.layer == MpegLayer::I ? 4 : 1;
        if (measured_ == kMostMeasured) {
            return;
        }
        ++measured_;
        const std::size_t padding = frame.head.padded ? slot : 0;
        for (std::size_t distance = kFrameHeadBytes + padding; distance <= kLongestFreeFrame; ++distance) {
            const auto next = FollowerAt(frame, distance);
            if (next && RepeatsAt(frame, distance, distance - padding + (next->padded ? slot : 0))) {
                frame.length = distance;
                frame.nextHead = next;
                return;
            }
        }
    }

    bool RepeatsAt(const FoundFrame& frame, std::size_t first, std::size_t second) {
        return end_ - frame.offset < first + second + kFrameHeadBytes ||
               FollowerAt(frame, first + second).has_value();
    }

    ByteWindow<4096> window_;
    std::uint64_t end_;
    std::optional<FoundFrame> unconfirmed_;
    int measured_ = 0;
};

// The bytes between the header and a Xing header: side information (ISO 11172-3 section 2.4.1.7).
std::size_t SideInformationBytes(const FrameHead& head) {
    const bool mono = head.mode == 3;
    if (head.version == MpegVersion::V1) {
        return mono ? 17 : 32;
    }
    return mono ? 9 : 17;
}

// Xing and Info. Offset/width: mark 0/4, flags 4/4, number of frames 8/4 if flag 1 is set.
std::optional<VbrHeader> XingAt(std::span<const std::uint8_t> bytes, std::size_t at) {
    const bool variable = HasMark(bytes, at, "Xing");
    if (!variable && !HasMark(bytes, at, "Info")) {
        return std::nullopt;
    }
    const bool counted = bytes.size() >= at + 12 && (BigEndianAt(bytes, at + 4) & 1U) != 0;
    return VbrHeader{variable, counted ? BigEndianAt(bytes, at + 8) : 0};
}

std::optional<VbrHeader> VbrHeaderIn(std::span<const std::uint8_t> bytes, const FrameHead& head) {
    constexpr std::size_t kChecksumBytes = 2;
    constexpr std::size_t kVbriAt = kFrameHeadBytes + 32; // whatever the version and the mode
    if (head.layer != MpegLayer::III) {
        return std::nullopt;
    }
    const std::size_t at = kFrameHeadBytes + SideInformationBytes(head);
    if (const auto xing = XingAt(bytes, at)) {
        return xing;
    }
    // Encoders do not agree on whether a checksum moves the header.
    if (const auto xing = head.checked ? XingAt(bytes, at + kChecksumBytes) : std::nullopt) {
        return xing;
    }
    // VBRI. Offset/width: mark 0/4, version 4/2, delay 6/2, quality 8/2, bytes 10/4, number of frames 14/4.
    if (HasMark(bytes, kVbriAt, "VBRI") && bytes.size() >= kVbriAt + 18) {
        return VbrHeader{true, BigEndianAt(bytes, kVbriAt + 14)};
    }
    return std::nullopt;
}

// The frame at `start`, where nearly every file has its first one, if another of the stream follows.
std::optional<FoundFrame> FrameAtStart(const AudioBytes& audio, std::uint64_t start) {
    const auto head = FrameHeadAt(audio, start);
    if (!head || head->bitrate == 0) {
        return std::nullopt;
    }
    FoundFrame frame{start, *head, head->Length(), FrameHeadAt(audio, start + head->Length())};
    return frame.nextHead && frame.nextHead->Matches(*head) ? std::optional(frame) : std::nullopt;
}

} // namespace

std::optional<FrameHead> FrameHeadAt(const AudioBytes& audio, std::uint64_t offset) {
    std::array<std::uint8_t, kFrameHeadBytes> bytes{};
    return ParseFrameHead(audio.Read(offset, bytes));
}

std::optional<VbrHeader> FindVbrHeader(const AudioBytes& audio, const FoundFrame& frame) {
    std::array<std::uint8_t, kVbrReach> bytes{};
    return VbrHeaderIn(audio.Read(frame.offset, bytes), frame.head);
}

std::optional<FoundFrame> FindFirstFrame(const AudioBytes& audio, std::uint64_t start) {
    if (const auto frame = FrameAtStart(audio, start)) {
        return frame;
    }
    return FirstFrameSearch(audio).Run(start);
}

} // namespace tunedex
