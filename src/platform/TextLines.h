// Reading the program's own text files: settings, themes, statistics, entity table, tips.
#pragma once

#include "Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// Every line of a file, decoded; lines end in CR LF, LF or CR, and the last may lack its end. A byte-order
// mark before the first, as some editors leave it, is no part of it. Raises error 53 when the file is not
// there, 75 when it may not be read, 57 when reading fails.
std::vector<std::string> ReadTextLines(const std::string& path,
                                       StrayBytes strayBytes = StrayBytes::AsTheyAre);

// The same for bytes already in memory.
std::vector<std::string> SplitTextLines(std::string_view bytes,
                                        StrayBytes strayBytes = StrayBytes::AsTheyAre);

} // namespace tunedex
