#include "TextWriter.h"

#include "PageBuffer.h"
#include "RunTimeError.h"
#include "Text.h"
#include "TextFile.h"

#include <algorithm>

namespace tunedex {

namespace {

// Ends a line: its last TAB gives way. A line without a single column cannot be ended.
void EndLine(PageBuffer& text, bool anyColumn) {
    if (!anyColumn) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    text.CutTo(text.Size() - 1);
    text.Put("\r\n");
}

// Asks once for each column whether to stop. Before the line is put and not after each of its texts: a long
// line is in the file in part before it ends, and an aborted one must not be.
bool AbortedInLine(const Listing& listing) {
    return std::any_of(listing.columns.begin(), listing.columns.end(),
                       [&](const Column& /*column*/) { return listing.monitor.AbortRequested(); });
}

void PutLine(PageBuffer& text, const Listing& listing, std::size_t position) {
    const TrackRow& track = listing.tracks.At(position);
    listing.tracks.PrefetchAhead(position, true);
    const CellContext cells = listing.Cells();
    bool anyColumn = false;
    for (const Column& column : listing.columns) {
        if (column.key != ColumnKey::Unknown) {
            PutCellText(text, column.key, track, position, cells);
            text.Put("\t");
            anyColumn = true;
        }
    }
    EndLine(text, anyColumn);
}

} // namespace

bool WriteTextListing(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    path = ListingPath(kTextOutput, path);
    TextFile file(path, TextEncoding::Windows1252Questions, [&] { return listing.monitor.AbortRequested(); });
    PageBuffer text;
    text.SetSink(TextFile::kPieceBytes, [&file](std::string_view piece) { file.Write(piece); });
    for (const Column& column : listing.columns) {
        text.Put(HeaderText(column));
        text.Put("\t");
    }
    EndLine(text, !listing.columns.empty());
    bool aborted = false;
    for (std::size_t position = 1; position <= listing.tracks.Count() && !aborted; ++position) {
        aborted = AbortedInLine(listing);
        if (!aborted) {
            PutLine(text, listing, position);
            listing.monitor.SetPosition(static_cast<std::int32_t>(position));
        }
    }
    text.HandOver();
    file.Close();
    return aborted || file.Stopped();
}

} // namespace tunedex
