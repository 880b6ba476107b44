// Makes ID3 tags for sample files: plain ones, and ones as odd as taggers have left in the world.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tunedex {

// The numbers are the major version in the tag's header.
enum class Id3v2Version : std::uint8_t { V22 = 2, V23 = 3, V24 = 4 };

// How a frame says its texts are written; the numbers are the encoding byte. The 8-bit one is Windows-1252,
// as taggers write it under the name of ISO-8859-1. Utf16 has a byte-order mark and is little-endian.
enum class Id3TextEncoding : std::uint8_t { Windows1252 = 0, Utf16 = 1, Utf16BigEndian = 2, Utf8 = 3 };

struct Id3v1Tag {
    // UTF-8; cut to 30 bytes (the year to 4), characters that Windows-1252 lacks become "?".
    std::string title;
    std::string artist;
    std::string album;
    std::string year;
    std::string comment;
    std::uint8_t track = 0; // 0 leaves it out; otherwise the comment is cut to 28 bytes
    std::uint8_t genre = 255;
    char fill = '\0'; // what the fields are filled up with: NUL, or a blank as old taggers did
};

struct Id3v2Frame {
    std::string id;   // as version 2.3 names it; the other versions' names follow from it
    std::string text; // UTF-8
};

struct Id3v2Tag {
    Id3v2Version version = Id3v2Version::V23;
    Id3TextEncoding encoding = Id3TextEncoding::Windows1252;
    std::vector<Id3v2Frame> frames; // in this order
    std::string picture;            // the bytes of a PNG; empty: no picture
    std::size_t pictureZeros = 0;   // zero bytes in the picture behind those; for files with holes
    std::size_t padding = 0;        // zero bytes behind the last frame
    bool unsynchronised = false;
    bool plainFrameSizes = false; // version 2.4 with frame sizes of 8 bits a byte, as some players wrote it
    std::optional<std::uint32_t> claimedSize; // what the header says instead of the truth; 28 bits
};

// A tag as bytes, followed by zeros that need not be written where the file system makes holes.
struct TagBytes {
    std::string bytes;
    std::size_t zeros = 0;

    std::size_t Size() const { return bytes.size() + zeros; }
};

// Always 128 bytes.
std::string MakeId3v1(const Id3v1Tag& tag);

// Throws std::invalid_argument for a text that the encoding cannot hold, a frame that the version lacks and a
// size that does not fit.
TagBytes MakeId3v2(const Id3v2Tag& tag);

} // namespace tunedex
