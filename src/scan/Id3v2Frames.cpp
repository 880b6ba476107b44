#include "Id3v2Frames.h"

#include "FrameContentReader.h"
#include "FrameIds.h"
#include "TagBytes.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tunedex {

namespace {

// Flags of the tag's header (ID3v2.4 structure section 3.1).
constexpr unsigned kTagUnsynchronised = 0x80;
constexpr unsigned kTagCompressed22 = 0x40; // only in 2.2
constexpr unsigned kTagExtended = 0x40;     // from 2.3 on
constexpr unsigned kTagFooter = 0x10;       // only in 2.4

constexpr std::size_t kFrameHeaderBytes = 10;
constexpr std::size_t kFrameHeaderBytes22 = 6;

using FourBytes = std::span<const std::uint8_t, 4>;

std::uint32_t PlainSize(FourBytes bytes) {
    return (static_cast<std::uint32_t>(bytes[0]) << 24U) | (static_cast<std::uint32_t>(bytes[1]) << 16U) |
           (static_cast<std::uint32_t>(bytes[2]) << 8U) | bytes[3];
}

bool IsSynchsafe(FourBytes bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte < 0x80; });
}

// Seven bits in each byte (ID3v2.4 structure section 6.2).
std::uint32_t SynchsafeSize(FourBytes bytes) {
    return (static_cast<std::uint32_t>(bytes[0]) << 21U) | (static_cast<std::uint32_t>(bytes[1]) << 14U) |
           (static_cast<std::uint32_t>(bytes[2]) << 7U) | bytes[3];
}

struct FrameHeader {
    FrameUse use;
    std::uint64_t size = 0;  // of the content
    std::uint8_t format = 0; // the second byte of the flags; 0 in version 2.2
};

// Walks over the frames of one tag.
class TagWalk {
  public:
    TagWalk(TagBytes& bytes, const Id3v2Header& header, FrameTexts& texts)
        : bytes_(bytes), header_(header), texts_(texts) {}

    void Run() {
        SkipExtendedHeader();
        while (ReadFrame()) {
        }
    }

  private:
    std::size_t HeaderBytes() const { return header_.version == 2 ? kFrameHeaderBytes22 : kFrameHeaderBytes; }

    enum class Ahead { Nothing, End, Frame }; // the better, the larger

    // What is `ahead` of the position: a frame, or padding or the end of the tag.
    Ahead WhatIs(std::uint64_t ahead) {
        if (ahead >= bytes_.Left()) {
            return ahead == bytes_.Left() ? Ahead::End : Ahead::Nothing;
        }
        std::array<std::uint8_t, kFrameHeaderBytes> next{};
        const std::size_t got = bytes_.Peek(ahead, next);
        if (std::all_of(next.begin(), next.begin() + 4, [](std::uint8_t byte) { return byte == 0; })) {
            return Ahead::End;
        }
        return got == next.size() && IsFrameId(std::span(next).first<4>()) ? Ahead::Frame : Ahead::Nothing;
    }

    // The offset behind an extended header that begins with the four bytes `start`. Writers do not agree on
    // what its size counts.
    std::uint64_t ExtendedHeaderBytes(FourBytes start) {
        // ID3v2.4 structure section 3.2 counts the size itself, ID3v2.3 section 3.2 does not.
        const std::uint64_t size = header_.version == 4 ? SynchsafeSize(start) : PlainSize(start);
        const std::uint64_t standard = header_.version == 4 ? size : size + 4;
        const std::uint64_t other = header_.version == 4 ? size + 4 : size;
        std::uint64_t best = standard;
        Ahead found = Ahead::Nothing;
        for (const std::uint64_t bytes :
             {standard, other, std::uint64_t{10}, std::uint64_t{14}, std::uint64_t{6}}) {
            const bool visible = bytes_.SeesAll() || bytes + kFrameHeaderBytes <= TagBytes::kSmallPeek;
            const Ahead ahead = bytes >= 4 && visible ? WhatIs(bytes) : Ahead::Nothing;
            if (ahead > found) {
                best = bytes;
                found = ahead;
            }
        }
        return best;
    }

    void SkipExtendedHeader() {
        std::array<std::uint8_t, 4> start{};
        if (header_.version == 2 || (header_.flags & kTagExtended) == 0 ||
            bytes_.Peek(0, start) < start.size()) {
            return;
        }
        // Some writers set the flag and write no extended header.
        if (!IsFrameId(start)) {
            bytes_.Skip(ExtendedHeaderBytes(start));
        }
    }

