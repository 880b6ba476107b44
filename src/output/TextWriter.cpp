#include "TextWriter.h"

#include "ListingFile.h"
#include "PageBuffer.h"
#include "RunTimeError.h"
#include "Text.h"

#include <algorithm>

namespace tunedex {

namespace {

// Replaces the last TAB by the line end. Required: a line without columns raises error 5.
void EndLine(PageBuffer& text, bool anyColumn) {
    if (!anyColumn) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    text.CutTo(text.Size() - 1);
    text.Put("\r\n");
}

// Checks for an abort once per column, all before the line is put: part of a long line may be in the file
// before its end, and an aborted line must not be.
bool AbortedInLine(const Listing& listing) {
    return std::any_of(listing.columns.begin(), listing.columns.end(),
                       [&](const Column& /*column*/) { return listing.monitor.AbortRequested(); });
}

void PutLine(PageBuffer& text, const Listing& listing, std::size_t position) {
    const CellContext cells = listing.Cells();
    bool anyColumn = false;
    for (const Column& column : listing.columns) {
        if (column.key != ColumnKey::Unknown) {
            PutCellText(text, column.key, listing.tracks, position, cells);
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
    PageBuffer text;
    ListingFile file(text, path, TextEncoding::Windows1252Questions, listing.monitor);
    // Required: an unknown column has a header here but no field in the lines below.
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
    const bool closed = file.Close();
    return aborted || !closed;
}

} // namespace tunedex
