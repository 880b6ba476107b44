// The settings of the program. The members have the names of their keys in settings files.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tunedex {

struct FontSetting {
    std::string face; // a CSS font-family list
    std::string size; // HTML font size "1" to "7", kept as text
    bool bold = false;
    bool italic = false;

    bool operator==(const FontSetting&) const = default;
};

enum FontIndex : std::size_t { kPageFont, kHeaderFont, kCellFont, kFontCount };

enum ColourIndex : std::size_t {
    kPageText,
    kPageBackground,
    kHeaderText,
    kHeaderBackground,
    kCellText,
    kCellBackground,
    kAlternateText,
    kAlternateBackground,
    kLinkText,
    kTableBorder,
    kColourCount
};

// Required: a new record is empty, zero and false throughout, and a settings file is read over it, not over
// the defaults.
struct Settings {
    std::string Directory; // one folder or several: see FolderSetting.h
    std::string OutputFile;
    std::string WindowTitle;
    std::string PageTitle;
    std::string PageFooter;

    bool Recurse = false;
    std::int16_t Spanning = 0;  // files per HTML page; 0 or less puts all on one
    std::int16_t SizeType = 0;  // 0 bytes, 1 kilobytes, 2 megabytes
    std::int16_t SortOrder = 0; // 0 none, 1 ascending, 2 descending
    bool ErrorWarnings = false;
    bool ErrorLog = false;
    bool ConfirmQuit = false;
    std::string DocumentType; // "HTML", "XHTML" or "HTML5"

    bool DoLinks = false;
    std::int16_t LinkType = 0; // 0 normal, 1 UNIX, 2 relative
    std::string LinkPrefix;

    std::string ActiveColumns;   // display names joined by "|", in display order
    std::string InactiveColumns; // the other columns, in the same form
    std::int16_t Merge = 0;      // 0 none, 1 artist and title, 2 artist, album and title
    bool MoveTheArtists = false;

    std::array<FontSetting, kFontCount> Font;
    bool FontCSS = false;
    bool FontHTML = false;

    std::array<std::string, kColourCount> Colour; // six upper-case hexadecimal digits, no "#"
    bool AltRows = false;
    bool ColourCSS = false;
    bool ColourHTML = false;

    std::int16_t TableWidthUnit = 0; // 0 pixels, 1 per cent
    std::int16_t TableWidth = 0;
    std::int16_t TablePadding = 0;
    std::int16_t TableBorder = 0;
    std::int16_t TableSpacing = 0; // required: read from files, never written
    bool GroupByAlbum = false;     // HTML5 pages: a heading row for each album
    bool Modern = false;           // reads, sorts and writes by today's conventions

    std::string TagCodePage; // of ID3v1 and ID3v2 encoding 0, an iconv name; empty: kDefaultCodePage

    bool operator==(const Settings&) const = default;
};

} // namespace tunedex
