// The ID3v1 tag: the last 128 bytes of a file, "TAG" and fields of fixed width in an 8-bit code page.
#pragma once

#include "ByteSource.h"
#include "TrackInfo.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tunedex {

inline constexpr const char* kUnknownArtist = "Unknown Artist";
inline constexpr const char* kUnknownTitle = "Unknown Title";

// Fills artist, title, album, year and genre and returns true when the file ends in a tag; otherwise, also
// when it cannot be read, leaves the track as it is and returns false.
bool ReadId3v1(ByteSource& file, bool moveTheArtists, TrackInfo& track);

// Sets `text` to the bytes of a tag field as a text, without the NULs that writers pad, end and (UTF-16) fill
// fields with.
void SetTagText(std::string& text, std::string_view bytes);

// "The Beatles" as "Beatles, The"; any other artist as it is.
std::string MoveLeadingThe(std::string artist);
// The parts of that, for a text that is not copied.
bool HasLeadingThe(std::string_view artist);
inline constexpr std::size_t kLeadingTheBytes = 4;
inline constexpr std::string_view kTrailingThe = ", The";

} // namespace tunedex
