// What is known of one MP3 file. Every text is as listings show it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tunedex {

enum TagKind : std::int16_t { kNoTag = 0, kId3v1Tag = 1, kId3v2Tag = 2 };

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

    bool operator==(const TrackInfo&) const = default;

    // Empties everything but FullPath. The texts keep their memory for the next track, unless it is a lot.
    void Clear() {
        for (std::string* text : {&BaseFolder, &Artist, &Title, &Album, &Year, &Genre, &Bitrate, &Frequency,
                                  &Mode, &MpegType, &Duration}) {
            constexpr std::size_t kMostKept = 4096;
            if (text->capacity() > kMostKept) {
                *text = std::string();
            }
            text->clear();
        }
        FileSize = 0;
        TagType = kNoTag;
    }
};

} // namespace tunedex
