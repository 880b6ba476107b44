#include "PagePolicy.h"

#include "HTMLBits.h"
#include "MarkupText.h"
#include "Uri.h"

namespace tunedex {

namespace {

Settings AsTheyAre(const Settings& settings) {
    return settings;
}

void KeepListing(Listing& /*listing*/) {}

std::string FileNameAsItIs(std::string_view fileName) {
    return std::string(fileName);
}

Settings ForStyleSheet(const Settings& settings) {
    Settings css = settings;
    for (FontSetting& font : css.Font) {
        font.face = CssText(font.face);
    }
    for (std::string& colour : css.Colour) {
        colour = CssText(colour);
    }
    return css;
}

void EscapeForMarkup(Listing& listing) {
    for (FontSetting& font : listing.settings.Font) {
        font.face = AttributeText(font.face);
        font.size = AttributeText(font.size);
    }
    for (std::string& colour : listing.settings.Colour) {
        colour = AttributeText(colour);
    }
    for (Column& column : listing.columns) {
        column.name = ElementText(column.name);
    }
    // No document type permits a row without cells.
    if (listing.columns.empty() && !listing.settings.DoLinks) {
        listing.columns.push_back({"", ColumnKey::Unknown});
    }
}

std::string EncodedLinkTarget(const Settings& settings, const TrackRow& track, PathStyle style) {
    return AttributeText(settings.LinkPrefix + PercentEncoded(LinkPath(settings, track, style)));
}

} // namespace

const PagePolicy kClassicPages = {
    .encoding = TextEncoding::Windows1252References,
    .cdataStart = "<![CDATA[",
    .cdataEnd = "]]>",
    .wholeUnknownCells = false,
    .forStyleSheet = AsTheyAre,
    .forMarkup = KeepListing,
    .linkTarget = LinkTarget,
    .pageReference = FileNameAsItIs,
};

const PagePolicy kModernPages = {
    .encoding = TextEncoding::Latin1References,
    .cdataStart = "/*<![CDATA[*/",
    .cdataEnd = "/*]]>*/",
    .wholeUnknownCells = true,
    .forStyleSheet = ForStyleSheet,
    .forMarkup = EscapeForMarkup,
    .linkTarget = EncodedLinkTarget,
    .pageReference = PercentEncoded,
};

} // namespace tunedex
