#include "TextWriter.h"

#include "BlankedText.h"
#include "ListingFile.h"
#include "PageBuffer.h"
#include "RunTimeError.h"
#include "Text.h"

#include <algorithm>

namespace tunedex {

namespace {

// The policies: the encoding, what the file begins with, and how fields get into a line.
struct ClassicFields {
    static constexpr TextEncoding kEncoding = TextEncoding::Windows1252Questions;
    static constexpr std::string_view kStart = "";
    static PageBuffer& FieldsOf(PageBuffer& text) { return text; }
};
struct ModernFields {
    static constexpr TextEncoding kEncoding = TextEncoding::Utf8;
    static constexpr std::string_view kStart = kByteOrderMark;
    static BlankedText FieldsOf(PageBuffer& text) { return {text, "\t\r\n"}; }
};

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

template <class Fields> void PutHeaders(PageBuffer& text, const Listing& listing) {
    auto&& fields = Fields::FieldsOf(text);
    // Required: an unknown column has a header here but no field in the lines below.
    for (const Column& column : listing.columns) {
        fields.Put(HeaderText(column));
        text.Put("\t");
    }
    EndLine(text, !listing.columns.empty());
}

template <class Fields> void PutLine(PageBuffer& text, const Listing& listing, std::size_t position) {
    const CellContext cells = listing.Cells();
    auto&& fields = Fields::FieldsOf(text);
    bool anyColumn = false;
    for (const Column& column : listing.columns) {
        if (column.key != ColumnKey::Unknown) {
            PutCellText(fields, column.key, listing.tracks, position, cells);
            text.Put("\t");
            anyColumn = true;
        }
    }
    EndLine(text, anyColumn);
}

template <class Fields> bool WriteLines(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    path = ListingPath(kTextOutput, path, StyleOf(listing.settings));
    PageBuffer text;
    ListingFile file(text, {path, listing.stream}, Fields::kEncoding, listing.monitor);
    text.Put(Fields::kStart);
    PutHeaders<Fields>(text, listing);
    bool aborted = false;
    for (std::size_t position = 1; position <= listing.tracks.Count() && !aborted; ++position) {
        aborted = AbortedInLine(listing);
        if (!aborted) {
            PutLine<Fields>(text, listing, position);
            listing.monitor.SetPosition(static_cast<std::int32_t>(position));
        }
    }
    const bool closed = file.Close();
    return aborted || !closed;
}

} // namespace

bool WriteTextListing(Listing& listing) {
    return WriteLines<ClassicFields>(listing);
}

bool WriteModernTextListing(Listing& listing) {
    return WriteLines<ModernFields>(listing);
}

} // namespace tunedex
