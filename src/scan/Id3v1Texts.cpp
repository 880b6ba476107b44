#include "Id3v1Texts.h"

#include "TagGenres.h"

#include <string>
#include <string_view>

namespace tunedex {

namespace {

void Fill(TagTexts& texts, TagField field, std::string_view bytes, TagEncoding encoding) {
    if (texts.Lacks(field)) {
        texts.Add(field, TagValues(bytes.substr(0, bytes.find('\0')), encoding));
    }
}

} // namespace

void ReadId3v1Texts(const Id3v1Bytes& bytes, TagTexts& texts) {
    const std::string_view tag(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    // Offset/width: marker 0/3, title 3/30, artist 33/30, album 63/30, year 93/4, comment 97/30, genre 127/1.
    // ID3v1.1: the comment ends with a NUL and the number of the track.
    Fill(texts, &TrackInfo::Title, tag.substr(3, 30), TagEncoding::CodePage);
    Fill(texts, &TrackInfo::Artist, tag.substr(33, 30), TagEncoding::CodePage);
    Fill(texts, &TrackInfo::Album, tag.substr(63, 30), TagEncoding::CodePage);
    Fill(texts, &TrackInfo::Year, tag.substr(93, 4), TagEncoding::CodePage);
    const bool hasTrack = bytes[125] == 0 && bytes[126] != 0;
    Fill(texts, &TrackInfo::Comment, tag.substr(97, hasTrack ? 28 : 30), TagEncoding::CodePage);
    if (hasTrack) {
        Fill(texts, &TrackInfo::Track, std::to_string(bytes[126]), TagEncoding::Utf8);
    }
    Fill(texts, &TrackInfo::Genre, ExtendedGenreName(bytes[127]), TagEncoding::Utf8);
}

} // namespace tunedex
