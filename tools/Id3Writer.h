// Creates ID3 tags for sample files, both regular ones and ones with the faults of real taggers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tunedex {

// The values are the major version in the tag header.
enum class Id3v2Version : std::uint8_t { V22 = 2, V23 = 3, V24 = 4 };

// The text encoding of a frame; the values are its encoding byte. Windows1252 is what most taggers write as
// ISO-8859-1. Utf16 is little-endian with a byte-order mark.
enum class Id3TextEncoding : std::uint8_t { Windows1252 = 0, Utf16 = 1, Utf16BigEndian = 2, Utf8 = 3 };

struct Id3v1Tag {
    // UTF-8; truncated to 30 bytes (year: 4). "?" replaces characters that Windows-1252 lacks.
    std::string title;
    std::string artist;
    std::string album;
    std::string year;
    std::string comment;
    std::uint8_t track = 0; // 0: none; otherwise the comment is truncated to 28 bytes
    std::uint8_t genre = 255;
    char fill = '\0'; // field padding: NUL, or a blank as in old taggers
};

struct Id3v2Frame {
    std::string id;   // the version 2.3 id; mapped to the ids of other versions
    std::string text; // UTF-8
};

struct Id3v2Tag {
    Id3v2Version version = Id3v2Version::V23;
    Id3TextEncoding encoding = Id3TextEncoding::Windows1252;
    std::vector<Id3v2Frame> frames; // in this order
    std::string picture;            // the bytes of a PNG; empty: no picture
    std::size_t pictureZeros = 0;   // zero bytes appended to the picture, for sparse files
    std::size_t padding = 0;        // zero bytes after the last frame
    bool unsynchronised = false;
    bool plainFrameSizes = false; // version 2.4 with sizes that are not synchsafe, as some players wrote them
    std::optional<std::uint32_t> claimedSize; // overrides the size in the header; 28 bits
};

// A tag and the number of zero bytes that follow it, which a file system can store as a hole.
struct TagBytes {
    std::string bytes;
    std::size_t zeros = 0;

    std::size_t Size() const { return bytes.size() + zeros; }
};

// Always 128 bytes.
std::string MakeId3v1(const Id3v1Tag& tag);

// Throws std::invalid_argument for a text that the encoding cannot represent, a frame that the version lacks,
// or a size that does not fit.
TagBytes MakeId3v2(const Id3v2Tag& tag);

} // namespace tunedex
