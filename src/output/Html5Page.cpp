#include "Html5Page.h"

#include "Html5Bodies.h"
#include "Html5ColumnRules.h"
#include "Html5Style.h"
#include "Html5Text.h"
#include "Product.h"
#include "Sha256.h"
#include "ShippedFiles.h"
#include "Text.h"
#include "Uri.h"
#include "Version.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tunedex {

namespace {

std::string_view PagePart(std::string_view name) {
    const auto parts = PageParts();
    return std::find_if(parts.begin(), parts.end(),
                        [&](const ShippedFile& part) { return part.path == name; })
        ->bytes;
}

std::string Source(std::string_view text) {
    return " 'sha256-" + Sha256Base64(text) + "'";
}

std::string Attribute(std::string_view name, std::string_view value) {
    return " " + std::string(name) + "=\"" + Html5Text(value, TextPlace::Attribute) + "\"";
}

// How the script sorts and searches a column.
std::string_view KindOfTexts(const Html5Column& column) {
    switch (column.key) {
    case ColumnKey::Number:
    case ColumnKey::Bitrate:
    case ColumnKey::Frequency:
    case ColumnKey::Year:
    case ColumnKey::Track:
    case ColumnKey::Disc:
        return "number";
    case ColumnKey::FileSize:
        return "size";
    case ColumnKey::Duration:
        return "time";
    default:
        return column.isLink ? "link" : "text";
    }
}

bool BeginsWithArtist(ColumnKey key) {
    return key == ColumnKey::Artist || key == ColumnKey::ArtistTitle || key == ColumnKey::ArtistAlbumTitle;
}

// Which columns a grouped table shows: those that the headings do not.
std::vector<bool> BesideHeadings(const std::vector<Html5Column>& columns, bool headingsNameEveryArtist) {
    std::vector<bool> shown;
    for (const Html5Column& column : columns) {
        const bool repeated =
            column.key == ColumnKey::Album || (headingsNameEveryArtist && column.key == ColumnKey::Artist);
        shown.push_back(!repeated);
    }
    if (std::count(shown.begin(), shown.end(), true) == 0) {
        shown.assign(columns.size(), true);
    }
    return shown;
}

// Writes the rule for the height of bodies that do not have the usual number of rows.
class BodyHeights {
  public:
    void Add(const std::vector<Html5Body>& bodies) {
        for (const Html5Body& body : bodies) {
            used_.at(Html5BodyRows(body)) = true;
        }
    }
    void Write(std::string& style) const {
        for (std::size_t rows = 0; rows < used_.size(); ++rows) {
            if (used_[rows] && rows != kHtml5BodyTracks) {
                const std::string count = std::to_string(rows);
                style.append(".n").append(count).append("{--rows:").append(count).append("}\n");
            }
        }
    }

  private:
    std::array<bool, kHtml5BodyTracks + 2> used_{};
};

} // namespace

Html5Page::Html5Page(const Listing& listing, const PageFiles& files, const std::vector<Html5Column>& columns)
    : listing_(listing), files_(files), columns_(columns), grouped_(listing.settings.GroupByAlbum) {
    WriteHtml5Theme(theme_, listing.settings);
    BodyHeights heights;
    bool everyArtist = true;
    for (std::int32_t page = 1; page <= files.Count(); ++page) {
        const auto [first, last] = files.TracksOf(page);
        const std::vector<Html5Body> bodies = DivideIntoBodies(listing, first, last);
        heights.Add(bodies);
        everyArtist = everyArtist && HeadingsNameEveryArtist(listing, bodies);
    }
    if (IsLongHtml5Page(files)) {
        heights.Write(theme_);
    }
    WriteColumns(everyArtist);
}

void Html5Page::WriteColumns(bool headingsNameEveryArtist) {
    const std::vector<bool> all(columns_.size(), true);
    if (!grouped_) {
        WriteHtml5ColumnRules(theme_, columns_, all, "#tracks", listing_.settings);
        return;
    }
    const std::vector<bool> shown = BesideHeadings(columns_, headingsNameEveryArtist);
    headingSpan_ = static_cast<std::size_t>(std::count(shown.begin(), shown.end(), true));
    WriteHtml5ColumnRules(theme_, columns_, all, "#tracks:not(.grouped)", listing_.settings);
    WriteHtml5ColumnRules(theme_, columns_, shown, "#tracks.grouped", listing_.settings);
}

std::string Html5Page::Policy() const {
    std::string policy = "default-src 'none'; style-src" + Source(theme_) + Source(PagePart("page.css")) +
                         "; script-src" + Source(PagePart("page.js"));
    // Lets that script, and nothing else in the page, load the index. A hash of the index would not do:
    // Chromium does not check the integrity of files without a server.
    policy += files_.Count() > 1 ? " 'strict-dynamic'" : "";
    return policy + "; base-uri 'none'; form-action 'none'";
}

