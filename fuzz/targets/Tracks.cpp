#include "Tracks.h"

#include "Fuzzing.h"

namespace tunedex::fuzz {

namespace {

std::string Shown(const TrackInfo& track) {
    std::string text;
    for (const std::string& field :
         {track.FullPath, track.BaseFolder, std::to_string(track.FileSize), track.Artist, track.Title,
          track.Album, track.Year, track.Genre, track.Bitrate, track.Frequency, track.Mode, track.MpegType,
          track.Duration, std::to_string(track.TagType), std::to_string(track.Seconds)}) {
        text += "[" + field + "]\n";
    }
    return text;
}

} // namespace

void RequireEqualTracks(const TrackInfo& track, const TrackInfo& expected, const char* what) {
    if (track != expected) {
        RequireEqual(Shown(track), Shown(expected), what);
        Require(false, what);
    }
}

std::tm StoppedClock::LocalTime() const {
    std::tm time{};
    time.tm_year = 126;
    time.tm_mon = 10;
    time.tm_mday = 21;
    time.tm_hour = 14;
    time.tm_min = 5;
    return time;
}

} // namespace tunedex::fuzz
