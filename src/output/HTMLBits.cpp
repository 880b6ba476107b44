#include "HTMLBits.h"

#include "Product.h"
#include "RunTimeError.h"
#include "Text.h"
#include "Version.h"

namespace tunedex {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

void CheckIndex(std::size_t index, std::size_t count) {
    if (index >= count) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange);
    }
}

bool UsesFontTags(const Settings& settings) {
    return settings.FontHTML || settings.ColourHTML;
}

} // namespace

std::string Indent(int n) {
    return std::string(static_cast<std::size_t>(n), '\t');
}

std::string_view LineBreak(const Settings& settings) {
    return settings.DocumentType == "XHTML" ? "<br />" : "<br>";
}

std::string FontOpen(const Settings& settings, std::size_t fontIndex, std::size_t colourIndex) {
    CheckIndex(fontIndex, settings.Font.size());
    CheckIndex(colourIndex, settings.Colour.size());
    if (!UsesFontTags(settings)) {
        return {};
    }
    std::string tag = "<font ";
    if (settings.FontHTML) {
        const FontSetting& font = settings.Font.at(fontIndex);
        tag += "face=\"" + font.face + "\" size=\"" + font.size + "\" ";
    }
    if (settings.ColourHTML) {
        tag += "color=\"#" + settings.Colour.at(colourIndex) + "\" ";
    }
    tag.back() = '>';
    return tag;
}

std::string FontClose(const Settings& settings) {
    return UsesFontTags(settings) ? "</font>" : "";
}

std::string StrengthOpen(const Settings& settings, std::size_t fontIndex) {
    const FontSetting& font = settings.Font.at(fontIndex);
    std::string tags;
    if (settings.FontHTML && font.bold) {
        tags += "<b>";
    }
    if (settings.FontHTML && font.italic) {
        tags += "<i>";
    }
    return tags;
}

std::string StrengthClose(const Settings& settings, std::size_t fontIndex) {
    const FontSetting& font = settings.Font.at(fontIndex);
    std::string tags;
    if (settings.FontHTML && font.italic) {
        tags += "</i>";
    }
    if (settings.FontHTML && font.bold) {
        tags += "</b>";
    }
    return tags;
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

void WriteHeadRest(std::string& page, const Settings& settings, std::string_view styleBlock) {
    const std::string end = settings.DocumentType == "XHTML" ? " />\r\n" : ">\r\n";
    page += "</title>\r\n";
    // Required: declared as ISO-8859-1, although the bytes are Windows-1252.
    page += Indent(2) + R"(<meta http-equiv="Content-Type" content="text/html; charset=iso-8859-1")" + end;
    page += Indent(2) + "<meta name=\"generator\" content=\"Tunedex v" + kVersionText + " by Orvando (" +
            kHomePage + ")\"" + end;
    page += styleBlock;
    page += Indent(1) + "</head>\r\n";
    page += Indent(1) + "<body bgcolor=\"#" + settings.Colour[kPageBackground] + "\" text=\"#" +
            settings.Colour[kPageText] + "\" link=\"#" + settings.Colour[kLinkText] + "\">\r\n";
}

void WriteNavigation(std::string& page, std::int32_t number, const PageFiles& files, PathStyle style,
                     const PagePolicy& policy) {
    const auto link = [&](std::int32_t target, const std::string& label) {
        return "<a href=\"" + policy.pageReference(files.LinkTo(target, style)) + "\">" + label + "</a>";
    };
    const std::string previous = "&lt;&lt; Previous Page";
    const std::string next = "Next Page &gt;&gt;";
    page += Indent(2) + R"(<p align="center"><font size="2">)";
    page += number == 1 ? previous : link(number - 1, previous);
    page += "&nbsp;&nbsp;&#124;&nbsp;&nbsp;";
    page += number == files.Count() ? next : link(number + 1, next);
    page += "</font></p>";
    page += kLineEnd;
}

void WritePageHeading(std::string& page, const Settings& settings, std::int32_t number, std::int32_t count) {
    // Required: the page title is not escaped; users put markup in it.
    page += Indent(2) + R"(<p align="center">)" + FontOpen(settings, kPageFont, kPageText) +
            StrengthOpen(settings, kPageFont) + settings.PageTitle + StrengthClose(settings, kPageFont) +
            FontClose(settings);
    if (count > 1) {
        page += LineBreak(settings);
        page +=
            R"(<font size="2">Page )" + std::to_string(number) + " of " + std::to_string(count) + "</font>";
    }
    page += "</p>";
    page += kLineEnd;
}

void WriteTableHead(std::string& page, const Settings& settings, const std::vector<Column>& columns) {
    // The border is the background of the inner table, visible through its cell spacing.
    page += Indent(2) + "<table width=\"" + std::to_string(settings.TableWidth) +
            (settings.TableWidthUnit == 1 ? "%" : "") +
            R"(" border="0" cellspacing="0" cellpadding="0" align="center">)" + "\r\n";
    page += Indent(3) + "<tr>\r\n";
    page += Indent(4) + "<td>\r\n";
    page += Indent(5) + R"(<table width="100%" border="0" bgcolor="#)" + settings.Colour[kTableBorder] +
            "\" cellspacing=\"" + std::to_string(settings.TableBorder) + "\" cellpadding=\"" +
            std::to_string(settings.TablePadding) + "\">\r\n";

    const std::string font = FontOpen(settings, kHeaderFont, kHeaderText);
    page += Indent(6) + "<tr bgcolor=\"#" + settings.Colour[kHeaderBackground] + "\">";
    for (const Column& column : columns) {
        page += KindOf(column.key).leftHeader ? R"(<th align="left">)" : "<th>";
        page += font + StrengthOpen(settings, kHeaderFont) + HeaderText(column) +
                StrengthClose(settings, kHeaderFont) + FontClose(settings) + "</th>";
    }
    if (settings.DoLinks) {
        // Required: never bold or italic, unlike the other header cells.
        page += "<th>" + font + "Link" + FontClose(settings) + "</th>";
    }
    page += "</tr>";
    page += kLineEnd;
}

