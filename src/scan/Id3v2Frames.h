// Reads the frames of ID3v2.2, 2.3 and 2.4 tags with their encodings, unsynchronisation and extended headers.
#pragma once

#include "ByteSource.h"
#include "TagTexts.h"

#include <cstdint>
#include <optional>
#include <span>

namespace tunedex {

inline constexpr std::size_t kId3v2HeaderBytes = 10;

// An ID3v2 header (ID3v2.4 structure section 3.1).
struct Id3v2Header {
    std::uint8_t version = 0; // 2 for ID3v2.2, and so on
    std::uint8_t flags = 0;
    std::uint64_t bodyBytes = 0; // extended header, frames and padding, as declared
    std::uint64_t tagBytes = 0;  // all of the tag, with header and footer, as declared
};

// The header in the first bytes of `bytes`, if they are one of any version. A size that is not synchsafe is
// taken as a plain 32-bit number.
std::optional<Id3v2Header> ParseId3v2Header(std::span<const std::uint8_t> bytes);

// Whether the frames of a tag with that header can be read: versions 2.2 (not compressed), 2.3 and 2.4.
bool IsReadable(const Id3v2Header& header);

// Adds the texts of the tag at the start of the file. A frame that cannot be read ends the reading. Reads
// nothing beyond the tag or the file, and no content but that of the frames it uses, except in a tag that is
// unsynchronised as a whole. Raises the error of a failed read; the texts before it are kept.
void ReadId3v2Frames(ByteSource& file, const Id3v2Header& header, TagTexts& texts);

} // namespace tunedex
