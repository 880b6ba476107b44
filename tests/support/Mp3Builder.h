// MP3 files made byte by byte, for tests that need a certain one.
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
    std::string content; // as it stands, encoding byte included
};

// One frame as ID3v2.3 lays it out.
std::string Frame(const Id3v2Frame& frame);
// A tag whose declared size is that of its frames and padding.
std::string Id3v2Tag(const std::vector<Id3v2Frame>& frames, std::size_t padding = 0);
// A tag header that declares `size`, synchsafe.
std::string Id3v2Header(std::uint32_t size);
// A text frame's content in encoding 0.
std::string Latin1(std::string_view text);

// A frame header and zeros up to `bytes`: MPEG-1 layer III, 128 kbit/s, 44,100 Hz, joint stereo unless told
// otherwise.
std::string Audio(std::size_t bytes, std::string_view header = "\xFF\xFB\x90\x64");
// The same with a "Xing" header that tells `frames`.
std::string XingAudio(std::size_t bytes, std::uint32_t frames, std::string_view header = "\xFF\xFB\x90\x64");

} // namespace tunedex::test
