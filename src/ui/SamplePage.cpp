#include "SamplePage.h"

#include "ByteSource.h"
#include "ColourScheme.h"
#include "OutputList.h"
#include "PlayTime.h"
#include "SortByAlbum.h"
#include "Sorting.h"
#include "TagText.h"
#include "Text.h"

#include <array>
#include <vector>

namespace tunedex {
namespace {

// A page of a few tracks needs no progress.
class SilentMonitor final : public RunMonitor {
  public:
    void SetStatus(std::string_view) override {}
    void SetCountedStatus(std::string_view, std::int32_t, std::int32_t, std::string_view) override {}
    void SetMaximum(std::int32_t) override {}
    void SetPosition(std::int32_t) override {}
    bool AbortRequested() override { return false; }
};

struct Sample {
    const char* artist;
    const char* album;
    const char* title;
    const char* track;
    const char* year;
    const char* genre;
    const char* bitrate;
    std::int32_t seconds;
    std::int32_t fileSize;
};

// Fictitious. One track has no album and year, to show empty cells.
constexpr std::array kSamples = {
    Sample{"Amber Lantern", "Harbour Lights", "First Ferry Home", "1/9", "1998", "Folk", "192", 221, 5306412},
    Sample{"Amber Lantern", "Harbour Lights", "Salt & Rope", "2/9", "1998", "Folk", "192", 187, 4489021},
    Sample{"The Clockmakers", "Nine Small Hours", "Quarter Past", "4", "2003", "Rock", "128", 245, 3921408},
    Sample{"The Clockmakers", "", "Pendulum (live)", "", "", "Rock", "128", 402, 6433280},
    Sample{"Marisol Ferreira", "Caf\u00E9 Central", "A Pequena Valsa", "3/12", "2001", "Jazz", "256", 312,
           9985123},
    Sample{"North by Night", "Signals", "Long Wave", "7", "2005", "Electronic", "160", 364, 7281664},
};

constexpr const char* kFolder = "/home/music/";

TrackInfo TrackOf(const Sample& sample, bool moveTheArtists) {
    TrackInfo track;
    track.BaseFolder = kFolder;
    track.FullPath = std::string(kFolder) + sample.artist + " - " + sample.title + ".mp3";
    track.FileSize = sample.fileSize;
    track.Artist = sample.artist;
    FinishArtist(track.Artist, moveTheArtists);
    track.Title = sample.title;
    track.Album = sample.album;
    track.Year = sample.year;
    track.Genre = sample.genre;
    track.Bitrate = sample.bitrate;
    track.Frequency = "44100";
    track.Mode = "Joint Stereo";
    track.MpegType = "1.0 III";
    track.Duration = MinutesAndSeconds(sample.seconds);
    track.Seconds = sample.seconds;
    track.TagType = kId3v1Tag;
    track.Track = sample.track;
    track.Disc = *sample.track != '\0' ? "1" : "";
    track.AlbumArtist = track.Artist;
    track.Composer = *sample.album != '\0' ? "Trad." : "";
    track.Comment = *sample.album != '\0' ? "" : "Live recording";
    return track;
}

void SortSamples(TrackTable& tracks, const Settings& settings, const Application& application) {
    SilentMonitor monitor;
    if (settings.Modern) {
        SortByAlbum(tracks, settings.SortOrder, *application.collation, monitor);
    } else if (settings.SortOrder != 0) {
        SortTracks(tracks, settings.SortOrder, monitor);
    }
}

// HTML5 pages have all colours and fonts, whatever FontCSS and ColourCSS say.
Settings InRichText(Settings settings) {
    if (settings.DocumentType == "HTML5") {
        settings.DocumentType = "HTML";
        settings.Colour = OwnColours(settings).colours;
        settings.FontCSS = settings.ColourCSS = true;
        settings.FontHTML = settings.ColourHTML = false;
    }
    return settings;
}

} // namespace

void WriteSampleFile(Settings settings, const Application& application, const EntityTable& entities,
                     const std::string& path) {
    SilentMonitor monitor;
    TrackTable tracks(kSamples.size());
    RunTotals totals;
    for (const Sample& sample : kSamples) {
        tracks.Append(TrackOf(sample, settings.MoveTheArtists));
        totals.TotalBytes += sample.fileSize;
        totals.TotalSeconds += sample.seconds;
    }
    totals.FoundCount = static_cast<std::int32_t>(kSamples.size());
    totals.StoredCount = totals.FoundCount;
    SortSamples(tracks, settings, application);
    settings.OutputFile = path;
    settings.Spanning = 0;
    Listing listing{settings, tracks, totals, entities, application.locale, application.clock, monitor};
    WriteListing(kHtmlOutput, listing);
}

std::string WriteSamplePage(const Settings& settings, const Application& application,
                            const EntityTable& entities, const std::string& folder) {
    const std::string path = folder + "preview.htm";
    WriteSampleFile(InRichText(settings), application, entities, path);
    FileByteSource page(path);
    std::vector<std::uint8_t> bytes(page.Size());
    page.ReadExactly(0, bytes);
    return DecodeWindows1252({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

} // namespace tunedex
