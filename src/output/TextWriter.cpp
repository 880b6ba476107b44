#include "TextWriter.h"

#include "Text.h"
#include "TextFile.h"

namespace tunedex {

namespace {

// Builds one track's line. Returns false when the user aborted.
bool BuildLine(std::string& line, const Listing& listing, std::size_t position) {
    const TrackRow& track = listing.tracks.At(position);
    const CellContext cells = listing.Cells();
    line.clear();
    for (const Column& column : listing.columns) {
        if (column.key != ColumnKey::Unknown) {
            AppendCellText(line, column.key, track, position, cells);
            line += '\t';
        }
        if (listing.monitor.AbortRequested()) {
            return false;
        }
    }
    DropLast(line);
    return true;
}

} // namespace

bool WriteTextListing(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    if (!EndsInIgnoringCase(path, ".TXT")) {
        path += ".txt";
    }
    TextFile file(path, TextEncoding::Windows1252Questions);
    std::string line;
    for (const Column& column : listing.columns) {
        line += HeaderText(column) + '\t';
    }
    DropLast(line);
    file.WriteLine(line);
    bool aborted = false;
    for (std::size_t position = 1; position <= listing.tracks.Count() && !aborted; ++position) {
        if (BuildLine(line, listing, position)) {
            file.WriteLine(line);
            listing.monitor.SetPosition(static_cast<std::int32_t>(position));
        } else {
            aborted = true;
        }
    }
    file.Close();
    return aborted;
}

} // namespace tunedex
