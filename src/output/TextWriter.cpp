#include "TextWriter.h"

#include "RunTimeError.h"
#include "Text.h"
#include "TextFile.h"

namespace tunedex {

namespace {

// Ends the line that begins at `start`: its last TAB gives way. A line without a single column cannot be
// ended.
void EndLine(std::string& text, std::size_t start) {
    if (text.size() == start) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    text.pop_back();
    text += "\r\n";
}

// Appends one track's line. Returns false, with the text as it was, when the user aborted.
bool AppendLine(std::string& text, const Listing& listing, std::size_t position) {
    const TrackRow& track = listing.tracks.At(position);
    listing.tracks.PrefetchAhead(position, true);
    const CellContext cells = listing.Cells();
    const std::size_t start = text.size();
    for (const Column& column : listing.columns) {
        if (column.key != ColumnKey::Unknown) {
            AppendCellText(text, column.key, track, position, cells);
            text += '\t';
        }
        if (listing.monitor.AbortRequested()) {
            text.resize(start);
            return false;
        }
    }
    EndLine(text, start);
    return true;
}

} // namespace

bool WriteTextListing(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    if (!EndsInIgnoringCase(path, ".TXT")) {
        path += ".txt";
    }
    TextFile file(path, TextEncoding::Windows1252Questions);
    std::string text;
    for (const Column& column : listing.columns) {
        text += HeaderText(column) + '\t';
    }
    EndLine(text, 0);
    bool aborted = false;
    for (std::size_t position = 1; position <= listing.tracks.Count() && !aborted; ++position) {
        if (AppendLine(text, listing, position)) {
            listing.monitor.SetPosition(static_cast<std::int32_t>(position));
        } else {
            aborted = true;
        }
        if (text.size() >= TextFile::kPieceBytes) {
            file.Write(text);
            text.clear();
        }
    }
    file.Write(text);
    file.Close();
    return aborted;
}

} // namespace tunedex
