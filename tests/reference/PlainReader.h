// Reference: one file's bytes to one record, byte by byte.
#pragma once

#include "TrackInfo.h"

#include <cstdint>
#include <string>

namespace tunedex::plain {

struct Reading {
    TrackInfo track;
    int error = 0; // number of the error from decoding the audio header; 0: none
};

struct Header {
    int error = 0; // number of the error that ended the search; 0: none, and the rest is set
    std::size_t offset = 0;
    std::string bits; // the 32 bits of the header as "0" and "1"
    bool vbr = false;
    std::uint32_t frames = 0;
};

// `position` counts from 1.
Header FindHeader(const std::string& bytes, std::size_t position);

bool ReadId3v1(const std::string& bytes, bool moveTheArtists, TrackInfo& track);
// 1 without a tag.
std::size_t Id3v2SearchPosition(const std::string& bytes);
void ReadId3v2(const std::string& bytes, bool moveTheArtists, TrackInfo& track);

Reading ReadTrack(const std::string& bytes, const std::string& fullPath, bool moveTheArtists);

} // namespace tunedex::plain
