// Input: one byte for the sort order, then records: artist, album and title, each terminated by a NUL.
#include "Sorting.h"

#include "PlainSort.h"
#include "Targets.h"
#include "Tracks.h"

#include <string>
#include <vector>

namespace tunedex::fuzz {

void RunSorting(Bytes bytes) {
    constexpr std::size_t kMostTracks = 400;
    Input input(bytes);
    const auto sortOrder = static_cast<std::int16_t>(input.Byte() % 4);
    std::vector<TrackInfo> expected;
    while (!input.Empty() && expected.size() < kMostTracks) {
        TrackInfo track;
        track.Artist = input.Until(0);
        track.Album = input.Until(0);
        track.Title = input.Until(0);
        // Makes each record unique, in fields that move and in fields that stay.
        const std::string number = std::to_string(expected.size());
        track.FullPath = "/" + number + ".mp3";
        track.BaseFolder = "/" + number + "/";
        track.FileSize = track.Seconds = static_cast<std::int32_t>(expected.size());
        track.Year = track.Genre = track.Bitrate = track.Frequency = track.Duration = number;
        track.Mode = track.MpegType = number;
        track.TagType = static_cast<std::int16_t>(expected.size() % 3);
        if (expected.size() % 7 == 3) {
            track.Artist = track.FullPath; // as in a file without tags
        }
        expected.push_back(track);
    }
    TrackTable table(expected.size());
    for (const TrackInfo& track : expected) {
        table.Append(track);
    }
    SilentMonitor monitor;
    Require(!SortTracks(table, sortOrder, monitor), "no abort without a request");
    plain::SortTracks(expected, sortOrder);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        RequireEqualTracks(table.Copy(i + 1), expected[i], "the sorted records");
    }
}

} // namespace tunedex::fuzz