void WriteTableFoot(std::string& page, const Settings& settings, std::size_t columnCount) {
    const std::size_t span = columnCount + (settings.DoLinks ? 1 : 0);
    // Required: never bold or italic, although it has the header's font.
    page += Indent(6) + "<tr bgcolor=\"#" + settings.Colour[kHeaderBackground] + "\"><th colspan=\"" +
            std::to_string(span) + "\">" + FontOpen(settings, kHeaderFont, kHeaderText) + "Created with " +
            kProductTitle + " v" + kVersionText + " by Orvando" + FontClose(settings) + "</th></tr>\r\n";
    page += Indent(5) + "</table>\r\n";
    page += Indent(4) + "</td>\r\n";
    page += Indent(3) + "</tr>\r\n";
    page += Indent(2) + "</table>\r\n";
}

std::string LinkPath(const Settings& settings, const TrackRow& track, PathStyle style) {
    const std::string_view path = track.FullPath;
    std::string target;
    switch (settings.LinkType) {
    case 0:
        target = path;
        break;
    case 1:
        // Required: every colon is removed, not only that of a drive.
        target = "/" + ReplaceAll(path, ":", "");
        break;
    case 2: {
        // Required: the base folder may match anywhere in the path, not only at its start.
        const std::string base = WithSeparator(track.BaseFolder, style);
        const std::size_t found = path.find(base);
        target = found == std::string_view::npos ? path : path.substr(found + base.size());
        break;
    }
    default:
        break;
    }
    if (style.separator != '/') {
        target = ReplaceAll(target, std::string(1, style.separator), "/");
    }
    return target;
}

// Required: classic links are neither escaped nor percent-encoded.
std::string LinkTarget(const Settings& settings, const TrackRow& track, PathStyle style) {
    return settings.LinkPrefix + LinkPath(settings, track, style);
}

TrackRowWriter::TrackRowWriter(const Listing& listing, const PagePolicy& policy)
    : listing_(listing), policy_(policy),
      escaper_(listing.entities), frames_{MakeFrame(false), MakeFrame(true)} {}

