#include "Html5Writer.h"

#include "Html5Bodies.h"
#include "Html5Page.h"
#include "Html5Rows.h"
#include "ListingFile.h"
#include "PageFiles.h"
#include "Placeholders.h"
#include "Uri.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

namespace {

class Html5Pages {
  public:
    explicit Html5Pages(Listing& listing)
        : listing_(listing),
          files_(listing.settings.OutputFile, listing.settings.Spanning, listing.tracks.Count()),
          columns_(MeasureHtml5Columns(listing)), page_(listing, files_, columns_), rows_(listing, columns_) {
    }

    bool Write() {
        for (std::int32_t number = 1; number <= files_.Count(); ++number) {
            // As for the other types, an abort after the last page counts too.
            if (!WritePage(number) || listing_.monitor.AbortRequested()) {
                return true;
            }
        }
        return files_.Count() > 1 && !WriteIndex();
    }

  private:
    // The Write functions return false when the user aborted.
    bool WritePage(std::int32_t number) {
        ListingFile file(buffer_, {files_.PathOf(number), listing_.stream}, TextEncoding::Utf8,
                         listing_.monitor, &cleaned_);
        buffer_.Put(page_.Start(number));
        const bool whole = WriteBodies(number);
        if (whole) {
            buffer_.Put(page_.End(number));
        }
        const bool closed = file.Close();
        return whole && closed;
    }

    bool WriteBodies(std::int32_t number) {
        const auto [first, last] = files_.TracksOf(number);
        for (const Html5Body& body : DivideIntoBodies(listing_, first, last)) {
            PutBodyStart(body);
            for (std::size_t position = body.first; position <= body.last; ++position) {
                rows_.PutTrack(buffer_, position);
                if (!Progress("Writing entry for file ", position)) {
                    return false;
                }
            }
        }
        return true;
    }

    void PutBodyStart(const Html5Body& body) {
        buffer_.Put("<tbody");
        if (const std::size_t rows = Html5BodyRows(body); long_ && rows != kHtml5BodyTracks) {
            buffer_.Put(" class=\"n");
            buffer_.PutNumber(static_cast<std::int64_t>(rows));
            buffer_.Put("\"");
        }
        buffer_.Put(">\n");
        if (body.hasHeading) {
            PutHtml5Heading(buffer_, body.heading, page_.HeadingSpan());
        }
    }

    bool WriteIndex() {
        ListingFile file(buffer_, {Html5Page::IndexPath(listing_.settings.OutputFile)}, TextEncoding::Utf8,
                         listing_.monitor, &cleaned_);
        PutPageNames();
        bool whole = true;
        std::string_view separator = "\n";
        for (std::size_t position = 1; whole && position <= listing_.tracks.Count(); ++position) {
            buffer_.Put(separator);
            rows_.PutIndexed(buffer_, position);
            separator = ",\n";
            whole = Progress("Writing index entry for file ", position);
        }
        buffer_.Put("\n]});\n");
        const bool closed = file.Close();
        return whole && closed;
    }

    void PutPageNames() {
        buffer_.Put("tunedexIndex({\"perPage\":");
        buffer_.PutNumber(static_cast<std::int64_t>(files_.TracksOf(1).last));
        std::string_view separator = ",\"pages\":[\"";
        for (std::int32_t number = 1; number <= files_.Count(); ++number) {
            buffer_.Put(separator);
            PutHtml5Text(buffer_, PercentEncoded(files_.LinkTo(number, listing_.pathStyle)), TextPlace::Json);
            separator = "\",\"";
        }
        buffer_.Put("\"],\"rows\":[");
    }

    bool Progress(std::string_view status, std::size_t position) {
        const auto count = static_cast<std::int32_t>(position);
        const auto total = static_cast<std::int32_t>(listing_.tracks.Count());
        listing_.monitor.SetCountedStatus(status, count, total, "...");
        listing_.monitor.SetPosition(count);
        return !listing_.monitor.AbortRequested();
    }

    Listing& listing_;
    const PageFiles files_;
    const std::vector<Html5Column> columns_;
    const Html5Page page_;
    const Html5Rows rows_;
    const bool long_ = IsLongHtml5Page(files_);
    PageBuffer buffer_;
    CleanedFolders cleaned_;
};

} // namespace

bool WriteHtml5Listing(Listing& listing) {
    Settings& settings = listing.settings;
    settings.OutputFile = ListingPath(kHtmlOutput, settings.OutputFile, StyleOf(settings));
    ExpandTitlePlaceholders(listing, "<br>");
    // The standard permits no row without cells.
    if (listing.columns.empty() && !settings.DoLinks) {
        listing.columns.push_back({"", ColumnKey::Unknown});
    }
    return Html5Pages(listing).Write();
}

} // namespace tunedex
