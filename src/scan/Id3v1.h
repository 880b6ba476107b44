// Reads the ID3v1 tag: the last 128 bytes of a file, "TAG" and fields of fixed width in Windows-1252.
#pragma once

#include "ByteSource.h"
#include "TrackInfo.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tunedex {

inline constexpr const char* kUnknownArtist = "Unknown Artist";
inline constexpr const char* kUnknownTitle = "Unknown Title";

// Sets artist, title, album, year and genre and returns true if the file ends in a tag. Otherwise, also after
// a failed read, leaves the track unchanged and returns false.
bool ReadId3v1(ByteSource& file, bool moveTheArtists, TrackInfo& track);

// Sets `text` to the Windows-1252 bytes of a tag field without their NULs, which pad, terminate and (in
// UTF-16) fill fields.
void SetTagText(std::string& text, std::string_view bytes);

// "The Beatles" becomes "Beatles, The"; any other artist is returned unchanged.
std::string MoveLeadingThe(std::string artist);
// The steps of MoveLeadingThe, for a text too long to copy.
bool HasLeadingThe(std::string_view artist);
inline constexpr std::size_t kLeadingTheBytes = 4;
inline constexpr std::string_view kTrailingThe = ", The";

} // namespace tunedex
