// Input: one byte, odd to move a leading "The"; then a file.
#include "Id3v2.h"

#include "PlainReader.h"
#include "Targets.h"
#include "Text.h"
#include "Tracks.h"

namespace tunedex::fuzz {

void RunId3v2(Bytes bytes) {
    Input input(bytes);
    const bool moveTheArtists = (input.Byte() & 1U) != 0;
    const std::string file = input.Rest();
    MemoryByteSource source(BytesOf(file));
    const Id3v2Location location = DetectId3v2(source);
    const std::size_t position = plain::Id3v2SearchPosition(file);
    Require(location.present == (position > 1), "the tag is detected");
    Require(location.searchPosition == position, "the search position of the audio");
    if (!location.present) {
        return;
    }
    TrackInfo track;
    track.Title = "before";
    TrackInfo expected = track;
    ReadId3v2(source, location, moveTheArtists, track);
    plain::ReadId3v2(file, moveTheArtists, expected);
    RequireEqualTracks(track, expected, "the fields of an ID3v2 tag");
    for (const std::string& text : {track.Artist, track.Title, track.Album, track.Year, track.Genre}) {
        Require(IsValidUtf8(text), "texts are valid UTF-8");
        Require(text.find('\0') == std::string::npos, "texts contain no NUL");
    }
}

} // namespace tunedex::fuzz
