#include "ModernTags.h"

#include "Apev2.h"
#include "Id3v1Texts.h"
#include "Id3v2Frames.h"
#include "RunTimeError.h"
#include "TagTexts.h"

namespace tunedex {

namespace {

template <typename Read> void ReadWhatCanBeRead(Read&& read) {
    try {
        read();
    } catch (const RunTimeError&) {
        return; // the texts so far are kept
    }
}

TagKind KindOf(const TagLayout& layout) {
    if (layout.id3v2 && IsReadable(*layout.id3v2)) {
        return kId3v2Tag;
    }
    return layout.apev2 ? kApeTag : layout.id3v1 ? kId3v1Tag : kNoTag;
}

} // namespace

TagKind ReadModernTags(ByteSource& file, const TagLayout& layout, const ModernTagOptions& options,
                       TrackInfo& track) {
    TagTexts texts(track, options.codePage, options.moveTheArtists, options.longTexts);
    texts.Clear();
    const TagKind kind = KindOf(layout);
    if (kind == kNoTag) {
        return kind;
    }
    if (kind == kId3v2Tag) {
        ReadWhatCanBeRead([&] { ReadId3v2Frames(file, *layout.id3v2, texts); });
    }
    if (layout.apev2) {
        ReadWhatCanBeRead([&] { ReadApev2(file, *layout.apev2, texts); });
    }
    if (layout.id3v1) {
        ReadId3v1Texts(*layout.id3v1, texts);
    }
    texts.Finish();
    return kind;
}

} // namespace tunedex
