// Reads the ID3v1 tag: the last 128 bytes of a file, "TAG" and fields of fixed width in Windows-1252.
#pragma once

#include "ByteSource.h"
#include "TrackInfo.h"

namespace tunedex {

// Sets artist, title, album, year and genre and returns true if the file ends in a tag. Otherwise, also after
// a failed read, leaves the track unchanged and returns false.
bool ReadId3v1(ByteSource& file, bool moveTheArtists, TrackInfo& track);

} // namespace tunedex
