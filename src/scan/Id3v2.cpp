#include "Id3v2.h"

#include "RunTimeError.h"
#include "TagText.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace tunedex {

namespace {

constexpr std::uint64_t kHeaderBytes = 10; // of the tag, and of each frame

// Synchsafe (ID3v2.3 section 3.1): seven bits per byte. Required: the last byte counts with all eight bits,
// for writers that set its top bit. Do not 'fix'.
std::uint32_t TagSize(std::span<const std::uint8_t, 4> bytes) {
    return ((bytes[0] & 0x7FU) << 21U) + ((bytes[1] & 0x7FU) << 14U) + ((bytes[2] & 0x7FU) << 7U) + bytes[3];
}

// ID3v2.3 section 3.3: big-endian, not synchsafe. The top bit is ignored.
std::uint32_t FrameSize(std::span<const std::uint8_t, 4> bytes) {
    return ((bytes[0] & 0x7FU) << 24U) | (static_cast<std::uint32_t>(bytes[1]) << 16U) |
           (static_cast<std::uint32_t>(bytes[2]) << 8U) | bytes[3];
}

// Where frames are read to.
struct TagTarget {
    TrackInfo& track;
    bool moveTheArtists;
    LongTextPool* longTexts;    // null: long texts are set as the track's own fields
    bool otherEncoding = false; // of a frame that was read
};

using TextField = std::string TrackInfo::*;

// The field that a frame sets; null for frames that are skipped.
TextField FieldOf(std::string_view frameId) {
    if (frameId == "TIT2") {
        return &TrackInfo::Title;
    }
    if (frameId == "TPE1") {
        return &TrackInfo::Artist;
    }
    if (frameId == "TALB") {
        return &TrackInfo::Album;
    }
    if (frameId == "TYER") {
        return &TrackInfo::Year;
    }
    return frameId == "TCON" ? &TrackInfo::Genre : nullptr;
}

// Section 3.3 of ID3v2.3 and section 4 of ID3v2.4: 1 is UTF-16, 2 UTF-16BE, 3 UTF-8.
bool IsOtherEncoding(char encoding) {
    return encoding >= 1 && encoding <= 3;
}

// Reads and decodes a frame in pieces, so that memory is bounded by its text without NULs: a frame may
// declare, and a sparse file contain, a gigabyte of them.
LongText ReadLongContent(ByteSource& file, std::uint64_t offset, std::uint32_t size, TagTarget& target,
                         LongTextPool::Turn& turn) {
    constexpr std::uint32_t kPiece = 65536;
    std::string bytes;
    std::string text;
    LongText content;
    for (std::uint32_t done = 0; done < size;) {
        bytes.resize(std::min(kPiece, size - done));
        file.ReadExactly(offset + done, {reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size()});
        target.otherEncoding |= done == 0 && IsOtherEncoding(bytes.front());
        SetTagText(text, bytes);
        content.Append(text);
        turn.Reach(content.View().size());
        done += static_cast<std::uint32_t>(bytes.size());
    }
    return content;
}

void SetField(TextField field, std::string_view bytes, TagTarget& target) {
    target.track.Unset(field);
    std::string& text = target.track.*field;
    SetTagText(text, bytes);
    if (field == &TrackInfo::Title) {
        FinishTitle(text);
    } else if (field == &TrackInfo::Artist) {
        FinishArtist(text, target.moveTheArtists);
    }
}

// Sets a field from a frame read in pieces. The turn lasts until the text is shared.
void ReadLongField(ByteSource& file, std::uint64_t offset, std::uint32_t size, TextField field,
                   TagTarget& target) {
    LongTextPool::Turn turn(target.longTexts);
    LongText text = ReadLongContent(file, offset, size, target, turn);
    if (text.View().empty()) {
        SetField(field, {}, target);
        return;
    }
    if (field == &TrackInfo::Artist) {
        FinishArtist(text, target.moveTheArtists);
    }
    if (target.longTexts != nullptr && text.View().size() >= kLongTextBytes) {
        target.track.Set(field, target.longTexts->Share(std::move(text)));
    } else {
        target.track.Unset(field);
        target.track.*field = text.View();
    }
}

// Sets `field` from a frame; leaves it unchanged if the frame cannot be read.
void ReadContent(ByteSource& file, std::uint64_t offset, std::uint32_t size, TextField field,
                 TagTarget& target) {
    std::array<char, 512> bytes; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the read
    if (size > bytes.size()) {
        ReadLongField(file, offset, size, field, target);
        return;
    }
    file.ReadExactly(offset, {reinterpret_cast<std::uint8_t*>(bytes.data()), size});
    target.otherEncoding |= size > 0 && IsOtherEncoding(bytes.front());
    SetField(field, {bytes.data(), size}, target);
}

// Reads the frame at `offset`. Returns the offset of the next frame, or nothing at padding or the end of the
// file.
std::optional<std::uint64_t> ReadFrame(ByteSource& file, std::uint64_t offset, TagTarget& target) {
    // Offset/width (ID3v2.3 section 3.3): ID 0/4, size 4/4, flags 8/2, content from 10.
    std::array<std::uint8_t, 8> header{};
    if (file.Read(offset, header) < header.size()) {
        return std::nullopt;
    }
    const std::string_view frameId(reinterpret_cast<const char*>(header.data()), 4);
    if (frameId.find('\0') != std::string_view::npos) {
        return std::nullopt; // padding
    }
    const std::uint32_t size = FrameSize(std::span<const std::uint8_t>(header).subspan<4, 4>());
    const std::uint64_t content = offset + kHeaderBytes;
    if (size > 0 && (content > file.Size() || file.Size() - content < size)) {
        return std::nullopt;
    }
    if (const TextField field = FieldOf(frameId)) {
        ReadContent(file, content, size, field, target);
    }
    return content + size;
}

} // namespace

Id3v2Location DetectId3v2(ByteSource& file) {
    // Offset/width (ID3v2.3 section 3.1): "ID3" 0/3, version 3/1, revision 4/1, flags 5/1, size 6/4.
    std::array<std::uint8_t, kHeaderBytes> header{};
    try {
        file.ReadExactly(0, header);
    } catch (const RunTimeError&) {
        return {};
    }
    if (header[0] != 'I' || header[1] != 'D' || header[2] != '3') {
        return {};
    }
    const std::span<const std::uint8_t> bytes(header);
    constexpr unsigned kUnsynchronised = 0x80;
    const bool otherLayout = header[3] == 2 || header[3] == 4 || (header[5] & kUnsynchronised) != 0;
    return {true, kHeaderBytes + TagSize(bytes.subspan<6, 4>()), otherLayout};
}

bool ReadId3v2(ByteSource& file, const Id3v2Location& location, bool moveTheArtists, TrackInfo& track,
               LongTextPool* longTexts) {
    TagTarget target{track, moveTheArtists, longTexts};
    try {
        // Required: a tag of size 0 still reads one frame. Do not 'fix'.
        std::optional<std::uint64_t> offset = kHeaderBytes;
        do {
            offset = ReadFrame(file, *offset, target);
        } while (offset && *offset + 1 < location.searchPosition);
    } catch (const RunTimeError&) { //  fields set so far are kept
    }
    return target.otherEncoding;
}

} // namespace tunedex
