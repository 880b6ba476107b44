// Builds tags and audio frames of all kinds byte by byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tunedex::test {

// Numbers of four bytes.
std::string BigEndian(std::uint32_t value);
std::string LittleEndian(std::uint32_t value);
std::string Synchsafe(std::uint32_t value);

// An ID3v2 tag of `version` (2, 3 or 4) around its body.
std::string TagOf(int version, const std::string& body, int flags = 0);
// One frame of that version; `format` is the second byte of its flags. In 2.2 the ID has three letters.
std::string FrameOf(int version, const std::string& id, const std::string& content, int format = 0);
// A text frame's content in encoding 1, little-endian with a mark.
std::string Utf16(std::u16string_view text);
// Inserts a zero behind each FF.
std::string Unsynchronised(const std::string& bytes);

// An APEv2 tag of texts, with header and footer.
std::string ApeTag(const std::vector<std::pair<std::string, std::string>>& items);
// One item with its flags.
std::string ApeItem(const std::string& key, const std::string& value, std::uint32_t flags = 0);
// A tag around such items, with header and footer as asked for.
std::string ApeTagOf(const std::string& items, std::uint32_t count, bool header = true, bool footer = true);

std::string Lyrics3v1(const std::string& text);
std::string Lyrics3v2(const std::string& fields);

// `count` frames with that header, of `length` bytes each.
std::string Frames(std::size_t count, std::size_t length, std::string_view header);
// Frames of MPEG-1 layer III, 128 kbit/s, 44,100 Hz, stereo: 417 bytes each.
std::string OrdinaryFrames(std::size_t count);

} // namespace tunedex::test
