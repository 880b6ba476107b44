#include "CsvWriter.h"

#include "ListingFile.h"
#include "Numbers.h"
#include "PageBuffer.h"
#include "RunTimeError.h"
#include "Text.h"

#include <cstdint>

namespace tunedex {

namespace {

constexpr std::string_view kCsvLineEnd = "\r\n";

// Stands in for a page to find out whether a field needs quotation marks.
class QuoteTest {
  public:
    void Put(std::string_view text) {
        needed_ = needed_ || text.find_first_of(",\"\r\n") != std::string_view::npos;
    }
    static void PutNumber(std::int64_t /*value*/) {}
    bool Needed() const { return needed_; }

  private:
    bool needed_ = false;
};

// Passes text on to a page with each quotation mark doubled.
class DoubledQuotes {
  public:
    explicit DoubledQuotes(PageBuffer& page) : page_(page) {}

    void Put(std::string_view text) {
        for (std::size_t hit = text.find('"'); hit != std::string_view::npos; hit = text.find('"')) {
            page_.Put(text.substr(0, hit + 1));
            page_.Put("\"");
            text.remove_prefix(hit + 1);
        }
        page_.Put(text);
    }
    void PutNumber(std::int64_t value) { page_.PutNumber(value); }

  private:
    PageBuffer& page_;
};

// `putText` puts the text of the field into the page that it gets. It is called twice, so that a long text
// need not be copied to be examined.
template <class PutText> void PutField(PageBuffer& page, PutText putText) {
    QuoteTest test;
    putText(test);
    if (!test.Needed()) {
        putText(page);
        return;
    }
    page.Put("\"");
    DoubledQuotes doubled(page);
    putText(doubled);
    page.Put("\"");
}

// Always with hours: spreadsheets read "4:05" as hours and minutes.
void PutDuration(PageBuffer& page, const TrackRow& track) {
    if (track.Duration.Empty()) {
        return;
    }
    constexpr std::int64_t kHour = 3600;
    const auto seconds = static_cast<std::int64_t>(track.Seconds);
    page.PutNumber(seconds / kHour);
    page.Put(":");
    page.Put(PadNumber(seconds % kHour / 60, 2));
    page.Put(":");
    page.Put(PadNumber(seconds % 60, 2));
}

void PutTrackField(PageBuffer& page, ColumnKey key, const Listing& listing, std::size_t position) {
    const TrackRow& track = listing.tracks.At(position);
    switch (key) {
    case ColumnKey::Duration:
        PutDuration(page, track);
        return;
    case ColumnKey::FileSize:
        page.PutNumber(static_cast<std::int64_t>(track.FileSize));
        return;
    default:
        PutField(page,
                 [&](auto& field) { PutCellText(field, key, listing.tracks, position, listing.Cells()); });
    }
}

// `putField` puts the field of one column.
template <class PutColumn>
void PutCsvLine(PageBuffer& page, const std::vector<Column>& columns, PutColumn putColumn) {
    std::string_view separator;
    for (const Column& column : columns) {
        page.Put(separator);
        separator = ",";
        putColumn(column);
    }
    page.Put(kCsvLineEnd);
}

void PutCsvHeaders(PageBuffer& page, const Listing& listing) {
    PutCsvLine(page, listing.columns, [&](const Column& column) {
        const std::string header = HeaderText(column);
        PutField(page, [&](auto& field) { field.Put(header); });
    });
}

} // namespace

bool WriteCsvListing(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    path = ListingPath(kCsvOutput, path, ListingStyle::Modern);
    PageBuffer page;
    ListingFile file(page, {path, listing.stream}, TextEncoding::Utf8, listing.monitor);
    if (listing.columns.empty()) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    page.Put(kByteOrderMark);
    PutCsvHeaders(page, listing);
    bool aborted = false;
    for (std::size_t position = 1; position <= listing.tracks.Count() && !aborted; ++position) {
        PutCsvLine(page, listing.columns,
                   [&](const Column& column) { PutTrackField(page, column.key, listing, position); });
        listing.monitor.SetPosition(static_cast<std::int32_t>(position));
        aborted = listing.monitor.AbortRequested();
    }
    const bool closed = file.Close();
    return aborted || !closed;
}

} // namespace tunedex
