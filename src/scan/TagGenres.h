// Genres as tags write them: numbers, references to numbers, and names.
#pragma once

#include <string_view>
#include <vector>

namespace tunedex {

// The name of genre `number`, with the common extension up to 191; empty from 192 on.
std::string_view ExtendedGenreName(unsigned number);

// The genres of one value of a TCON frame (ID3v2.3 section 4.2.1, ID3v2.4 frames section 4.2.3): a number,
// "RX" (Remix), "CR" (Cover), references such as "(4)" and "(RX)" with or without a text behind them, or a
// text. A number without a name is "Unknown". "(4)Disco" is one genre; "((" in a text stands for "(". The
// genres are valid as long as the value.
std::vector<std::string_view> GenresOf(std::string_view value);

} // namespace tunedex
