// Converts a page of a listing to Qt's rich text, which supports a subset of HTML and CSS.
#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace tunedex {

struct RichTextPage {
    QString styleSheet; // the rules that browsers apply, with font sizes in pixels
    QString html;       // the page without its style element
    // Whether browsers ignore the page's style sheet: they parse a ".htm" file as HTML, where a CDATA section
    // in the style element makes its rules unreadable.
    bool styleSheetIgnored = false;
    // Colours of the page: from the rules for body and links, else from the body tag.
    std::optional<QColor> text;
    std::optional<QColor> background;
    std::optional<QColor> link;
};

RichTextPage PrepareRichText(QString page);

} // namespace tunedex
