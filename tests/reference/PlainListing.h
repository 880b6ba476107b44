// A whole listing by plain steps: folders walked with a list of pending paths, every file read at once, the
// table sorted in place, every cell escaped for itself and every character encoded for itself.
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

// What a listing is made of besides the folders.
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
    std::vector<std::string> undecoded; // paths of the files whose headers gave nothing
};

// Folders that can be walked, and files that can be read, only.
Collected Collect(const Settings& settings);

// The files of the listing by their paths, byte for byte. `settings` are a run's own copy.
std::map<std::string, std::string> List(Settings settings, const Collected& collected,
                                        const Surroundings& surroundings);

} // namespace tunedex::plain
