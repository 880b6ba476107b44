#include "Id3v2.h"

#include "Id3v1.h"
#include "RunTimeError.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace tunedex {

namespace {

constexpr std::uint64_t kHeaderBytes = 10; // of the tag, and of each frame

// Four bytes of seven bits each, except that the last counts whole: writers exist that put eight bits there.
std::uint32_t TagSize(std::span<const std::uint8_t, 4> bytes) {
    return ((bytes[0] & 0x7FU) << 21U) + ((bytes[1] & 0x7FU) << 14U) + ((bytes[2] & 0x7FU) << 7U) + bytes[3];
}

// A big-endian number of which the highest bit is not used.
std::uint32_t FrameSize(std::span<const std::uint8_t, 4> bytes) {
    return ((bytes[0] & 0x7FU) << 24U) | (static_cast<std::uint32_t>(bytes[1]) << 16U) |
           (static_cast<std::uint32_t>(bytes[2]) << 8U) | bytes[3];
}

// What frames are read into.
struct TagTarget {
    TrackInfo& track;
    bool moveTheArtists;
    LongTextPool* longTexts; // none: long texts go into the track's own fields
};

using TextField = std::string TrackInfo::*;

// The field a frame fills; none for frames that are skipped.
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

// Reads and decodes a content piece by piece, so that only its text is ever held whole, and its NULs never: a
// frame may claim, and a sparse file hold, a gigabyte of them.
LongText ReadLongContent(ByteSource& file, std::uint64_t offset, std::uint32_t size,
                         LongTextPool::Turn& turn) {
    constexpr std::uint32_t kPiece = 65536;
    std::string bytes;
    std::string text;
    LongText content;
    for (std::uint32_t done = 0; done < size;) {
        bytes.resize(std::min(kPiece, size - done));
        file.ReadExactly(offset + done, {reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size()});
        SetTagText(text, bytes);
        content.Append(text);
        turn.Reach(content.View().size());
        done += static_cast<std::uint32_t>(bytes.size());
    }
    return content;
}

void MoveLeadingTheOf(LongText& artist) {
    if (HasLeadingThe(artist.View())) {
        artist.RemovePrefix(kLeadingTheBytes);
        artist.Append(kTrailingThe);
    }
}

// What a field shows when its frame is there but empty.
const char* TextForEmpty(TextField field) {
    if (field == &TrackInfo::Title) {
        return kUnknownTitle;
    }
    return field == &TrackInfo::Artist ? kUnknownArtist : "";
}

// Sets a field to the bytes of a frame's content.
void SetField(TextField field, std::string_view bytes, const TagTarget& target) {
    target.track.Unset(field);
    std::string& text = target.track.*field;
    SetTagText(text, bytes);
    if (text.empty()) {
        text = TextForEmpty(field);
    }
    if (field == &TrackInfo::Artist && target.moveTheArtists) {
        text = MoveLeadingThe(std::move(text));
    }
}

// The same for a content that is read piece by piece. The turn ends when the text is shared.
void ReadLongField(ByteSource& file, std::uint64_t offset, std::uint32_t size, TextField field,
                   const TagTarget& target) {
    LongTextPool::Turn turn(target.longTexts);
    LongText text = ReadLongContent(file, offset, size, turn);
    if (text.View().empty()) {
        SetField(field, {}, target);
        return;
    }
    if (field == &TrackInfo::Artist && target.moveTheArtists) {
        MoveLeadingTheOf(text);
    }
    if (target.longTexts != nullptr && text.View().size() >= kLongTextBytes) {
        target.track.Set(field, target.longTexts->Share(std::move(text)));
    } else {
        target.track.Unset(field);
        target.track.*field = text.View();
    }
}

// Sets `field` to the content of a frame; leaves it as it is when the content cannot be read.
void ReadContent(ByteSource& file, std::uint64_t offset, std::uint32_t size, TextField field,
                 const TagTarget& target) {
    std::array<char, 512> bytes; // NOLINT(cppcoreguidelines-pro-type-member-init): read into
    if (size > bytes.size()) {
        ReadLongField(file, offset, size, field, target);
        return;
    }
    file.ReadExactly(offset, {reinterpret_cast<std::uint8_t*>(bytes.data()), size});
    SetField(field, {bytes.data(), size}, target);
}

// One frame at `offset`. Returns the offset of the next, or nothing where padding or the file's end stops the
// walk.
std::optional<std::uint64_t> ReadFrame(ByteSource& file, std::uint64_t offset, const TagTarget& target) {
    // Offsets and widths: ID 0/4, size 4/4, flags 8/2, content from 10 on.
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
    // Offsets and widths: "ID3" 0/3, version 3/1, revision 4/1, flags 5/1, size 6/4.
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
    return {true, kHeaderBytes + TagSize(bytes.subspan<6, 4>())};
}

void ReadId3v2(ByteSource& file, const Id3v2Location& location, bool moveTheArtists, TrackInfo& track,
               LongTextPool* longTexts) {
    const TagTarget target{track, moveTheArtists, longTexts};
    try {
        // A tag of size 0 still gets one look.
        std::optional<std::uint64_t> offset = kHeaderBytes;
        do {
            offset = ReadFrame(file, *offset, target);
        } while (offset && *offset + 1 < location.searchPosition);
    } catch (const RunTimeError&) {
        return; // the fields taken so far stay
    }
}

} // namespace tunedex
