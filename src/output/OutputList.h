// Entry point of the writers: writes a table of tracks to a listing file.
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

enum OutputType : int { kHtmlOutput = 0, kTextOutput = 1, kPlaylistOutput = 2, kCsvOutput = 3 };

// The conventions of a listing. Classic ones are those of older versions, to the byte.
enum class ListingStyle { Classic, Modern };

inline ListingStyle StyleOf(const Settings& settings) {
    return settings.Modern ? ListingStyle::Modern : ListingStyle::Classic;
}

inline constexpr int kNoStream = -1;

// Input of the writers; every reference must outlive it. `settings` is the run's own copy: writers append the
// extension to `OutputFile`, expand the placeholders in the three titles and escape fonts and colours.
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
    int stream = kNoStream; // an open stream that is written instead of `OutputFile`, which names the format

    CellContext Cells() const { return {settings.SizeType, locale, pathStyle}; }
};

// The listing type by the file's extension, in any case: text for .txt and .text, playlist for .m3u, else
// HTML. In modern style also comma-separated values for .csv and playlist for .m3u8.
OutputType OutputTypeOf(std::string_view outputFile, ListingStyle style);

// The path that the writer for `outputType` writes: `outputFile`, with the writer's extension appended unless
// it has one. The files of several pages have a number before the extension.
std::string ListingPath(int outputType, std::string outputFile, ListingStyle style);

// Merges the columns and runs the writer; an unknown type writes HTML, as does kCsvOutput in classic style.
// The style is that of the settings. Returns true when the user aborted. Raises the error of a file that
// cannot be written, and error 5 for a line that cannot be built; the old file is then kept.
bool WriteListing(int outputType, Listing& listing);

} // namespace tunedex
