// Reads the ID3v2 tag at the start of a file, as version 2.3 lays frames out.
#pragma once

#include "ByteSource.h"
#include "TrackInfo.h"

#include <cstdint>

namespace tunedex {

struct Id3v2Location {
    bool present = false;
    // Where the search for an audio frame starts, counted from 1: 1 without a tag, else 10 + the tag's
    // declared size. Required: that is the tag's last byte, not the byte after it. Do not 'fix'.
    std::uint64_t searchPosition = 1;
    // Version 2.2 or 2.4, or unsynchronised: laid out otherwise than the reader below takes it to be.
    bool otherLayout = false;
};

// Looks for the tag header; it may have any version, revision and flags. A file that cannot be read has no
// tag.
Id3v2Location DetectId3v2(ByteSource& file);

// Sets title, artist, album, year and genre from the tag's frames; fields without a frame are unchanged.
// Required: text encodings are not decoded; each byte is a Windows-1252 character and NULs are dropped. Do
// not 'fix'. A frame that cannot be read ends the reading without an error. With `longTexts`, texts of
// kLongTextBytes or more are shared there and set as the track's LongFields. Returns whether one of these
// frames names another encoding than ISO-8859-1.
bool ReadId3v2(ByteSource& file, const Id3v2Location& location, bool moveTheArtists, TrackInfo& track,
               LongTextPool* longTexts = nullptr);

} // namespace tunedex
