#include "M3uWriter.h"

#include "PageBuffer.h"
#include "RunTimeError.h"
#include "Text.h"
#include "TextFile.h"

namespace tunedex {

namespace {

// Players read a whole playlist in one encoding, and paths must keep their bytes, so a single path that is
// not ASCII makes the file UTF-8.
TextEncoding EncodingFor(const TrackTable& tracks, RunMonitor& monitor) {
    constexpr std::size_t kTracksToAQuestion = 4096;
    for (std::size_t position = 1; position <= tracks.Count(); ++position) {
        if (position % kTracksToAQuestion == 0 && monitor.AbortRequested()) {
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
    TextFile file(path, EncodingFor(listing.tracks, listing.monitor),
                  [&] { return listing.monitor.AbortRequested(); });
    bool aborted = false;
    PageBuffer text;
    text.SetSink(TextFile::kPieceBytes, [&file](std::string_view piece) { file.Write(piece); });
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
    text.HandOver();
    file.Close();
    return aborted || file.Stopped();
}

} // namespace tunedex
