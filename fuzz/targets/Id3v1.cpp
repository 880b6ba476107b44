// Input: one byte, odd to move a leading "The"; then a file.
#include "Id3v1.h"

#include "PlainReader.h"
#include "Targets.h"
#include "Text.h"
#include "Tracks.h"

namespace tunedex::fuzz {

void RunId3v1(Bytes bytes) {
    Input input(bytes);
    const bool moveTheArtists = (input.Byte() & 1U) != 0;
    const std::string file = input.Rest();
    TrackInfo track;
    track.Artist = "before";
    TrackInfo expected = track;
    MemoryByteSource source(BytesOf(file));
    const bool found = ReadId3v1(source, moveTheArtists, track);
    Require(found == plain::ReadId3v1(file, moveTheArtists, expected), "the tag is detected");
    RequireEqualTracks(track, expected, "the fields of an ID3v1 tag");
    for (const std::string& text : {track.Artist, track.Title, track.Album, track.Year, track.Genre}) {
        Require(IsValidUtf8(text), "texts are valid UTF-8");
        Require(text.find('\0') == std::string::npos, "texts contain no NUL");
    }
}

} // namespace tunedex::fuzz
