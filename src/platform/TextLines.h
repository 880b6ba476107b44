// Reads the program's own text files: settings, themes, statistics, entity table, tips.
#pragma once

#include "Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// The decoded lines of a file. Lines end in CR LF, LF or CR; the last may lack its line end. Skips a
// byte-order mark. Raises error 53 for a missing file, 75 where reading is not permitted, 57 when a read
// fails.
std::vector<std::string> ReadTextLines(const std::string& path,
                                       StrayBytes strayBytes = StrayBytes::AsTheyAre);

// The same for bytes in memory.
std::vector<std::string> SplitTextLines(std::string_view bytes,
                                        StrayBytes strayBytes = StrayBytes::AsTheyAre);

} // namespace tunedex
