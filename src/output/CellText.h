// The plain text of a track in a column.
#pragma once

#include "Columns.h"
#include "Locale.h"
#include "PageBuffer.h"
#include "Path.h"
#include "TrackTable.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tunedex {

// Context of all cells of a listing.
struct CellContext {
    std::int16_t sizeType;
    const Locale& locale;
    PathStyle pathStyle;
};

// The text of a column that shows a stored text, or a part of one, for track `position` (1-based); none where
// the text is made.
std::optional<std::string_view> TrackText(ColumnKey key, const TrackTable& tracks, std::size_t position,
                                          PathStyle pathStyle);

// Appends the text of column `key` for track `position` (1-based); nothing for ColumnKey::Unknown.
void PutCellText(PageBuffer& page, ColumnKey key, const TrackTable& tracks, std::size_t position,
                 const CellContext& context);

} // namespace tunedex
