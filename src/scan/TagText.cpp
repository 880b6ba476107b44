#include "TagText.h"

#include "Text.h"

#include <algorithm>

namespace tunedex {

namespace {

constexpr std::size_t kLeadingTheBytes = 4;
constexpr std::string_view kTrailingThe = ", The";

bool HasLeadingThe(std::string_view artist) {
    return UpperCase(artist.substr(0, kLeadingTheBytes)) == "THE ";
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

void FinishTitle(std::string& title) {
    if (title.empty()) {
        title = "Unknown Title";
    }
}

void FinishArtist(std::string& artist, bool moveTheArtists) {
    if (artist.empty()) {
        artist = "Unknown Artist";
    } else if (moveTheArtists && HasLeadingThe(artist)) {
        artist.erase(0, kLeadingTheBytes).append(kTrailingThe);
    }
}

void FinishArtist(LongText& artist, bool moveTheArtists) {
    if (moveTheArtists && HasLeadingThe(artist.View())) {
        artist.RemovePrefix(kLeadingTheBytes);
        artist.Append(kTrailingThe);
    }
}

} // namespace tunedex
