#include "MP3Info.h"

#include "AudioStream.h"
#include "Id3v1.h"
#include "Id3v2.h"
#include "ModernTags.h"
#include "MpegHeader.h"
#include "Uninterrupted.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <sys/stat.h>

namespace tunedex {

namespace {

std::int32_t HeldSize(std::uint64_t size) {
    return static_cast<std::int32_t>(std::min<std::uint64_t>(size, kLongestFileSize));
}

void StartAnew(TrackReading& reading) {
    reading.track.Clear();
    reading.decodeError.reset();
    reading.stopped = false;
    reading.unread = false;
    reading.modernTag = false;
}

// Why no audio header was decoded.
void SetError(TrackReading& reading, const RunTimeError& error) {
    reading.decodeError = error;
    reading.unread = !error.Is(ErrorNumber::InputPastEnd) && !error.Is(ErrorNumber::DivisionByZero) &&
                     !error.Is(ErrorNumber::Overflow);
}

void MarkUntagged(TrackInfo& track) {
    track.Artist = track.FullPath;
    track.Title = "No ID3 Tags!";
    track.TagType = kNoTag;
}

std::int32_t MeasureFile(int folder, const char* name) {
    struct stat status {};
    if (Uninterrupted([&] { return fstatat(folder, name, &status, 0); }) != 0) {
        throw ErrorFromErrno(errno, FileTask::ReadFile);
    }
    if (!S_ISREG(status.st_mode)) {
        throw RunTimeError(ErrorNumber::FileNotFound);
    }
    return HeldSize(static_cast<std::uint64_t>(status.st_size));
}

void ReadClassic(ByteSource& file, const ReadOptions& options, TrackReading& reading) {
    TrackInfo& track = reading.track;
    const Id3v2Location id3v2 = DetectId3v2(file);
    const bool id3v1 = ReadId3v1(file, options.moveTheArtists, track);
    if (id3v2.present) {
        const bool otherEncoding = ReadId3v2(file, id3v2, options.moveTheArtists, track, options.longTexts);
        reading.modernTag = id3v2.otherLayout || otherEncoding;
        track.TagType = kId3v2Tag;
    } else if (id3v1) {
        track.TagType = kId3v1Tag;
    } else {
        MarkUntagged(track);
    }
    try {
        DecodeMpegHeader(file, id3v2.searchPosition, track);
    } catch (const RunTimeError& error) {
        SetError(reading, error);
    }
}

void ReadModern(ByteSource& file, const ReadOptions& options, TrackReading& reading) {
    TrackInfo& track = reading.track;
    const TagLayout layout = FindTags(file);
    track.TagType =
        ReadModernTags(file, layout, {*options.modern, options.moveTheArtists, options.longTexts}, track);
    if (track.TagType == kNoTag) {
        MarkUntagged(track);
    }
    try {
        ReadAudioStream(file, layout, track);
    } catch (const RunTimeError& error) {
        SetError(reading, error);
    }
}

} // namespace

void ReadTrackInfo(ByteSource& file, const ReadOptions& options, TrackReading& reading) {
    StartAnew(reading);
    reading.track.FileSize = HeldSize(file.Size());
    options.modern != nullptr ? ReadModern(file, options, reading) : ReadClassic(file, options, reading);
}

void ReadTrackFile(int folder, const char* name, const ReadOptions& options, TrackReading& reading) {
    std::optional<FileByteSource> file;
    try {
        file.emplace(folder, name, options.readAhead, &options.stop);
    } catch (const RunTimeError& error) {
        StartAnew(reading);
        reading.track.FileSize = MeasureFile(folder, name);
        MarkUntagged(reading.track);
        SetError(reading, error);
        return;
    }
    ReadTrackInfo(*file, options, reading);
    reading.stopped = file->Stopped();
}

} // namespace tunedex
