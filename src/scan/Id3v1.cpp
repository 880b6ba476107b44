#include "Id3v1.h"

#include "Genres.h"
#include "RunTimeError.h"
#include "TagText.h"
#include "Text.h"

#include <array>
#include <string_view>

namespace tunedex {

namespace {

constexpr std::size_t kTagBytes = 128;

// Required: trailing blanks are trimmed before NULs are removed, so blanks in front of NUL padding stay. Do
// not 'fix'.
void SetFieldText(std::string& text, std::string_view field) {
    SetTagText(text, TrimBlanksRight(field));
}

} // namespace

bool ReadId3v1(ByteSource& file, bool moveTheArtists, TrackInfo& track) {
    if (file.Size() < kTagBytes) {
        return false;
    }
    std::array<std::uint8_t, kTagBytes> bytes{};
    try {
        file.ReadExactly(file.Size() - kTagBytes, bytes);
    } catch (const RunTimeError&) {
        return false;
    }
    const std::string_view tag(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (!tag.starts_with("TAG")) {
        return false;
    }
    // Offset/width: marker 0/3, title 3/30, artist 33/30, album 63/30, year 93/4, comment 97/30, genre 127/1.
    SetFieldText(track.Title, tag.substr(3, 30));
    SetFieldText(track.Artist, tag.substr(33, 30));
    SetFieldText(track.Album, tag.substr(63, 30));
    SetFieldText(track.Year, tag.substr(93, 4));
    track.Genre = GenreName(bytes[127]);
    FinishTitle(track.Title);
    FinishArtist(track.Artist, moveTheArtists);
    return true;
}

} // namespace tunedex
