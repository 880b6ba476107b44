// Reference: the Shell sort, on the records themselves.
#pragma once

#include "TrackInfo.h"

#include <cstdint>
#include <vector>

namespace tunedex::plain {

// `tracks` holds the records 1 to N at the indices 0 to N - 1.
void SortTracks(std::vector<TrackInfo>& tracks, std::int16_t sortOrder);

} // namespace tunedex::plain