TrackRowWriter::RowFrame TrackRowWriter::MakeFrame(bool alternate) const {
    const Settings& settings = listing_.settings;
    const std::size_t textColour = alternate ? kAlternateText : kCellText;
    const std::size_t background = alternate ? kAlternateBackground : kCellBackground;
    const std::string fontOpen =
        FontOpen(settings, kCellFont, textColour) + StrengthOpen(settings, kCellFont);
    const std::string fontClose = StrengthClose(settings, kCellFont) + FontClose(settings);

    const std::string close = fontClose + "</td>";
    const std::string rowEnd = "</tr>\r\n";
    RowFrame frame;
    std::string piece = Indent(6) + "<tr bgcolor=\"#" + settings.Colour.at(background) + "\"";
    // Required: the class depends on FontCSS, although its rule sets colours.
    if (alternate && settings.FontCSS) {
        piece += R"( class="r2")";
    }
    piece += ">";
    for (const Column& column : listing_.columns) {
        // Required: the classic cell of an unknown column is "<td</td>", its start tag unfinished. Do not
        // "fix".
        piece += "<td";
        if (column.key != ColumnKey::Unknown || policy_.wholeUnknownCells) {
            piece += KindOf(column.key).rightCells ? R"( align="right">)" : ">";
            piece += fontOpen;
        }
        frame.pieces.emplace_back(piece);
        piece = close;
    }
    if (settings.DoLinks) {
        piece += R"(<td align="center">)" + fontOpen + "<a href=\"";
        frame.linkClose = "\">Link</a>" + close + rowEnd;
    } else {
        piece += rowEnd;
    }
    frame.pieces.emplace_back(piece);
    return frame;
}

void TrackRowWriter::PutCell(PageBuffer& page, ColumnKey key, std::size_t position) const {
    if (const auto text = TrackText(key, listing_.tracks, position, listing_.pathStyle)) {
        if (text->empty() && KindOf(key).blankForEmpty) {
            page.Put("&nbsp;");
        } else {
            escaper_.PutEscaped(page, *text);
        }
        return;
    }
    const TrackRow& track = listing_.tracks.At(position);
    switch (key) {
    case ColumnKey::ArtistTitle:
    case ColumnKey::ArtistAlbumTitle:
        page.Put("<b>");
        escaper_.PutEscaped(page, track.Artist);
        if (key == ColumnKey::ArtistAlbumTitle && !track.Album.Empty()) {
            page.Put(" (");
            escaper_.PutEscaped(page, track.Album);
            page.Put(")");
        }
        page.Put(":</b> ");
        escaper_.PutEscaped(page, track.Title);
        return;
    default: // Required: number and size are not escaped, nor is the locale's separator in the size.
        PutCellText(page, key, listing_.tracks, position, listing_.Cells());
        return;
    }
}

void TrackRowWriter::WriteTrackRow(PageBuffer& page, bool alternate, std::size_t position) const {
    const RowFrame& frame = frames_.at(alternate ? 1 : 0);
    for (std::size_t i = 0; i < listing_.columns.size(); ++i) {
        page.Put(frame.pieces[i]);
        PutCell(page, listing_.columns[i].key, position);
    }
    page.Put(frame.pieces.back());
    if (listing_.settings.DoLinks) {
        page.Put(policy_.linkTarget(listing_.settings, listing_.tracks.At(position), listing_.pathStyle));
        page.Put(frame.linkClose);
    }
    listing_.monitor.SetCountedStatus("Writing entry for file ", static_cast<std::int32_t>(position),
                                      static_cast<std::int32_t>(listing_.tracks.Count()), "...");
    listing_.monitor.SetPosition(static_cast<std::int32_t>(position));
}

void WriteEnd(std::string& page, const Settings& settings) {
    const std::string_view lineBreak = LineBreak(settings);
    const std::string lineEnd = std::string(lineBreak) + "\r\n";
    page += Indent(2) + "<p align=\"center\">\r\n" + Indent(3) + FontOpen(settings, kCellFont, kPageText);
    page += settings.PageFooter;
    page += lineBreak;
    page += lineEnd;
    page += Indent(3) + "<a href=\"" + kHomePage + "\" target=\"_blank\">" + kHomePage + "</a>" +
            FontClose(settings) + lineEnd;
    page += Indent(2) + "</p>\r\n";
    page += Indent(1) + "</body>\r\n";
    page += "</html>\r\n";
}

} // namespace tunedex
