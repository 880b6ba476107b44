// What is known of one MP3 file. Every text is as listings show it.
#pragma once

#include "LongText.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace tunedex {

enum TagKind : std::int16_t { kNoTag = 0, kId3v1Tag = 1, kId3v2Tag = 2 };

struct TrackInfo;

// A long text of a track's tag, in the place of the text that `field` would hold.
struct LongField {
    std::string TrackInfo::*field;
    LongTextHandle text;

    bool operator==(const LongField&) const = default;
};

struct TrackInfo {
    std::string
        FullPath; // the folder walked, ending in a separator, and the name as the directory returned it
    std::string BaseFolder;    // the start folder it was found under, as the folder setting holds it
    std::int32_t FileSize = 0; // bytes; 2,147,483,647 stands for anything longer
    std::string Artist;
    std::string Title;
    std::string Album;
    std::string Year;
    std::string Genre;
    std::string Bitrate;   // kbit/s, decimal digits
    std::string Frequency; // Hz, decimal digits
    std::string Mode;
    std::string MpegType; // "1.0 III"
    std::string Duration; // minutes:seconds
    std::int16_t TagType = kNoTag;
    // The long texts among Artist, Title, Album, Year and Genre, when they were read into a pool; the members
    // themselves are empty then.
    std::vector<LongField> LongFields = {};

    bool operator==(const TrackInfo&) const = default;

    // Empties everything but FullPath. The texts keep their memory for the next track, unless it is a lot:
    // thousands of records are in flight.
    void Clear() {
        for (std::string* text : {&BaseFolder, &Artist, &Title, &Album, &Year, &Genre, &Bitrate, &Frequency,
                                  &Mode, &MpegType, &Duration}) {
            constexpr std::size_t kMostKept = 512;
            if (text->capacity() > kMostKept) {
                *text = std::string();
            }
            text->clear();
        }
        FileSize = 0;
        TagType = kNoTag;
        LongFields.clear();
    }

    // Sets one of the five fields, or the long text in its place.
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
