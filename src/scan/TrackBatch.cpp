#include "TrackBatch.h"

namespace tunedex {

void ReadQueuedTrack(QueuedTrack& track, const ReadOptions& options) {
    track.failure.reset();
    try {
        const char* const name = track.reading.track.FullPath.c_str() + track.folder->Path().size();
        ReadTrackFile(track.folder->Descriptor(), name, options, track.reading);
    } catch (const RunTimeError& error) {
        track.failure = error;
    }
}

void TrackBatch::Clear() {
    for (QueuedTrack& track : Tracks()) {
        track.folder.reset();
    }
    count = folders = taken = read = 0;
    fault = nullptr;
}

} // namespace tunedex
