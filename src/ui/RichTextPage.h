// A listing's page, prepared for Qt's rich text, which knows HTML but not all that a browser does with it.
#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace tunedex {

struct RichTextPage {
    QString styleSheet; // the page's own rules as far as browsers read them, sizes in pixels
    QString html;       // the page without them
    // Whether the page has a style sheet of which browsers read nothing: they take a page in a ".htm" file
    // for HTML, where an XML section swallows the rules in it.
    bool styleSheetIgnored = false;
    // What the body tag and the rules for body and links say of the whole page; rules outdo the tag.
    std::optional<QColor> text;
    std::optional<QColor> background;
    std::optional<QColor> link;
};

RichTextPage PrepareRichText(QString page);

} // namespace tunedex
