// The bytes are a file, its first one aside: an odd one moves a leading "The".
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
    track.Artist = "as it was";
    TrackInfo expected = track;
    MemoryByteSource source(BytesOf(file));
    const bool found = ReadId3v1(source, moveTheArtists, track);
    Require(found == plain::ReadId3v1(file, moveTheArtists, expected), "a tag is found where there is one");
    RequireEqualTracks(track, expected, "the fields of an ID3v1 tag");
    for (const std::string& text : {track.Artist, track.Title, track.Album, track.Year, track.Genre}) {
        Require(IsValidUtf8(text), "a tag's bytes become characters");
        Require(text.find('\0') == std::string::npos, "no NUL is left in a tag's text");
    }
}

} // namespace tunedex::fuzz
