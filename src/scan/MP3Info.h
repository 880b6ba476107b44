// Reads one file into one record: tags, then audio header. Has no side effects on the run; safe on any
// thread.
#pragma once

#include "ByteSource.h"
#include "CodePages.h"
#include "RunTimeError.h"
#include "TrackInfo.h"

#include <cstdint>
#include <optional>

namespace tunedex {

struct ReadOptions {
    bool moveTheArtists = false;
    // The modern readers read, with this code page where a tag names no encoding; null: the classic readers.
    const CodePage* modern = nullptr;
    ReadAhead readAhead = ReadAhead::AsUsual;
    StopTest stop = {}; // polled during files that take many reads, on the reading thread
    // Shares long tag texts; null: each track has its own copies.
    LongTextPool* longTexts = nullptr;
};

struct TrackReading {
    TrackInfo track;
    std::optional<RunTimeError> decodeError; // why no audio header was decoded; the track is kept
    bool stopped = false;                    // the stop test ended the reading; discard the rest
    bool unread = false;    // the file could not be opened or read; it is a track without tags
    bool modernTag = false; // read by the classic readers, but the modern ones would read its texts otherwise
};

// The largest file size a record holds, in bytes; longer files are recorded with it.
inline constexpr std::int32_t kLongestFileSize = 2147483647;

// Reads an open file. `reading.track.FullPath` is an input (it is the artist of a file without tags); all
// other members are reset. Reuses the memory of their texts.
void ReadTrackInfo(ByteSource& file, const ReadOptions& options, TrackReading& reading);

// Opens the file `name` relative to the directory descriptor `folder` and reads it. A file that exists but
// cannot be opened is a track without tags and with a decode error. Raises error 53 if it does not exist or
// is not a regular file, and the error of a failed stat().
void ReadTrackFile(int folder, const char* name, const ReadOptions& options, TrackReading& reading);

} // namespace tunedex
