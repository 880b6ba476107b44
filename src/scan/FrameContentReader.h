// Reads the contents of ID3v2 frames into the texts of a track.
#pragma once

#include "FrameIds.h"
#include "TagBytes.h"
#include "TagTexts.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tunedex {

// How the content of a frame is stored.
struct FrameFormat {
    bool readable = true;        // neither compressed nor encrypted
    bool unsynchronised = false; // only in version 2.4
    std::size_t prefixBytes = 0; // in front of the content: group, data length
};

// From the second flag byte of a frame's header (ID3v2.3 section 3.3.1, ID3v2.4 structure section 4.1.2).
FrameFormat FrameFormatOf(unsigned version, std::uint8_t flags, bool tagUnsynchronised);

// Adds the text of `size` bytes at the position, as it is in the file.
void ReadText(TagBytes& bytes, std::uint64_t size, TagField field, TagEncoding encoding, TagTexts& texts);

class FrameTexts {
  public:
    explicit FrameTexts(TagTexts& texts) : texts_(texts) {}

    // Reads the content of `size` bytes at the position and moves the position behind it. Of a content that
    // the tag cuts off, only the first value counts. Returns whether the tag goes on.
    bool Read(TagBytes& bytes, const FrameUse& use, const FrameFormat& format, std::uint64_t size);

    // Sets the year from a date if no frame has set it.
    void Finish();

  private:
    struct Content;

    void Take(const FrameUse& use, std::string_view content, bool cut);
    void TakeDate(int rank, std::string_view bytes, TagEncoding encoding);
    void TakeComment(std::string_view bytes, TagEncoding encoding);

    TagTexts& texts_;
    std::array<std::string, 3> years_; // by rank
};

} // namespace tunedex
