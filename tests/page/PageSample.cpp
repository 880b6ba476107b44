// page_sample: writes a listing of made tracks, for tests and measurements of pages in a browser.
//
// usage: page_sample SETTINGS-FILE COUNT [plain|hostile|many]
//
// The settings file names the output file; what it lacks has its default. Tracks come in albums of twelve. In
// "plain" there are few artists, of several scripts, and the last track has no tag; in "hostile" every text
// is markup, a script or no UTF-8; in "many" every album has an artist of its own.

#include "DefaultSettings.h"
#include "Numbers.h"
#include "OutputList.h"
#include "PlayTime.h"
#include "SettingsFuncs.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t kAlbumTracks = 12;

constexpr std::array<std::string_view, 10> kArtists = {
    "50% Off",    "Åsa Löfgren", "Björk & Søn", "Édith Beauséjour", "Jürgen Groß", "Quiet Harbour",
    "Zoë (Live)", "Женя Ёлкина", "Ωμέγα",       "花の楽団"};
constexpr std::array<std::string_view, 16> kWords = {
    "Blue",   "Night", "River", "Stone",  "Dance",   "Summer", "Shadow", "Golden",
    "Winter", "Echo",  "Été",   "Straße", "Morning", "Rain",   "Hearts", "I"};

constexpr std::array<std::string_view, 6> kHostile = {
    "<script>alert(1)</script>",
    "\"><img src=x onerror=alert(2)>",
    "</td></table></style></title><script>alert(3)</script>",
    "<!-- & &amp; &lt;b&gt; ]]> <svg onload=alert(4)>",
    "stray \xF3 \x80\xFF, control \x01\x7F, \xEF\xBF\xBF and \xC2\x85",
    "\\u0022]}); alert(5); // \xE2\x80\xA8 ' ` ${alert(6)}"};

class Silent final : public tunedex::RunMonitor {
  public:
    void SetStatus(std::string_view /*text*/) override {}
    void SetCountedStatus(std::string_view /*before*/, std::int32_t /*count*/, std::int32_t /*total*/,
                          std::string_view /*after*/) override {}
    void SetMaximum(std::int32_t /*maximum*/) override {}
    void SetPosition(std::int32_t /*position*/) override {}
    bool AbortRequested() override { return false; }
};

// A sequence that looks random and is the same everywhere.
std::size_t Scattered(std::size_t number) {
    return (number * 2654435761U) >> 7U;
}

std::string Word(std::size_t number) {
    return std::string(kWords.at(Scattered(number) % kWords.size()));
}

std::string ArtistOf(std::size_t album, std::string_view kind) {
    if (kind == "many") {
        return Word(album * 7 + 1) + " " + Word(album * 7 + 2) + " " + std::to_string(album);
    }
    return std::string(kArtists.at(album / 3 % kArtists.size()));
}

tunedex::TrackInfo MakeTrack(std::size_t number, std::string_view kind) {
    const std::size_t album = number / kAlbumTracks;
    tunedex::TrackInfo track;
    track.BaseFolder = "/music/";
    track.Artist = ArtistOf(album, kind);
    track.Album = Word(album * 3 + 1) + " " + Word(album * 3 + 2);
    track.Title = Word(number * 5 + 3) + " " + Word(number * 5 + 4) + " " + std::to_string(number + 1);
    track.Year = std::to_string(1960 + album % 60);
    track.Genre = number % 5 == 0 ? "" : "Rock";
    track.Bitrate = std::to_string(32 * (1 + number % 10));
    track.Frequency = "44100";
    track.Mode = "Stereo";
    track.MpegType = "1.0 III";
    track.TagType = tunedex::kId3v2Tag;
    track.Seconds = static_cast<std::int32_t>(5 + Scattered(number) % 4000);
    track.Duration = tunedex::MinutesAndSeconds(track.Seconds);
    track.FileSize = static_cast<std::int32_t>(20000 + Scattered(number) % 9000000);
    track.FullPath = "/music/" + track.Artist + "/" + track.Album + "/" +
                     tunedex::PadNumber(static_cast<std::int64_t>(number % kAlbumTracks + 1), 2) + ".mp3";
    return track;
}

void MakeHostile(tunedex::TrackInfo& track, std::size_t number) {
    const auto text = [number](std::size_t offset) {
        return std::string(kHostile.at((number + offset) % kHostile.size()));
    };
    track.Artist = text(0);
    track.Album = text(1);
    track.Title = text(2);
    track.Year = text(3);
    track.Genre = text(4);
    track.FullPath = "/music/" + text(5) + ".mp3";
}

void MakeUntagged(tunedex::TrackInfo& track) {
    track.Artist = track.FullPath;
    track.Title = "No ID3 Tags!";
    track.Album = track.Year = track.Genre = "";
    track.TagType = tunedex::kNoTag;
}

int Run(const std::string& settingsFile, std::size_t count, std::string_view kind) {
    using namespace tunedex;
    Settings settings = DefaultSettings();
    LoadSettings(settings, settingsFile, "", DefaultSettings(), std::cerr);
    TrackTable tracks(count);
    RunTotals totals;
    for (std::size_t number = 0; number < count; ++number) {
        TrackInfo track = MakeTrack(number, kind);
        if (kind == "hostile") {
            MakeHostile(track, number);
        } else if (number + 1 == count && count > 1) {
            MakeUntagged(track);
        }
        tracks.Append(track);
        totals.TotalBytes += track.FileSize;
        totals.TotalSeconds += track.Seconds;
    }
    EntityTable entities; // empty: HTML5 pages do not use it
    const Locale locale;
    const SystemClock clock;
    Silent monitor;
    Listing listing{settings, tracks, totals, entities, locale, clock, monitor};
    return WriteListing(kHtmlOutput, listing) ? 1 : 0;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: page_sample SETTINGS-FILE COUNT [plain|hostile|many]\n";
        return 2;
    }
    return Run(argv[1], std::stoul(argv[2]), argc > 3 ? argv[3] : "plain");
}
