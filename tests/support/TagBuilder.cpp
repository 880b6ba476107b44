#include "TagBuilder.h"

namespace tunedex::test {

namespace {

std::string Number(std::uint32_t value, unsigned bits) {
    std::string bytes;
    for (unsigned i = 4; i > 0; --i) {
        bytes += static_cast<char>((value >> ((i - 1) * bits)) & ((1U << bits) - 1));
    }
    return bytes;
}

std::string ApeFrame(std::uint32_t size, std::uint32_t count, std::uint32_t flags) {
    return "APETAGEX" + LittleEndian(2000) + LittleEndian(size) + LittleEndian(count) + LittleEndian(flags) +
           std::string(8, '\0');
}

} // namespace

std::string BigEndian(std::uint32_t value) {
    return Number(value, 8);
}

std::string LittleEndian(std::uint32_t value) {
    const std::string bytes = Number(value, 8);
    return {bytes.rbegin(), bytes.rend()};
}

std::string Synchsafe(std::uint32_t value) {
    return Number(value, 7);
}

std::string TagOf(int version, const std::string& body, int flags) {
    return "ID3" + std::string{static_cast<char>(version), '\0', static_cast<char>(flags)} +
           Synchsafe(static_cast<std::uint32_t>(body.size())) + body;
}

std::string FrameOf(int version, const std::string& id, const std::string& content, int format) {
    const auto size = static_cast<std::uint32_t>(content.size());
    if (version == 2) {
        return id + BigEndian(size).substr(1) + content;
    }
    return id + (version == 4 ? Synchsafe(size) : BigEndian(size)) + '\0' + static_cast<char>(format) +
           content;
}

std::string Utf16(std::u16string_view text) {
    std::string bytes = "\x01\xFF\xFE";
    for (const char16_t unit : text) {
        bytes += {static_cast<char>(unit & 0xFFU), static_cast<char>(unit >> 8U)};
    }
    return bytes;
}

std::string Unsynchronised(const std::string& bytes) {
    std::string result;
    for (const char byte : bytes) {
        result += byte;
        if (byte == '\xFF') {
            result += '\0';
        }
    }
    return result;
}

std::string ApeItem(const std::string& key, const std::string& value, std::uint32_t flags) {
    return LittleEndian(static_cast<std::uint32_t>(value.size())) + LittleEndian(flags) + key + '\0' + value;
}

std::string ApeTagOf(const std::string& items, std::uint32_t count, bool header, bool footer) {
    const auto size = static_cast<std::uint32_t>(items.size() + 32);
    const std::uint32_t flags = header ? 0x80000000U : 0;
    return (header ? ApeFrame(size, count, flags | 0x20000000U) : "") + items +
           (footer ? ApeFrame(size, count, flags) : "");
}

std::string ApeTag(const std::vector<std::pair<std::string, std::string>>& items) {
    std::string bytes;
    for (const auto& [key, value] : items) {
        bytes += ApeItem(key, value);
    }
    return ApeTagOf(bytes, static_cast<std::uint32_t>(items.size()));
}

std::string Lyrics3v1(const std::string& text) {
    return "LYRICSBEGIN" + text + "LYRICSEND";
}

std::string Lyrics3v2(const std::string& fields) {
    const std::string begin = "LYRICSBEGIN" + fields;
    const std::string digits = std::to_string(begin.size());
    return begin + std::string(6 - digits.size(), '0') + digits + "LYRICS200";
}

std::string Frames(std::size_t count, std::size_t length, std::string_view header) {
    std::string bytes;
    for (std::size_t i = 0; i < count; ++i) {
        bytes += header;
        bytes.append(length - header.size(), '\0');
    }
    return bytes;
}

std::string OrdinaryFrames(std::size_t count) {
    return Frames(count, 417, "\xFF\xFB\x90\x04");
}

} // namespace tunedex::test
