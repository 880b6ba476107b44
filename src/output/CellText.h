// The plain text of a track under a column.
#pragma once

#include "Columns.h"
#include "Locale.h"
#include "PageBuffer.h"
#include "Path.h"
#include "TrackTable.h"

#include <cstddef>
#include <cstdint>

namespace tunedex {

// What cells need beside the track.
struct CellContext {
    std::int16_t sizeType;
    const Locale& locale;
    PathStyle pathStyle;
};

// Appends the plain text of track `position` (counted from 1) under `key`; nothing for an unknown one.
void PutCellText(PageBuffer& page, ColumnKey key, const TrackRow& track, std::size_t position,
                 const CellContext& context);

} // namespace tunedex
