// Reads an ID3v1 or ID3v1.1 tag in a code page.
#pragma once

#include "TagLayout.h"
#include "TagTexts.h"

namespace tunedex {

// Adds the texts of the tag that the track lacks, with the number of the track of ID3v1.1.
void ReadId3v1Texts(const Id3v1Bytes& bytes, TagTexts& texts);

} // namespace tunedex
