#include "PlainSort.h"

#include "Text.h"

#include <utility>

namespace tunedex::plain {

namespace {

int Compare(const TrackInfo& earlier, const TrackInfo& later) {
    const int artists = UpperCase(earlier.Artist).compare(UpperCase(later.Artist));
    if (artists != 0) {
        return artists;
    }
    const int albums = UpperCase(earlier.Album).compare(UpperCase(later.Album));
    return albums != 0 ? albums : UpperCase(earlier.Title).compare(UpperCase(later.Title));
}

void Swap(TrackInfo& a, TrackInfo& b) {
    std::swap(a.FullPath, b.FullPath);
    std::swap(a.FileSize, b.FileSize);
    std::swap(a.Artist, b.Artist);
    std::swap(a.Title, b.Title);
    std::swap(a.Album, b.Album);
    std::swap(a.Year, b.Year);
    std::swap(a.Genre, b.Genre);
    std::swap(a.Bitrate, b.Bitrate);
    std::swap(a.Frequency, b.Frequency);
    std::swap(a.Duration, b.Duration);
    std::swap(a.Seconds, b.Seconds);
}

} // namespace

void SortTracks(std::vector<TrackInfo>& tracks, std::int16_t sortOrder) {
    const int count = static_cast<int>(tracks.size());
    const auto record = [&](int number) -> TrackInfo& {
        return tracks[static_cast<std::size_t>(number - 1)];
    };
    for (int gap = count / 2 + 1; gap > 0; gap /= 2) {
        for (int i = 1; i <= count - gap; ++i) {
            for (int j = i; j >= 1; j -= gap) {
                const int order = Compare(record(j), record(j + gap));
                const bool outOfOrder = (sortOrder == 1 && order > 0) || (sortOrder == 2 && order < 0);
                if (!outOfOrder) {
                    break;
                }
                Swap(record(j), record(j + gap));
            }
        }
    }
}

} // namespace tunedex::plain
