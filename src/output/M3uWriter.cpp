#include "M3uWriter.h"

#include "BlankedText.h"
#include "CodePages.h"
#include "ListingFile.h"
#include "PageBuffer.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Uri.h"

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

// A path that a player reads back from its line as it is. Not so CR and LF, the marks of comments, URI
// fragments, queries and escapes, and bytes whose encoding the player would have to guess.
bool IsPlainPath(std::string_view path) {
    return path.find_first_of("\r\n#?%") == std::string_view::npos && IsValidUtf8(path);
}

// The policies: the encoding of the file, and the two lines of a track.
struct ClassicEntries {
    static TextEncoding EncodingOf(const Listing& listing) {
        return EncodingFor(listing.tracks, listing.monitor);
    }
    static void PutEntry(PageBuffer& text, const TrackRow& track) {
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
    }
};
class ModernEntries {
  public:
    static TextEncoding EncodingOf(const Listing& /*listing*/) { return TextEncoding::Utf8; }
    static void PutEntry(PageBuffer& text, const TrackRow& track) {
        text.Put("#EXTINF:");
        text.PutNumber(track.Duration.Empty() ? -1 : static_cast<std::int64_t>(track.Seconds));
        text.Put(",");
        PutName(text, track.Artist);
        text.Put(" - ");
        PutName(text, track.Title);
        text.Put("\r\n");
        PutPath(text, track.FullPath);
        text.Put("\r\n");
    }

  private:
    static void PutName(PageBuffer& page, std::string_view name) {
        BlankedText line(page, "\r\n");
        if (IsValidUtf8(name)) {
            line.Put(name);
        } else {
            // A file without a tag is named by its path, but a playlist is UTF-8 throughout.
            std::string text;
            AppendDecodedUtf8(text, name);
            line.Put(text);
        }
    }
    static void PutPath(PageBuffer& text, std::string_view path) {
        if (IsPlainPath(path)) {
            text.Put(path);
        } else {
            text.Put(FileUri(std::string(path)));
        }
    }
};

template <class Entries> bool WritePlaylist(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    path = ListingPath(kPlaylistOutput, path, StyleOf(listing.settings));
    bool aborted = false;
    PageBuffer text;
    ListingFile file(text, {path, listing.stream}, Entries::EncodingOf(listing), listing.monitor);
    text.Put("#EXTM3U\r\n");
    for (std::size_t position = 1; position <= listing.tracks.Count() && !aborted; ++position) {
        Entries::PutEntry(text, listing.tracks.At(position));
        listing.monitor.SetPosition(static_cast<std::int32_t>(position));
        aborted = listing.monitor.AbortRequested();
    }
    const bool closed = file.Close();
    return aborted || !closed;
}

} // namespace

bool WriteM3uListing(Listing& listing) {
    return WritePlaylist<ClassicEntries>(listing);
}

bool WriteModernM3uListing(Listing& listing) {
    return WritePlaylist<ModernEntries>(listing);
}

} // namespace tunedex
