#include "Mp3Builder.h"

#include <stdexcept>

namespace tunedex::test {

namespace {

std::string Padded(std::string text, std::size_t width) {
    text.resize(width, '\0');
    return text;
}

std::string BigEndian32(std::uint32_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) {
        bytes += static_cast<char>((value >> static_cast<unsigned>(shift)) & 0xFFU);
    }
    return bytes;
}

} // namespace

std::string Id3v1Tag(const Id3v1Fields& fields) {
    std::string tag = "TAG" + Padded(fields.title, 30) + Padded(fields.artist, 30) +
                      Padded(fields.album, 30) + Padded(fields.year, 4) + Padded(fields.comment, 30);
    tag += static_cast<char>(fields.genre);
    return tag;
}

std::string Frame(const Id3v2Frame& frame) {
    if (frame.id.size() != 4) {
        throw std::invalid_argument("a frame's ID has four characters");
    }
    return frame.id + BigEndian32(static_cast<std::uint32_t>(frame.content.size())) + std::string(2, '\0') +
           frame.content;
}

std::string Id3v2Header(std::uint32_t size) {
    std::string header("ID3\x03\x00\x00", 6);
    for (int shift = 21; shift >= 0; shift -= 7) {
        header += static_cast<char>((size >> static_cast<unsigned>(shift)) & 0x7FU);
    }
    return header;
}

std::string Id3v2Tag(const std::vector<Id3v2Frame>& frames, std::size_t padding) {
    std::string body;
    for (const Id3v2Frame& frame : frames) {
        body += Frame(frame);
    }
    body.append(padding, '\0');
    return Id3v2Header(static_cast<std::uint32_t>(body.size())) + body;
}

std::string Latin1(std::string_view text) {
    return std::string(1, '\0') + std::string(text);
}

std::string Audio(std::size_t bytes, std::string_view header) {
    return Padded(std::string(header), bytes);
}

std::string XingAudio(std::size_t bytes, std::uint32_t frames, std::string_view header) {
    std::string audio = Padded(std::string(header), 36) + "Xing" + BigEndian32(3) + BigEndian32(frames) +
                        BigEndian32(static_cast<std::uint32_t>(bytes));
    return Padded(audio, bytes);
}

} // namespace tunedex::test
