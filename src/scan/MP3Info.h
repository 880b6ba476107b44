// One file to one record: tags, then audio header. Pure: nothing is shown, counted or remembered here.
#pragma once

#include "ByteSource.h"
#include "RunTimeError.h"
#include "TrackInfo.h"

#include <cstdint>
#include <optional>

namespace tunedex {

struct ReadOptions {
    bool moveTheArtists = false;
    ReadAhead readAhead = ReadAhead::AsUsual;
    StopTest stop = {}; // asked while a file takes many reads; it must be safe on the reading thread
    // Where long texts of tags are shared; none: each track holds its own.
    LongTextPool* longTexts = nullptr;
};

struct TrackReading {
    TrackInfo track;
    std::int64_t seconds = 0;                // whole seconds of playing time
    std::optional<RunTimeError> decodeError; // why the audio header gave nothing; the track is kept
    bool stopped = false;                    // the stop test ended the reading: the rest is not to be used
};

// The longest file size a record holds, in bytes.
inline constexpr std::int32_t kLongestFileSize = 2147483647;

// Reads an open file. The reading comes with its track's FullPath set (it is the artist of a file without
// tags); everything else in it is set anew, in the memory that the texts of an earlier track took.
void ReadTrackInfo(ByteSource& file, const ReadOptions& options, TrackReading& reading);

// Opens the file `name` in the open folder `folder` and does the same. A file that can be measured but not
// opened is a track without tags and with a decode error. Raises the error of a file whose size cannot be
// read: error 53 for what is not there or is a folder.
void ReadTrackFile(int folder, const char* name, const ReadOptions& options, TrackReading& reading);

} // namespace tunedex
