#include "M3uWriter.h"

#include "Numbers.h"
#include "RunTimeError.h"
#include "Text.h"
#include "TextFile.h"

namespace tunedex {

namespace {

// Players take a playlist to be in one encoding throughout, and a path must reach them byte for byte: once a
// path is not ASCII, the whole file is UTF-8.
TextEncoding EncodingFor(const TrackTable& tracks) {
    for (std::size_t position = 1; position <= tracks.Count(); ++position) {
        if (!IsAscii(tracks.At(position).FullPath)) {
            return TextEncoding::Utf8;
        }
    }
    return TextEncoding::Windows1252Questions;
}

} // namespace

double SecondsOf(std::string_view duration) {
    const std::size_t colon = duration.find(':');
    if (colon == std::string_view::npos) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    return LeadingNumber(duration.substr(0, colon)) * 60 + LeadingNumber(duration.substr(colon + 1));
}

bool WriteM3uListing(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    if (!EndsInIgnoringCase(path, ".M3U")) {
        path += ".m3u";
    }
    TextFile file(path, EncodingFor(listing.tracks));
    file.WriteLine("#EXTM3U");
    bool aborted = false;
    std::string line;
    for (std::size_t position = 1; position <= listing.tracks.Count() && !aborted; ++position) {
        const TrackRow& track = listing.tracks.At(position);
        line = "#EXTINF:";
        line += std::to_string(static_cast<std::int64_t>(SecondsOf(track.Duration)));
        line += ',';
        line += track.Artist.View();
        line += ": ";
        line += track.Title.View();
        file.WriteLine(line);
        file.WriteRaw(track.FullPath);
        file.WriteRaw("\r\n");
        listing.monitor.SetPosition(static_cast<std::int32_t>(position));
        aborted = listing.monitor.AbortRequested();
    }
    file.Close();
    return aborted;
}

} // namespace tunedex
