// The one way into the writers: a table of tracks becomes a listing on disk.
#pragma once

#include "CellText.h"
#include "Clock.h"
#include "Columns.h"
#include "EntityTable.h"
#include "Locale.h"
#include "RunMonitor.h"
#include "RunTotals.h"
#include "Settings.h"
#include "TrackTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

enum OutputType : int { kHtmlOutput = 0, kTextOutput = 1, kPlaylistOutput = 2 };

// What the writers work on. The settings are the run's own copy: writers append the extension to `OutputFile`
// and expand the three titles in it.
struct Listing {
    Settings& settings;
    const TrackTable& tracks;
    const RunTotals& totals;
    const EntityTable& entities;
    const Locale& locale;
    const Clock& clock;
    RunMonitor& monitor;
    PathStyle pathStyle = PathStyle::Native();
    std::vector<Column> columns = {}; // set by WriteListing

    CellContext Cells() const { return {settings.SizeType, locale, pathStyle}; }
};

// The kind of listing that an output file's name asks for, by what follows its last full stop: HTML unless
// that is TXT, TEXT or M3U in any case.
OutputType OutputTypeOf(std::string_view outputFile);

// The file that the writer for `outputType` makes: the output file's name, with the writer's own extension
// appended where the name ends in none that the writer accepts. Pages of a listing on several pages have a
// number before the extension.
std::string ListingPath(int outputType, std::string outputFile);

// Merges the columns and runs the writer; an unknown type writes HTML. Returns true when the user aborted.
// Raises the error of a file that cannot be written, and 5 where a writer cannot make a line: what was there
// before is then still there.
bool WriteListing(int outputType, Listing& listing);

} // namespace tunedex
