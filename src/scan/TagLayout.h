// Where the tags of a file are. Reads the first bytes of the file and one block at its end.
#pragma once

#include "ByteSource.h"
#include "Id3v2Frames.h"

#include <array>
#include <cstdint>
#include <optional>

namespace tunedex {

// The items of an APEv2 tag: the bytes from `start` to `end`, between its header and its footer.
struct ApeItems {
    std::uint64_t start = 0;
    std::uint64_t end = 0;
};

using Id3v1Bytes = std::array<std::uint8_t, 128>;

struct TagLayout {
    std::optional<Id3v2Header> id3v2; // at the start of the file, of any version
    std::optional<ApeItems> apev2;    // before ID3v1 and Lyrics3, else at the start of the file
    std::optional<Id3v1Bytes> id3v1;  // all of the tag: the last 128 bytes
    std::uint64_t audioEnd = 0;       // where the tags at the end start
};

// Tags that a failed read hides are absent.
TagLayout FindTags(ByteSource& file);

// The number of bytes of the tag, ID3v2 or APEv2, that starts with `bytes` (of which there are at least
// kTagStartBytes, except at the end of the file); 0 if none does. Raises nothing, and may be more than the
// file has.
inline constexpr std::size_t kTagStartBytes = 32;
std::uint64_t LeadingTagBytes(std::span<const std::uint8_t> bytes);

} // namespace tunedex
