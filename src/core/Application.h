// State that lives as long as the program; main owns it and passes it by reference.
#pragma once

#include "Clock.h"
#include "Collation.h"
#include "EntityTable.h"
#include "Locale.h"
#include "Registry.h"
#include "Settings.h"
#include "SettingsFuncs.h"
#include "Statistics.h"

#include <memory>
#include <ostream>
#include <string>

namespace tunedex {

struct Application {
    Clock& clock;
    Registry& registry;
    std::ostream& faults; // receives reports of faulty lines in settings, theme and entity files
    Locale locale = Locale::FromEnvironment();

    Settings settings = {};
    Statistics statistics = {};
    bool statisticsUnread = false; // the file exists but could not be read, so it must not be replaced
    EntityTable entities = {};

    std::string programFolder = {}; // settings file, statistics, log, themes; ends in a separator
    std::string helpFile = {};      // empty when there is none
    bool automaticMode = false;
    std::string errorTitle = "Error!"; // the title of every error message
    unsigned readers = 0;              // number of reader threads; 0: automatic. Not a user setting
    std::shared_ptr<const Collation> collation = std::make_shared<CodeOrder>(); // of modern listings
    int listingStream = -1;      // an open descriptor that listings are written to instead of the output file
    bool pausesAtEnd = true;     // whether a run shows "Operation complete!" for a second
    bool abortRequested = false; // set only by the Abort button, cleared when a run starts
};

// Version, date and time for the header of a file written now.
FileStamp StampNow(const Application& application);

} // namespace tunedex
