// The texts of a track: for each, the member that readers fill, the member in which the table stores it, and
// how copies of it are found.
#pragma once

#include "TrackInfo.h"
#include "TrackRow.h"

#include <array>
#include <string>

namespace tunedex {

enum class TextSharing {
    None,        // nearly every track has a text of its own
    AllTracks,   // stored once for the whole table
    LatestFirst, // the same, but usually equal to that of the latest track: that is compared first
};

struct StoredText {
    std::string TrackInfo::*read;
    SharedText TrackRow::*stored;
    TextSharing sharing;
};

// FullPath comes first: other texts of a track may be the same text.
inline constexpr std::array kStoredTexts = {
    StoredText{&TrackInfo::FullPath, &TrackRow::FullPath, TextSharing::None},
    StoredText{&TrackInfo::BaseFolder, &TrackRow::BaseFolder, TextSharing::LatestFirst},
    StoredText{&TrackInfo::Artist, &TrackRow::Artist, TextSharing::LatestFirst},
    StoredText{&TrackInfo::Title, &TrackRow::Title, TextSharing::None},
    StoredText{&TrackInfo::Album, &TrackRow::Album, TextSharing::LatestFirst},
    StoredText{&TrackInfo::Year, &TrackRow::Year, TextSharing::LatestFirst},
    StoredText{&TrackInfo::Genre, &TrackRow::Genre, TextSharing::LatestFirst},
    StoredText{&TrackInfo::Bitrate, &TrackRow::Bitrate, TextSharing::LatestFirst},
    StoredText{&TrackInfo::Frequency, &TrackRow::Frequency, TextSharing::LatestFirst},
    StoredText{&TrackInfo::Mode, &TrackRow::Mode, TextSharing::LatestFirst},
    StoredText{&TrackInfo::MpegType, &TrackRow::MpegType, TextSharing::LatestFirst},
    StoredText{&TrackInfo::Duration, &TrackRow::Duration, TextSharing::AllTracks},
};

// The texts that only the modern readers fill. The table stores each once.
struct ExtraText {
    std::string TrackInfo::*read;
    SharedText ExtraTexts::*stored;
};

inline constexpr std::array kExtraTexts = {
    ExtraText{&TrackInfo::Track, &ExtraTexts::Track},
    ExtraText{&TrackInfo::Disc, &ExtraTexts::Disc},
    ExtraText{&TrackInfo::AlbumArtist, &ExtraTexts::AlbumArtist},
    ExtraText{&TrackInfo::Composer, &ExtraTexts::Composer},
    ExtraText{&TrackInfo::Comment, &ExtraTexts::Comment},
};

} // namespace tunedex
