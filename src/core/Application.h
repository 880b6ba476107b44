// What lives as long as the program: owned by main, handed on by reference.
#pragma once

#include "Clock.h"
#include "EntityTable.h"
#include "Locale.h"
#include "Registry.h"
#include "Settings.h"
#include "SettingsFuncs.h"
#include "Statistics.h"

#include <ostream>
#include <string>

namespace tunedex {

struct Application {
    Clock& clock;
    Registry& registry;
    std::ostream& faults; // where faulty lines of settings, theme and entity files are reported
    Locale locale = Locale::FromEnvironment();

    Settings settings = {};
    Statistics statistics = {};
    bool statisticsUnread = false; // the file is there and could not be read: it is left as it is
    EntityTable entities = {};

    std::string programFolder = {}; // settings file, statistics, log, themes; ends in a separator
    std::string helpFile = {};      // empty when there is none
    bool automaticMode = false;
    std::string errorTitle = "Error!"; // the title of every error message
    unsigned readers = 0;        // how many threads read files: see TrackQueue; not a setting of the user's
    bool abortRequested = false; // set by the Abort button alone; cleared by each run
};

// Version, date and time for the head of a file written now.
FileStamp StampNow(const Application& application);

} // namespace tunedex
