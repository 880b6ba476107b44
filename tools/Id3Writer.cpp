#include "Id3Writer.h"

#include "Text.h"

#include <array>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace tunedex {

namespace {

constexpr std::size_t kTagHeaderSize = 10;
constexpr std::uint32_t kLargestSynchsafe = (1U << 28U) - 1;

struct FrameName {
    std::string_view name;
    std::string_view in22;
    std::string_view in24;
};
constexpr std::array<FrameName, 8> kFrameNames = {{
    {"TIT2", "TT2", "TIT2"},
    {"TPE1", "TP1", "TPE1"},
    {"TALB", "TAL", "TALB"},
    {"TYER", "TYE", "TDRC"},
    {"TCON", "TCO", "TCON"},
    {"TRCK", "TRK", "TRCK"},
    {"TPOS", "TPA", "TPOS"},
    {"TENC", "TEN", "TENC"},
}};

void AppendField(std::string& tag, std::string_view text, std::size_t width, char fill) {
    std::string bytes;
    AppendWindows1252(bytes, text, Substitute::QuestionMark);
    bytes.resize(width, fill);
    tag += bytes;
}

// `bitsPerByte` is 8, or 7 for synchsafe integers.
void AppendBigEndian(std::string& bytes, std::size_t value, unsigned width, unsigned bitsPerByte) {
    const std::size_t mask = (1U << bitsPerByte) - 1;
    for (unsigned left = width; left > 0; --left) {
        bytes += static_cast<char>((value >> (bitsPerByte * (left - 1))) & mask);
    }
}

void AppendUtf16Unit(std::string& bytes, std::uint32_t unit, bool bigEndian) {
    const auto high = static_cast<char>((unit >> 8U) & 0xFFU);
    const auto low = static_cast<char>(unit & 0xFFU);
    bytes += bigEndian ? high : low;
    bytes += bigEndian ? low : high;
}

void AppendUtf16(std::string& bytes, std::string_view text, bool bigEndian) {
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i);
        i += step.length;
        const auto character = static_cast<std::uint32_t>(step.character);
        if (character < 0x10000U) {
            AppendUtf16Unit(bytes, character, bigEndian);
        } else {
            AppendUtf16Unit(bytes, 0xD800U + ((character - 0x10000U) >> 10U), bigEndian);
            AppendUtf16Unit(bytes, 0xDC00U + ((character - 0x10000U) & 0x3FFU), bigEndian);
        }
    }
}

void AppendAsWindows1252(std::string& bytes, std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const TextStep step = StepAt(text, i);
        i += step.length;
        const auto byte = ToWindows1252(step.character);
        if (!byte) {
            throw std::invalid_argument("\"" + std::string(text) + "\" does not fit into Windows-1252");
        }
        bytes += static_cast<char>(*byte);
    }
}

std::string TextFrameContent(std::string_view text, Id3TextEncoding encoding) {
    if (!IsValidUtf8(text)) {
        throw std::invalid_argument("a tag's text is not UTF-8");
    }
    std::string content(1, static_cast<char>(encoding));
    switch (encoding) {
    case Id3TextEncoding::Windows1252:
        AppendAsWindows1252(content, text);
        break;
    case Id3TextEncoding::Utf16:
        AppendUtf16Unit(content, 0xFEFF, false);
        AppendUtf16(content, text, false);
        break;
    case Id3TextEncoding::Utf16BigEndian:
        AppendUtf16(content, text, true);
        break;
    case Id3TextEncoding::Utf8:
        content += text;
        break;
    }
    return content;
}

// Type 3 is the front cover. The description is empty: only its terminator.
std::string PictureFrameContent(Id3v2Version version, std::string_view picture) {
    using namespace std::string_view_literals;
    std::string content(version == Id3v2Version::V22 ? "\0PNG\x03\0"sv : "\0image/png\0\x03\0"sv);
    content += picture;
    return content;
}

std::string_view NameFor(std::string_view name, Id3v2Version version) {
    if (version == Id3v2Version::V23) {
        return name;
    }
    for (const FrameName& row : kFrameNames) {
        if (row.name == name) {
            return version == Id3v2Version::V22 ? row.in22 : row.in24;
        }
    }
    throw std::invalid_argument("unknown frame " + std::string(name));
}

void AppendFrameHeader(std::string& bytes, const Id3v2Tag& tag, std::string_view name, std::size_t size) {
    bytes += name;
    if (tag.version == Id3v2Version::V22) {
        AppendBigEndian(bytes, size, 3, 8);
        return;
    }
    const bool synchsafe = tag.version == Id3v2Version::V24 && !tag.plainFrameSizes;
    AppendBigEndian(bytes, size, 4, synchsafe ? 7 : 8);
    AppendBigEndian(bytes, 0, 2, 8); // no flags
}

std::string Frames(const Id3v2Tag& tag) {
    std::string bytes;
    for (const Id3v2Frame& frame : tag.frames) {
        const std::string content = TextFrameContent(frame.text, tag.encoding);
        AppendFrameHeader(bytes, tag, NameFor(frame.id, tag.version), content.size());
        bytes += content;
    }
    if (!tag.picture.empty() || tag.pictureZeros > 0) {
        const std::string content = PictureFrameContent(tag.version, tag.picture);
        AppendFrameHeader(bytes, tag, tag.version == Id3v2Version::V22 ? "PIC" : "APIC",
                          content.size() + tag.pictureZeros);
        bytes += content;
    }
    return bytes;
}

// Unsynchronisation: inserts a zero after each FF that would look like the start of an MPEG frame.
std::string Unsynchronised(std::string_view bytes) {
    std::string result;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        result += bytes[i];
        const bool last = i + 1 == bytes.size();
        const auto next = static_cast<unsigned char>(last ? '\0' : bytes[i + 1]);
        if (bytes[i] == '\xFF' && (next >= 0xE0 || next == 0)) {
            result += '\0';
        }
    }
    return result;
}

} // namespace

std::string MakeId3v1(const Id3v1Tag& tag) {
    std::string bytes = "TAG";
    AppendField(bytes, tag.title, 30, tag.fill);
    AppendField(bytes, tag.artist, 30, tag.fill);
    AppendField(bytes, tag.album, 30, tag.fill);
    AppendField(bytes, tag.year, 4, tag.fill);
    if (tag.track == 0) {
        AppendField(bytes, tag.comment, 30, tag.fill);
    } else {
        AppendField(bytes, tag.comment, 28, tag.fill);
        bytes += '\0';
        bytes += static_cast<char>(tag.track);
    }
    bytes += static_cast<char>(tag.genre);
    return bytes;
}

TagBytes MakeId3v2(const Id3v2Tag& tag) {
    std::string frames = Frames(tag);
    if (tag.unsynchronised) {
        frames = Unsynchronised(frames);
    }
    const std::size_t zeros = tag.pictureZeros + tag.padding;
    const std::size_t size = tag.claimedSize ? *tag.claimedSize : frames.size() + zeros;
    if (size > kLargestSynchsafe) {
        throw std::invalid_argument("a tag's size has only 28 bits");
    }
    TagBytes result;
    result.bytes.reserve(kTagHeaderSize + frames.size());
    result.bytes = "ID3";
    result.bytes += static_cast<char>(tag.version);
    result.bytes += '\0'; // revision
    result.bytes += tag.unsynchronised ? '\x80' : '\0';
    AppendBigEndian(result.bytes, size, 4, 7);
    result.bytes += frames;
    result.zeros = zeros;
    return result;
}

} // namespace tunedex
