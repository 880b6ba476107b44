#include "FrameHeader.h"

#include <array>

namespace tunedex {

namespace {

using Bitrates = std::array<std::int16_t, 15>;
constexpr Bitrates kVersion1Layer1 = {0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448};
constexpr Bitrates kVersion1Layer2 = {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384};
constexpr Bitrates kVersion1Layer3 = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
constexpr Bitrates kVersion2Layer1 = {0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256};
constexpr Bitrates kVersion2Others = {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160};

const Bitrates& BitratesOf(MpegVersion version, MpegLayer layer) {
    if (version == MpegVersion::V1) {
        return layer == MpegLayer::I    ? kVersion1Layer1
               : layer == MpegLayer::II ? kVersion1Layer2
                                        : kVersion1Layer3;
    }
    return layer == MpegLayer::I ? kVersion2Layer1 : kVersion2Others;
}

constexpr std::array<std::array<std::int32_t, 3>, 3> kFrequenciesOf = {
    {{44100, 48000, 32000}, {22050, 24000, 16000}, {11025, 12000, 8000}}};

} // namespace

std::int32_t FrameHead::Samples() const {
    if (layer == MpegLayer::I) {
        return 384;
    }
    return layer == MpegLayer::III && version != MpegVersion::V1 ? 576 : 1152;
}

std::size_t FrameHead::Length() const {
    if (bitrate == 0) {
        return 0;
    }
    // A slot is a byte, in layer I four; the padding is one slot.
    const std::int32_t slotBytes = layer == MpegLayer::I ? 4 : 1;
    const std::int32_t slots = Samples() / 8 / slotBytes * bitrate * 1000 / frequency + (padded ? 1 : 0);
    return static_cast<std::size_t>(slots) * static_cast<std::size_t>(slotBytes);
}

bool FrameHead::Matches(const FrameHead& other) const {
    return version == other.version && layer == other.layer && frequency == other.frequency &&
           (bitrate == 0) == (other.bitrate == 0);
}

std::optional<FrameHead> ParseFrameHead(std::span<const std::uint8_t> bytes) {
    // AAAAAAAA AAABBCCD EEEEFFGH IIJJKLMM: sync A, version B, layer C, no checksum D, bitrate E, frequency F,
    // padding G, mode I.
    if (bytes.size() < kFrameHeadBytes || bytes[0] != 0xFF || bytes[1] < 0xE0) {
        return std::nullopt;
    }
    const unsigned version = (bytes[1] >> 3U) & 3U;
    const unsigned layer = (bytes[1] >> 1U) & 3U;
    const unsigned bitrate = bytes[2] >> 4U;
    const unsigned frequency = (bytes[2] >> 2U) & 3U;
    if (version == 1 || layer == 0 || bitrate == 15 || frequency == 3) {
        return std::nullopt;
    }
    FrameHead head;
    head.version = version == 3 ? MpegVersion::V1 : version == 2 ? MpegVersion::V2 : MpegVersion::V25;
    head.layer = layer == 3 ? MpegLayer::I : layer == 2 ? MpegLayer::II : MpegLayer::III;
    head.mode = bytes[3] >> 6U;
    head.padded = (bytes[2] & 2U) != 0;
    head.checked = (bytes[1] & 1U) == 0;
    head.frequency = kFrequenciesOf.at(static_cast<std::size_t>(head.version)).at(frequency);
    head.bitrate = BitratesOf(head.version, head.layer).at(bitrate);
    return head;
}

} // namespace tunedex
