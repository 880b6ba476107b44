// Reads the items of an APEv2 tag.
#pragma once

#include "ByteSource.h"
#include "TagLayout.h"
#include "TagTexts.h"

namespace tunedex {

// Adds the texts of the tag that the track lacks. Reads nothing outside `items`, and the values of those
// texts only. A broken item ends the reading. Raises the error of a failed read; the texts before it are
// kept.
void ReadApev2(ByteSource& file, const ApeItems& items, TagTexts& texts);

} // namespace tunedex
