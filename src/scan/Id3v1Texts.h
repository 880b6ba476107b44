// Reads an ID3v1 or ID3v1.1 tag in a code page.
#pragma once

#include "ByteSource.h"
#include "TagTexts.h"

#include <cstdint>

namespace tunedex {

// Adds the texts of the tag at `offset` that the track lacks, with the number of the track of ID3v1.1. Raises
// error 62 if the tag is cut off, or that of the failed read.
void ReadId3v1Texts(ByteSource& file, std::uint64_t offset, TagTexts& texts);

} // namespace tunedex