std::string Html5Page::Title(std::int32_t number) const {
    std::string title = listing_.settings.WindowTitle;
    if (TrimBlanks(title).empty()) {
        title = kProductTitle; // a document must have a title
    }
    if (files_.Count() > 1) {
        title += " - Page " + std::to_string(number) + " of " + std::to_string(files_.Count());
    }
    return Html5Text(title);
}

std::string Html5Page::Start(std::int32_t number) const {
    std::string page = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n";
    // Before everything that it applies to.
    page += "<meta http-equiv=\"Content-Security-Policy\"" + Attribute("content", Policy()) + ">\n";
    page += "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
            "<meta name=\"color-scheme\" content=\"light dark\">\n";
    page += "<meta name=\"generator\" content=\"Tunedex v" + std::string(kVersionText) + " by Orvando (" +
            kHomePage + ")\">\n";
    page += "<title>" + Title(number) + "</title>\n";
    page += "<style>" + theme_ + "</style>\n<style>";
    page += PagePart("page.css");
    page += "</style>\n</head>\n<body>\n<header>\n";
    if (!TrimBlanks(listing_.settings.PageTitle).empty()) { // a heading must not be empty
        page += "<h1>" + Html5Markup(listing_.settings.PageTitle) + "</h1>\n";
    }
    if (files_.Count() > 1) {
        page += "<p>Page " + std::to_string(number) + " of " + std::to_string(files_.Count()) + "</p>\n";
    }
    page += "</header>\n" + Navigation(number, "Pages") + "<main>\n" + TableStart(number);
    return page;
}

std::string Html5Page::TableStart(std::int32_t number) const {
    std::string classes = grouped_ ? "grouped" : "";
    if (IsLongHtml5Page(files_)) {
        classes += classes.empty() ? "long" : " long";
    }
    std::string table = "<table id=\"tracks\" aria-label=\"Tracks\"";
    table += classes.empty() ? "" : Attribute("class", classes);
    if (files_.Count() > 1) {
        const std::string index = IndexPath(listing_.settings.OutputFile);
        table += Attribute("data-index", PercentEncoded(FileNameOf(index, listing_.pathStyle)));
        table += Attribute("data-first", std::to_string(files_.TracksOf(number).first));
        table += Attribute("data-total", std::to_string(listing_.tracks.Count()));
    }
    return table + ">\n<thead>\n" + HeaderRow();
}

std::string Html5Page::HeaderRow() const {
    std::string row = "<tr>";
    for (const Html5Column& column : columns_) {
        row += "<th scope=\"col\"" + Attribute("data-kind", KindOfTexts(column));
        row += BeginsWithArtist(column.key) ? " data-artist>" : ">";
        row += Html5Text(column.header);
    }
    return row + "\n";
}

std::string Html5Page::Navigation(std::int32_t number, std::string_view name) const {
    if (files_.Count() == 1) {
        return {};
    }
    const auto link = [&](std::int32_t target, bool exists, std::string_view relation,
                          std::string_view label) {
        if (!exists) {
            return "<span>" + std::string(label) + "</span>\n";
        }
        const std::string file = PercentEncoded(files_.LinkTo(target, listing_.pathStyle));
        return "<a" + Attribute("href", file) + Attribute("rel", relation) + ">" + std::string(label) +
               "</a>\n";
    };
    std::string navigation = "<nav" + Attribute("aria-label", name) + ">\n";
    navigation += link(number - 1, number > 1, "prev", "&lt;&lt; Previous Page");
    navigation += link(number + 1, number < files_.Count(), "next", "Next Page &gt;&gt;");
    return navigation + "</nav>\n";
}

std::string Html5Page::End(std::int32_t number) const {
    std::string page = "</table>\n</main>\n" + Navigation(number, "Pages, at the end");
    page += "<footer>\n<div>" + Html5Markup(listing_.settings.PageFooter) + "</div>\n<p>Created with " +
            kProductTitle + " v" + kVersionText + " by Orvando<br>\n<a href=\"" + kHomePage +
            R"(" target="_blank" rel="noopener">)" + kHomePage + "</a></p>\n</footer>\n<script>";
    page += PagePart("page.js");
    return page + "</script>\n</body>\n</html>\n";
}

std::string Html5Page::IndexPath(std::string_view outputFile) {
    return std::string(outputFile.substr(0, outputFile.rfind('.'))) + ".search.js";
}

} // namespace tunedex
