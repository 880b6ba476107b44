// What a run would write, before it starts.
#pragma once

#include "Settings.h"

#include <cstdint>
#include <string>

namespace tunedex {

struct OutputForecast {
    std::string file;         // the path of the list on one page; empty without an output file
    std::string firstPage;    // the path of the first of several pages; empty for a format without pages
    std::int16_t perPage = 0; // tracks on a page, if there can be several
    bool appendsExtension = false;
    bool modernExtension = false; // appended because only modern lists know the extension that was given
    bool replaces = false;        // `file` or `firstPage` exists
};

// For the settings' output file. Files that cannot be examined count as missing.
OutputForecast ForecastOutput(const Settings& settings);

} // namespace tunedex
