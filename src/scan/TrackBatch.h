// The unit in which files are queued for reading and their readings delivered.
#pragma once

#include "MP3Info.h"
#include "OpenFolder.h"
#include "ReaderPolicy.h"

#include <array>
#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <span>

namespace tunedex {

// One file in the queue.
struct QueuedTrack {
    std::shared_ptr<OpenFolder> folder;
    TrackReading reading;                // its track's FullPath is set when the file is queued
    std::optional<RunTimeError> failure; // the file's size cannot be read: there is no track
};

// Reads one file into a track whose folder and FullPath are set. Called on several threads.
using TrackReader = std::function<void(QueuedTrack&, const ReadOptions&)>;

void ReadQueuedTrack(QueuedTrack& track, const ReadOptions& options);

// Batches are reused, so that the next files use the memory of their texts.
struct TrackBatch {
    std::span<QueuedTrack> Tracks() { return std::span(tracks).first(count); }
    void Clear();

    std::array<QueuedTrack, ReaderPolicy::kBatchFiles> tracks;
    std::size_t count = 0;
    std::size_t folders = 0; // that the first file of the batch or a later one is the first of

    // Guarded by the mutex of the pool until the batch has been read.
    std::size_t taken = 0;
    std::size_t read = 0;
    std::exception_ptr fault; // an exception that is not a RunTimeError: out of memory
};

} // namespace tunedex
