// Reads the tags of a file, of every kind, into one track.
#pragma once

#include "ByteSource.h"
#include "CodePages.h"
#include "LongText.h"
#include "TagLayout.h"
#include "TrackInfo.h"

namespace tunedex {

struct ModernTagOptions {
    const CodePage& codePage;          // of ID3v1 and of encoding 0 of ID3v2
    bool moveTheArtists = false;       // "The Beatles" becomes "Beatles, The"
    LongTextPool* longTexts = nullptr; // null: long texts are members of the track
};

// Sets the texts from ID3v2 at the file's start; what it lacks from APEv2; what both lack from ID3v1. A
// title or artist that none has becomes "Unknown Title" or "Unknown Artist". Returns the kind of the first of
// these tags that the file has. Without any, leaves the texts empty and returns kNoTag. A failed read ends
// one tag; what was read before it is kept.
TagKind ReadModernTags(ByteSource& file, const TagLayout& layout, const ModernTagOptions& options,
                       TrackInfo& track);

} // namespace tunedex
