#include "OutputList.h"

#include "CsvWriter.h"
#include "Html5Writer.h"
#include "HtmlWriter.h"
#include "M3uWriter.h"
#include "Text.h"
#include "TextWriter.h"

namespace tunedex {

namespace {

bool WritePages(Listing& listing, const PagePolicy& policy) {
    return listing.settings.DocumentType == "HTML5" ? WriteHtml5Listing(listing)
                                                    : WriteHtmlListing(listing, policy);
}

bool WriteClassicListing(int outputType, Listing& listing) {
    switch (outputType) {
    case kTextOutput:
        return WriteTextListing(listing);
    case kPlaylistOutput:
        return WriteM3uListing(listing);
    default:
        return WritePages(listing, kClassicPages);
    }
}

bool WriteModernListing(int outputType, Listing& listing) {
    switch (outputType) {
    case kTextOutput:
        return WriteModernTextListing(listing);
    case kPlaylistOutput:
        return WriteModernM3uListing(listing);
    case kCsvOutput:
        return WriteCsvListing(listing);
    default:
        return WritePages(listing, kModernPages);
    }
}

} // namespace

OutputType OutputTypeOf(std::string_view outputFile, ListingStyle style) {
    const std::size_t stop = outputFile.rfind('.');
    if (stop == std::string_view::npos) {
        return kHtmlOutput;
    }
    const bool modern = style == ListingStyle::Modern;
    const std::string extension = UpperCase(outputFile.substr(stop));
    if (extension == ".TXT" || extension == ".TEXT") {
        return kTextOutput;
    }
    if (extension == ".M3U" || (modern && extension == ".M3U8")) {
        return kPlaylistOutput;
    }
    return modern && extension == ".CSV" ? kCsvOutput : kHtmlOutput;
}

std::string ListingPath(int outputType, std::string outputFile, ListingStyle style) {
    const bool modern = style == ListingStyle::Modern;
    const auto ends = [&](std::string_view extension) { return EndsInIgnoringCase(outputFile, extension); };
    if (outputType == kTextOutput) {
        // Required: "a.text" selects this writer, but its file is "a.text.txt".
        return ends(".TXT") ? outputFile : outputFile + ".txt";
    }
    if (outputType == kPlaylistOutput) {
        return ends(".M3U") || (modern && ends(".M3U8")) ? outputFile : outputFile + ".m3u";
    }
    if (modern && outputType == kCsvOutput) {
        return ends(".CSV") ? outputFile : outputFile + ".csv";
    }
    return ends(".HTML") || ends(".HTM") ? outputFile : outputFile + ".htm";
}

bool WriteListing(int outputType, Listing& listing) {
    const Settings& settings = listing.settings;
    const bool modern = StyleOf(settings) == ListingStyle::Modern;
    const ColumnSet set = modern ? ColumnSet::Modern : ColumnSet::Classic;
    listing.columns = SplitColumns(MergeColumns(settings.ActiveColumns, settings.Merge, set), set);
    return modern ? WriteModernListing(outputType, listing) : WriteClassicListing(outputType, listing);
}

} // namespace tunedex
