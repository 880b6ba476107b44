#include "TextWriter.h"

#include "PageBuffer.h"
#include "RunTimeError.h"
#include "Text.h"
#include "TextFile.h"

namespace tunedex {

namespace {

// Ends the line that begins at `start`: its last TAB gives way. A line without a single column cannot be
// ended.
void EndLine(PageBuffer& text, std::size_t start) {
    if (text.Size() == start) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    text.CutTo(text.Size() - 1);
    text.Put("\r\n");
}

// Puts one track's line. Returns false, with the text as it was, when the user aborted.
bool PutLine(PageBuffer& text, const Listing& listing, std::size_t position) {
    const TrackRow& track = listing.tracks.At(position);
    listing.tracks.PrefetchAhead(position, true);
    const CellContext cells = listing.Cells();
    const std::size_t start = text.Size();
    for (const Column& column : listing.columns) {
        if (column.key != ColumnKey::Unknown) {
            PutCellText(text, column.key, track, position, cells);
            text.Put("\t");
        }
        if (listing.monitor.AbortRequested()) {
            text.CutTo(start);
            return false;
        }
    }
    EndLine(text, start);
    return true;
}

} // namespace

bool WriteTextListing(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    path = ListingPath(kTextOutput, path);
    TextFile file(path, TextEncoding::Windows1252Questions, [&] { return listing.monitor.AbortRequested(); });
    PageBuffer text;
    for (const Column& column : listing.columns) {
        text.Put(HeaderText(column));
        text.Put("\t");
    }
    EndLine(text, 0);
    bool aborted = false;
    for (std::size_t position = 1; position <= listing.tracks.Count() && !aborted; ++position) {
        if (PutLine(text, listing, position)) {
            listing.monitor.SetPosition(static_cast<std::int32_t>(position));
        } else {
            aborted = true;
        }
        if (text.Size() >= TextFile::kPieceBytes) {
            file.Write(text.View());
            text.Clear();
        }
    }
    file.Write(text.View());
    file.Close();
    return aborted || file.Stopped();
}

} // namespace tunedex