    // ID3v2.3 sizes are plain numbers, those of ID3v2.4 synchsafe. Some writers have it the other way round:
    // the size that leads to a frame or to the end of the tag wins.
    std::uint64_t SizeOf(FourBytes bytes) {
        const std::uint64_t plain = PlainSize(bytes);
        if (!IsSynchsafe(bytes)) {
            return plain;
        }
        const std::uint64_t synchsafe = SynchsafeSize(bytes);
        const std::uint64_t declared = header_.version == 4 ? synchsafe : plain;
        const std::uint64_t other = header_.version == 4 ? plain : synchsafe;
        const Ahead ahead =
            declared == other || !bytes_.SeesAll() ? Ahead::Frame : WhatIs(kFrameHeaderBytes + declared);
        // What looks like padding may be the inside of a frame that is longer. A smaller size may lead to
        // capital letters inside the frame.
        if (ahead == Ahead::Frame || (ahead == Ahead::End && other < declared)) {
            return declared;
        }
        const bool fits = kFrameHeaderBytes + declared <= bytes_.Left();
        const bool otherFits = kFrameHeaderBytes + other <= bytes_.Left();
        return WhatIs(kFrameHeaderBytes + other) > ahead || (!fits && otherFits) ? other : declared;
    }

    // The header at the position; nothing at padding or the end.
    std::optional<FrameHeader> PeekHeader() {
        // Offset/width: ID 0/4, size 4/4, flags 8/2; in version 2.2, ID 0/3, size 3/3.
        std::array<std::uint8_t, kFrameHeaderBytes> bytes{};
        const std::span<std::uint8_t> wanted = std::span(bytes).first(HeaderBytes());
        if (bytes_.Peek(0, wanted) < wanted.size() || bytes[0] == 0) {
            return std::nullopt;
        }
        if (header_.version == 2) {
            const std::array<std::uint8_t, 4> id = {bytes[0], bytes[1], bytes[2], 0};
            const std::array<std::uint8_t, 4> size = {0, bytes[3], bytes[4], bytes[5]};
            return FrameHeader{UseOfFrame(id), PlainSize(size), 0};
        }
        const std::span<const std::uint8_t> header(bytes);
        return FrameHeader{UseOfFrame(header.first<4>()), SizeOf(header.subspan<4, 4>()), bytes[9]};
    }

    bool ReadFrame() {
        const auto frame = PeekHeader();
        if (!frame) {
            return false;
        }
        bytes_.Skip(HeaderBytes());
        if (frame->use.content == FrameContent::Unused) {
            const bool whole = frame->size <= bytes_.Left();
            bytes_.Skip(frame->size);
            return whole;
        }
        const bool unsynchronised = header_.version == 4 && (header_.flags & kTagUnsynchronised) != 0;
        return texts_.Read(bytes_, frame->use, FrameFormatOf(header_.version, frame->format, unsynchronised),
                           frame->size);
    }

    TagBytes& bytes_;
    const Id3v2Header& header_;
    FrameTexts& texts_;
};

void WalkFrames(TagBytes& bytes, const Id3v2Header& header, TagTexts& texts) {
    FrameTexts frames(texts);
    TagWalk(bytes, header, frames).Run();
    frames.Finish();
}

} // namespace

std::optional<Id3v2Header> ParseId3v2Header(std::span<const std::uint8_t> bytes) {
    // Offset/width: "ID3" 0/3, version 3/1, revision 4/1, flags 5/1, size 6/4.
    constexpr std::uint8_t kNoVersion = 0xFF;
    if (bytes.size() < kId3v2HeaderBytes || bytes[0] != 'I' || bytes[1] != 'D' || bytes[2] != '3' ||
        bytes[3] == kNoVersion || bytes[4] == kNoVersion) {
        return std::nullopt;
    }
    const auto size = bytes.subspan<6, 4>();
    Id3v2Header header;
    header.version = bytes[3];
    header.flags = bytes[5];
    header.bodyBytes = IsSynchsafe(size) ? SynchsafeSize(size) : PlainSize(size);
    const bool footer = header.version == 4 && (header.flags & kTagFooter) != 0;
    header.tagBytes = kId3v2HeaderBytes + header.bodyBytes + (footer ? kId3v2HeaderBytes : 0);
    return header;
}

bool IsReadable(const Id3v2Header& header) {
    return header.version == 3 || header.version == 4 ||
           (header.version == 2 && (header.flags & kTagCompressed22) == 0);
}

void ReadId3v2Frames(ByteSource& file, const Id3v2Header& header, TagTexts& texts) {
    const std::uint64_t start = std::min<std::uint64_t>(kId3v2HeaderBytes, file.Size());
    const std::uint64_t end = std::min(start + header.bodyBytes, file.Size());
    if (header.version < 4 && (header.flags & kTagUnsynchronised) != 0) {
        UnsynchronisedTagBytes bytes(file, start, end);
        WalkFrames(bytes, header, texts);
        if (!bytes.Failed()) {
            return;
        }
        texts.Clear(); // the flag is wrong
    }
    PlainTagBytes bytes(file, start, end);
    WalkFrames(bytes, header, texts);
}

} // namespace tunedex
