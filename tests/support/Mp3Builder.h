// Builds MP3 files byte by byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex::test {

struct Id3v1Fields {
    std::string title; // raw bytes; padded with NULs to the field's width
    std::string artist;
    std::string album;
    std::string year;
    std::string comment;
    std::uint8_t genre = 255;
};

// 128 bytes.
std::string Id3v1Tag(const Id3v1Fields& fields);

struct Id3v2Frame {
    std::string id;      // four characters
    std::string content; // including the encoding byte
};

// One ID3v2.3 frame.
std::string Frame(const Id3v2Frame& frame);
// A tag that declares the size of its frames and padding.
std::string Id3v2Tag(const std::vector<Id3v2Frame>& frames, std::size_t padding = 0);
// A tag header that declares `size` (stored synchsafe).
std::string Id3v2Header(std::uint32_t size);
// The content of a text frame in encoding 0, ISO-8859-1.
std::string Latin1(std::string_view text);

// A frame header followed by zeros, `bytes` in all. Default: MPEG-1 layer III, 128 kbit/s, 44,100 Hz, joint
// stereo.
std::string Audio(std::size_t bytes, std::string_view header = "\xFF\xFB\x90\x64");
// The same with a "Xing" header that declares `frames`.
std::string XingAudio(std::size_t bytes, std::uint32_t frames, std::string_view header = "\xFF\xFB\x90\x64");

} // namespace tunedex::test
