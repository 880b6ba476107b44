#include "HtmlWriter.h"

#include "PageBuffer.h"
#include "Placeholders.h"
#include "Product.h"
#include "StyleSheet.h"
#include "Text.h"
#include "TextFile.h"
#include "Version.h"

#include <algorithm>

namespace tunedex {

namespace {

std::string_view LineBreakMarkup(const Settings& settings) {
    return settings.DocumentType == "XHTML" ? "<br />" : "<br>";
}

// Plain rows, or normal and alternate rows in turn.
RowKind NextKind(RowKind kind, bool alternate) {
    if (!alternate) {
        return RowKind::Plain;
    }
    return kind == RowKind::Normal ? RowKind::Alternate : RowKind::Normal;
}

class HtmlPages {
  public:
    explicit HtmlPages(Listing& listing)
        : listing_(listing), settings_(listing.settings), lineBreak_(LineBreakMarkup(listing.settings)),
          files_(PlanPages(listing.settings, listing.tracks.Count())) {}

    bool Write() {
        ExpandTitlePlaceholders(listing_, lineBreak_);
        WriteHeadStart(headStart_, settings_);
        WriteHeadRest(headRest_, settings_);
        WriteTableHead(tableHead_, settings_, listing_.columns);
        WriteTableFoot(tableFoot_, settings_, listing_.columns.size());
        WriteEnd(end_, settings_, settings_.PageFooter, lineBreak_);
        const TrackRowWriter rows(listing_);
        for (std::int32_t number = 1; number <= files_.count; ++number) {
            // Required: an abort after the last page counts too.
            if (!WritePage(number, rows) || listing_.monitor.AbortRequested()) {
                return true;
            }
        }
        return false;
    }

  private:
    // Returns false when the user aborted.
    bool WritePage(std::int32_t number, const TrackRowWriter& rows) {
        const bool several = files_.count > 1;
        TextFile file(
            several ? files_.PathOf(number) : settings_.OutputFile, TextEncoding::Windows1252References,
            [this] { return listing_.monitor.AbortRequested(); }, &cleaned_);
        page_.SetSink(TextFile::kPieceBytes, [&file](std::string_view text) { file.Write(text); });
        std::string navigation;
        std::string heading;
        page_.Put(headStart_);
        // Required: the window title is not escaped.
        page_.Put(settings_.WindowTitle);
        if (several) {
            page_.Put(" - Page ");
            page_.PutNumber(number);
            page_.Put(" of ");
            page_.PutNumber(files_.count);
            WriteNavigation(navigation, number, files_, listing_.pathStyle);
        }
        page_.Put(headRest_);
        page_.Put(navigation);
        WritePageHeading(heading, settings_, number, files_.count, lineBreak_);
        page_.Put(heading);
        page_.Put(tableHead_);
        const bool whole = WriteRows(number, rows);
        if (whole) {
            page_.Put(tableFoot_);
            page_.Put(navigation);
            page_.Put(end_);
        }
        page_.HandOver();
        file.Close();
        return whole && !file.Stopped();
    }

    bool WriteRows(std::int32_t number, const TrackRowWriter& rows) {
        std::size_t first = 1;
        std::size_t last = listing_.tracks.Count();
        if (settings_.Spanning > 0) {
            const auto perPage = static_cast<std::size_t>(settings_.Spanning);
            first = static_cast<std::size_t>(number - 1) * perPage + 1;
            last = std::min(last, static_cast<std::size_t>(number) * perPage);
        }
        RowKind kind = RowKind::Plain;
        for (std::size_t position = first; position <= last; ++position) {
            kind = NextKind(kind, settings_.AltRows);
            rows.WriteTrackRow(page_, kind, position);
            if (listing_.monitor.AbortRequested()) {
                return false;
            }
        }
        return true;
    }

    Listing& listing_;
    Settings& settings_;
    std::string_view lineBreak_;
    PageFiles files_;
    // Identical on every page.
    std::string headStart_;
    std::string headRest_;
    std::string tableHead_;
    std::string tableFoot_;
    std::string end_;
    PageBuffer page_;
    CleanedFolders cleaned_;
};

} // namespace

PageFiles PlanPages(const Settings& settings, std::size_t trackCount) {
    PageFiles files;
    if (settings.Spanning <= 0) {
        return files;
    }
    const auto perPage = static_cast<std::size_t>(settings.Spanning);
    const std::size_t stop = settings.OutputFile.rfind('.');
    files.baseName = settings.OutputFile.substr(0, stop);
    files.extension = settings.OutputFile.substr(stop);
    if (perPage <= trackCount) {
        files.count = static_cast<std::int32_t>((trackCount + perPage - 1) / perPage);
    }
    return files;
}

void WriteHeadStart(std::string& page, const Settings& settings) {
    if (settings.DocumentType == "XHTML") {
        page += "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>\r\n"
                "<!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
                "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\">\r\n"
                "<html xmlns=\"http://www.w3.org/1999/xhtml\" xml:lang=\"en\" lang=\"en\">\r\n";
    } else if (settings.DocumentType == "HTML") {
        page += "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
                "\"http://www.w3.org/TR/1999/REC-html401-19991224/loose.dtd\">\r\n"
                "<html>\r\n";
    } else {
        page += "\r\n\r\n"; // Required: two empty lines for an unknown document type.
    }
    page += Indent(1) + "<head>\r\n";
    page += Indent(2) + "<title>";
}

void WriteHeadRest(std::string& page, const Settings& settings) {
    const std::string end = settings.DocumentType == "XHTML" ? " />\r\n" : ">\r\n";
    page += "</title>\r\n";
    // Required: declared as ISO-8859-1, although the bytes are Windows-1252.
    page += Indent(2) + R"(<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1")" + end;
    page += Indent(2) + "<meta name=\"generator\" content=\"Tunedex v" + kVersionText + " by Orvando (" +
            kHomePage + ")\"" + end;
    if (settings.FontCSS || settings.ColourCSS) {
        WriteStyleBlock(page, settings);
    }
    page += Indent(1) + "</head>\r\n";
    page += Indent(1) + "<body bgcolor=\"#" + settings.Colour[kPageBackground] + "\" text=\"#" +
            settings.Colour[kPageText] + "\" link=\"#" + settings.Colour[kLinkText] + "\">\r\n";
}

void WriteEnd(std::string& page, const Settings& settings, std::string_view footer,
              std::string_view lineBreak) {
    const std::string lineEnd = std::string(lineBreak) + "\r\n";
    page += Indent(2) + "<p align=\"center\">\r\n" + Indent(3) + FontOpen(settings, kCellFont, kPageText);
    page += footer;
    page += lineBreak;
    page += lineEnd;
    page += Indent(3) + "<a href=\"" + kHomePage + "\" target=\"_blank\">" + kHomePage + "</a>" +
            FontClose(settings) + lineEnd;
    page += Indent(2) + "</p>\r\n";
    page += Indent(1) + "</body>\r\n";
    page += "</html>\r\n";
}

bool WriteHtmlListing(Listing& listing) {
    std::string& path = listing.settings.OutputFile;
    path = ListingPath(kHtmlOutput, path);
    return HtmlPages(listing).Write();
}

} // namespace tunedex
