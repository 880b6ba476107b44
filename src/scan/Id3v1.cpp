#include "Id3v1.h"

#include "Genres.h"
#include "RunTimeError.h"
#include "Text.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tunedex {

namespace {

constexpr std::size_t kTagBytes = 128;

// ID3v1 pads its fields with NULs or blanks. Blanks go first: those that stand before NULs are part of the
// text.
std::string FieldText(std::string_view field) {
    std::string bytes(TrimBlanksRight(field));
    std::erase(bytes, '\0');
    return DecodeWindows1252(bytes);
}

} // namespace

std::string MoveLeadingThe(std::string artist) {
    constexpr std::size_t kPrefix = 4;
    if (UpperCase(std::string_view(artist).substr(0, kPrefix)) == "THE ") {
        return artist.substr(kPrefix) + ", The";
    }
    return artist;
}

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
    // Offsets and widths: marker 0/3, title 3/30, artist 33/30, album 63/30, year 93/4, comment 97/30, genre
    // 127/1.
    const std::string title = FieldText(tag.substr(3, 30));
    const std::string artist = FieldText(tag.substr(33, 30));
    track.Album = FieldText(tag.substr(63, 30));
    track.Year = FieldText(tag.substr(93, 4));
    track.Genre = GenreName(bytes[127]);

    track.Artist = artist.empty() ? kUnknownArtist : artist;
    if (moveTheArtists) {
        track.Artist = MoveLeadingThe(track.Artist);
    }
    track.Title = title.empty() ? kUnknownTitle : title;
    return true;
}

} // namespace tunedex
