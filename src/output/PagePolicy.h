// Where modern pages differ from classic ones.
#pragma once

#include "OutputList.h"
#include "TextFile.h"

#include <string>
#include <string_view>

namespace tunedex {

struct PagePolicy {
    TextEncoding encoding;
    // Around the rules of an XHTML style sheet.
    std::string_view cdataStart;
    std::string_view cdataEnd;
    // Whether the cell of an unknown column is an empty one rather than an unfinished tag.
    bool wholeUnknownCells;
    // The settings as the style sheet shows them.
    Settings (*forStyleSheet)(const Settings& settings);
    // Prepares the listing's columns, fonts and colours to be written into tags and texts.
    void (*forMarkup)(Listing& listing);
    // The "href" values of a track and of a page file.
    std::string (*linkTarget)(const Settings& settings, const TrackRow& track, PathStyle style);
    std::string (*pageReference)(std::string_view fileName);
};

// Settings and links are written as they are.
extern const PagePolicy kClassicPages;
// Every page is valid by its document type, and no text but the window title, the page title and the footer
// can put markup or a script into it.
extern const PagePolicy kModernPages;

} // namespace tunedex
