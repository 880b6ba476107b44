#include "PreviewCaption.h"

#include "BrowserColour.h"
#include "ColourScheme.h"
#include "HexColour.h"
#include "QtText.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace tunedex {
namespace {

struct Caption {
    Q_DECLARE_TR_FUNCTIONS(tunedex::PreviewPane)
};

struct Cell {
    std::size_t text;
    std::size_t background;
};

constexpr std::array kCells = {Cell{kHeaderText, kHeaderBackground}, Cell{kCellText, kCellBackground},
                               Cell{kAlternateText, kAlternateBackground}};

double ContrastIn(const Settings& settings, std::size_t text, std::size_t background) {
    const auto colour = [&](std::size_t index) {
        return FromQt(TextOfColour(AttributeColour(ToQt(settings.Colour.at(index)))));
    };
    return Contrast(colour(text), colour(background));
}

// Whether the page's text colour, which the cell shows in the place of its own, is hard to read, and the
// cell's own would be better.
bool LacksOwnColour(const Settings& settings, const Cell& cell) {
    const double shown = ContrastIn(settings, kPageText, cell.background);
    return shown < kLeastContrast && shown < ContrastIn(settings, cell.text, cell.background);
}

bool NeedsOwnColours(const Settings& settings, const RichTextPage& page) {
    const bool written = settings.ColourHTML || (settings.ColourCSS && !page.styleSheetIgnored);
    const std::size_t cells = settings.AltRows ? kCells.size() : kCells.size() - 1;
    return !written && std::any_of(kCells.begin(), kCells.begin() + cells,
                                   [&](const Cell& cell) { return LacksOwnColour(settings, cell); });
}

// Empty if a browser shows the page as the preview does.
QString Difference(const Settings& settings, const RichTextPage& page) {
    if (settings.DocumentType == "HTML5") {
        return Caption::tr("Preview of colours, fonts and columns. Only a browser shows search, sorting, "
                           "album headings and the colours for the other (dark or light) setting.");
    }
    if (NeedsOwnColours(settings, page)) {
        return page.styleSheetIgnored
                   ? Caption::tr("Some text is hard to read on its background, because browsers ignore the "
                                 "style sheet of XHTML listings. To mend it, tick \u201CUse FONT tags for "
                                 "text colours.\u201D on the page Colours.")
                   : Caption::tr("Some text is hard to read on its background. To mend it, tick \u201CUse "
                                 "CSS for text colours.\u201D or \u201CUse FONT tags for text "
                                 "colours.\u201D on the page Colours.");
    }
    return page.styleSheetIgnored
               ? Caption::tr("Preview: browsers ignore the style sheet of XHTML listings. Tick \u201CUse "
                             "FONT tags\u201D on the pages Fonts and Colours instead.")
               : QString();
}

} // namespace

QString PreviewCaption(const PreviewContent& content, const RichTextPage& page) {
    const QString difference = Difference(content.settings, page);
    if (content.theme.isEmpty()) {
        return difference.isEmpty() ? Caption::tr("Preview with sample tracks") : difference;
    }
    const QString theme =
        Caption::tr("Preview of the theme \u201C%1\u201D, which is not loaded.").arg(content.theme);
    return difference.isEmpty() ? theme : Caption::tr("%1 %2").arg(theme, difference);
}

} // namespace tunedex
