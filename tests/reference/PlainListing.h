// Reference: a whole listing in plain steps. Folders are walked with a list of pending paths, each file is
// read at once, the table is sorted in place, each cell is escaped and each character encoded on its own.
#pragma once

#include "Clock.h"
#include "Locale.h"
#include "PlainEntities.h"
#include "RunMonitor.h"
#include "Settings.h"
#include "TrackInfo.h"

#include <map>
#include <string>
#include <vector>

namespace tunedex::plain {

// What a listing depends on besides the folders.
struct Surroundings {
    const Locale& locale;
    const Clock& clock;
    RunMonitor& monitor;
    std::vector<EntitySlot> entities;
};

struct Collected {
    std::vector<TrackInfo> tracks;
    int untagged = 0;
    double totalBytes = 0;
    double totalSeconds = 0;
    std::vector<std::string> undecoded; // paths of files without a decodable audio header
};

// Requires that all folders can be listed and all files read.
Collected Collect(const Settings& settings);

// The files of the listing: path and content. `settings` is the run's copy.
std::map<std::string, std::string> List(Settings settings, const Collected& collected,
                                        const Surroundings& surroundings);

} // namespace tunedex::plain
