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

// The field a frame fills; none for frames that are skipped.
std::string* FieldOf(std::string_view frameId, TrackInfo& track) {
    if (frameId == "TIT2") {
        return &track.Title;
    }
    if (frameId == "TPE1") {
        return &track.Artist;
    }
    if (frameId == "TALB") {
        return &track.Album;
    }
    if (frameId == "TYER") {
        return &track.Year;
    }
    return frameId == "TCON" ? &track.Genre : nullptr;
}

// Reads a content piece by piece, dropping its NULs: a frame may claim, and a sparse file hold, a gigabyte of
// them.
std::string ReadLongContent(ByteSource& file, std::uint64_t offset, std::uint32_t size) {
    constexpr std::uint32_t kPiece = 65536;
    std::string content;
    for (std::uint32_t done = 0; done < size;) {
        const std::uint32_t count = std::min(kPiece, size - done);
        const std::size_t kept = content.size();
        content.resize(kept + count);
        file.ReadExactly(offset + done, {reinterpret_cast<std::uint8_t*>(content.data()) + kept, count});
        const auto piece = content.begin() + static_cast<std::ptrdiff_t>(kept);
        content.erase(std::remove(piece, content.end(), '\0'), content.end());
        done += count;
    }
    return content;
}

// Sets `field` to the content of a frame; leaves it as it is when the content cannot be read.
void ReadContent(ByteSource& file, std::uint64_t offset, std::uint32_t size, std::string& field) {
    std::array<char, 512> bytes; // NOLINT(cppcoreguidelines-pro-type-member-init): read into
    if (size > bytes.size()) {
        SetTagText(field, ReadLongContent(file, offset, size));
        return;
    }
    file.ReadExactly(offset, {reinterpret_cast<std::uint8_t*>(bytes.data()), size});
    SetTagText(field, {bytes.data(), size});
}

// One frame at `offset`. Returns the offset of the next, or nothing where padding or the file's end stops the
// walk.
std::optional<std::uint64_t> ReadFrame(ByteSource& file, std::uint64_t offset, bool moveTheArtists,
                                       TrackInfo& track) {
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
    if (std::string* field = FieldOf(frameId, track)) {
        ReadContent(file, content, size, *field);
        if (field == &track.Title && field->empty()) {
            *field = kUnknownTitle;
        } else if (field == &track.Artist && field->empty()) {
            *field = kUnknownArtist;
        }
        if (field == &track.Artist && moveTheArtists) {
            *field = MoveLeadingThe(std::move(*field));
        }
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

void ReadId3v2(ByteSource& file, const Id3v2Location& location, bool moveTheArtists, TrackInfo& track) {
    try {
        // A tag of size 0 still gets one look.
        std::optional<std::uint64_t> offset = kHeaderBytes;
        do {
            offset = ReadFrame(file, *offset, moveTheArtists, track);
        } while (offset && *offset + 1 < location.searchPosition);
    } catch (const RunTimeError&) {
        return; // the fields taken so far stay
    }
}

} // namespace tunedex
