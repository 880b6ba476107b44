// The record of one MP3 file. Every text is as listings show it.
#pragma once

#include "LongText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tunedex {

enum TagKind : std::int16_t { kNoTag = 0, kId3v1Tag = 1, kId3v2Tag = 2, kApeTag = 3 };

struct TrackInfo;

// A long tag text, in place of the text in the member `field`.
struct LongField {
    std::string TrackInfo::*field;
    LongTextHandle text;

    bool operator==(const LongField&) const = default;
};

struct TrackInfo {
    std::string FullPath;      // folder with a trailing separator + name as the directory returned it
    std::string BaseFolder;    // its start folder, as in the folder setting
    std::int32_t FileSize = 0; // bytes, clamped to 2,147,483,647
    std::string Artist;
    std::string Title;
    std::string Album;
    std::string Year;
    std::string Genre;
    std::string Bitrate;   // kbit/s, decimal digits
    std::string Frequency; // Hz, decimal digits
    std::string Mode;
    std::string MpegType; // version and layer: "1.0 III"
    std::string Duration; // minutes:seconds
    std::int16_t TagType = kNoTag;
    std::int32_t Seconds = 0; // the playing time that Duration shows; meaningless without a Duration
    // The long texts among those of the tag, if read into a pool; their members are then empty.
    std::vector<LongField> LongFields = {};
    // Set by the modern readers only; Track and Disc as tagged: "3", "3/12".
    std::string Track = {};
    std::string Disc = {};
    std::string AlbumArtist = {};
    std::string Composer = {};
    std::string Comment = {};

    bool operator==(const TrackInfo&) const = default;

    // Clears every member except FullPath. Texts keep up to 512 bytes of memory for the next track: thousands
    // of records are in flight.
    void Clear();

    // Set one of the texts of the tag to a long text; clear one.
    void Set(std::string TrackInfo::*field, LongTextHandle text) {
        Unset(field);
        LongFields.push_back({field, std::move(text)});
    }
    void Unset(std::string TrackInfo::*field) {
        (this->*field).clear();
        std::erase_if(LongFields, [field](const LongField& held) { return held.field == field; });
    }
};

} // namespace tunedex
