// What holds for the texts of every track that the modern readers fill.
#pragma once

#include "CodePages.h"
#include "Fuzzing.h"
#include "TrackInfo.h"

#include <string>

namespace tunedex::fuzz {

// A page of one byte a character, one of several and UTF-8, by the lowest bits of `choice`.
const CodePage& PageOf(unsigned choice);

// All texts of tags, long ones among them, are valid UTF-8 without NULs and without blanks at the end.
void RequireTexts(const TrackInfo& track);

// Aborts unless the track with its long texts in a pool has the texts of `plain`, which has none there.
void RequireSameTexts(const TrackInfo& pooled, const TrackInfo& plain);

} // namespace tunedex::fuzz
