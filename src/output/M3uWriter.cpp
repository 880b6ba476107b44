#include "M3uWriter.h"

#include "ListingFile.h"
#include "PageBuffer.h"
#include "RunTimeError.h"
#include "Text.h"

namespace tunedex {

namespace {

// Players read a whole playlist in one encoding, and paths must keep their bytes, so a single path that is
// not ASCII makes the file UTF-8.
TextEncoding EncodingFor(const TrackTable& tracks, RunMonitor& monitor) {
    constexpr std::size_t kTracksPerAbortCheck = 4096;
    for (std::size_t position = 1; position <= tracks.Count(); ++position) {
        if (position % kTracksPerAbortCheck == 0 && monitor.AbortRequested()) {
            break; // the writer stops after its first track
        }
        if (!IsAscii(tracks.At(position).FullPath)) {
            return TextEncoding::Utf8;
        }
    }
    return TextEncoding::Windows1252Questions;
}

} // namespace

bool WriteM3uListing(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    path = ListingPath(kPlaylistOutput, path);
    bool aborted = false;
    PageBuffer text;
    ListingFile file(text, path, EncodingFor(listing.tracks, listing.monitor), listing.monitor);
    text.Put("#EXTM3U\r\n");
    for (std::size_t position = 1; position <= listing.tracks.Count() && !aborted; ++position) {
        const TrackRow& track = listing.tracks.At(position);
        if (track.Duration.Empty()) {
            throw RunTimeError(ErrorNumber::InvalidProcedureCall);
        }
        text.Put("#EXTINF:");
        text.PutNumber(static_cast<std::int64_t>(track.Seconds));
        text.Put(",");
        text.Put(track.Artist);
        text.Put(": ");
        text.Put(track.Title);
        text.Put("\r\n");
        text.Put(track.FullPath);
        text.Put("\r\n");
        listing.monitor.SetPosition(static_cast<std::int32_t>(position));
        aborted = listing.monitor.AbortRequested();
    }
    const bool closed = file.Close();
    return aborted || !closed;
}

} // namespace tunedex
