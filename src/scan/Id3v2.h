// The ID3v2 tag at the start of a file: found by its header, read frame by frame as version 2.3 lays frames
// out.
#pragma once

#include "ByteSource.h"
#include "TrackInfo.h"

#include <cstdint>

namespace tunedex {

struct Id3v2Location {
    bool present = false;
    // Where the search for an audio frame begins, counted from 1: 1 without a tag, else 10 + the tag's
    // declared size.
    std::uint64_t searchPosition = 1;
};

// A file that cannot be read has no tag. Version, revision and flags of the tag are not looked at.
Id3v2Location DetectId3v2(ByteSource& file);

// Takes title, artist, album, year and genre from the tag's frames, over what the track holds; what has no
// frame stays. Text encodings are not decoded: every byte is a Windows-1252 character, NULs are dropped. A
// frame that cannot be read ends the reading silently. With `longTexts` a text of kLongTextBytes or more is
// shared there and goes into the track's LongFields.
void ReadId3v2(ByteSource& file, const Id3v2Location& location, bool moveTheArtists, TrackInfo& track,
               LongTextPool* longTexts = nullptr);

} // namespace tunedex
