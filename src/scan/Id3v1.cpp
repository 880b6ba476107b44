#include "Id3v1.h"

#include "Genres.h"
#include "RunTimeError.h"
#include "Text.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tunedex {

namespace {

constexpr std::size_t kTagBytes = 128;

// Required: trailing blanks are trimmed before NULs are removed, so blanks in front of NUL padding stay. Do
// not 'fix'.
void SetFieldText(std::string& text, std::string_view field) {
    SetTagText(text, TrimBlanksRight(field));
}

} // namespace

void SetTagText(std::string& text, std::string_view bytes) {
    text.clear();
    while (!bytes.empty()) {
        const std::size_t run = std::min(bytes.find('\0'), bytes.size());
        AppendDecodedWindows1252(text, bytes.substr(0, run));
        bytes.remove_prefix(run);
        bytes.remove_prefix(std::min(bytes.find_first_not_of('\0'), bytes.size()));
    }
}

bool HasLeadingThe(std::string_view artist) {
    return UpperCase(artist.substr(0, kLeadingTheBytes)) == "THE ";
}

std::string MoveLeadingThe(std::string artist) {
    return HasLeadingThe(artist) ? artist.erase(0, kLeadingTheBytes).append(kTrailingThe) : artist;
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
    // Offset/width: marker 0/3, title 3/30, artist 33/30, album 63/30, year 93/4, comment 97/30, genre 127/1.
    SetFieldText(track.Title, tag.substr(3, 30));
    SetFieldText(track.Artist, tag.substr(33, 30));
    SetFieldText(track.Album, tag.substr(63, 30));
    SetFieldText(track.Year, tag.substr(93, 4));
    track.Genre = GenreName(bytes[127]);

    if (track.Artist.empty()) {
        track.Artist = kUnknownArtist;
    }
    if (moveTheArtists) {
        track.Artist = MoveLeadingThe(std::move(track.Artist));
    }
    if (track.Title.empty()) {
        track.Title = kUnknownTitle;
    }
    return true;
}

} // namespace tunedex
