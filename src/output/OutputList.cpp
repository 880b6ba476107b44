#include "OutputList.h"

#include "HtmlWriter.h"
#include "M3uWriter.h"
#include "Text.h"
#include "TextWriter.h"

namespace tunedex {

OutputType OutputTypeOf(std::string_view outputFile) {
    const std::size_t stop = outputFile.rfind('.');
    if (stop == std::string_view::npos) {
        return kHtmlOutput;
    }
    const std::string extension = UpperCase(outputFile.substr(stop));
    if (extension == ".TXT" || extension == ".TEXT") {
        return kTextOutput;
    }
    return extension == ".M3U" ? kPlaylistOutput : kHtmlOutput;
}

std::string ListingPath(int outputType, std::string outputFile) {
    const auto ends = [&](std::string_view extension) { return EndsInIgnoringCase(outputFile, extension); };
    switch (outputType) {
    case kTextOutput:
        // Required: "a.text" selects this writer, but its file is "a.text.txt".
        return ends(".TXT") ? outputFile : outputFile + ".txt";
    case kPlaylistOutput:
        return ends(".M3U") ? outputFile : outputFile + ".m3u";
    default:
        return ends(".HTML") || ends(".HTM") ? outputFile : outputFile + ".htm";
    }
}

bool WriteListing(int outputType, Listing& listing) {
    listing.columns = SplitColumns(MergeColumns(listing.settings.ActiveColumns, listing.settings.Merge));
    switch (outputType) {
    case kTextOutput:
        return WriteTextListing(listing);
    case kPlaylistOutput:
        return WriteM3uListing(listing);
    default:
        return WriteHtmlListing(listing);
    }
}

} // namespace tunedex
