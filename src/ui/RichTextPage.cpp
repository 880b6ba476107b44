#include "RichTextPage.h"

#include "HexColour.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

// The size names of a browser's style sheets in its usual pixels. Qt's rich text knows not all of the names.
struct NamedSize {
    QString name;
    QString pixels;
};

// Takes the style element out of the page and returns its rules.
QString TakeStyleSheet(QString& page) {
    static const QRegularExpression element(u"<style[^>]*>(.*?)</style>"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = element.match(page);
    if (!match.hasMatch()) {
        return {};
    }
    QString rules = match.captured(1);
    page.remove(match.capturedStart(), match.capturedLength());
    // The wrappings that hide the rules from old browsers and XML parsers.
    for (const QString& wrapping : {u"<!--"_s, u"//-->"_s, u"<![CDATA["_s, u"]]>"_s}) {
        rules.remove(wrapping);
    }
    static const std::array<NamedSize, 7> sizes = {{{u"xx-small"_s, u"9px"_s},
                                                    {u"x-small"_s, u"10px"_s},
                                                    {u"small"_s, u"13px"_s},
                                                    {u"medium"_s, u"16px"_s},
                                                    {u"large"_s, u"18px"_s},
                                                    {u"x-large"_s, u"24px"_s},
                                                    {u"xx-large"_s, u"32px"_s}}};
    for (const NamedSize& size : sizes) {
        rules.replace(u"font-size: "_s + size.name + u';', u"font-size: "_s + size.pixels + u';');
    }
    return rules;
}

std::optional<QColor> FirstColour(const QString& text, const QRegularExpression& pattern) {
    const QRegularExpressionMatch match = pattern.match(text);
    return match.hasMatch() ? ColourFromText(match.captured(1)) : std::nullopt;
}

// The colour of the rule where there is one, else of the tag.
std::optional<QColor> PageColour(const QString& rules, const QString& rule, const QString& page,
                                 const QString& attribute) {
    const QRegularExpression inRule(u"(?:^|\\s)"_s + rule + u": #([0-9A-Fa-f]{6});"_s);
    const QRegularExpression inTag(u"<body [^>]*"_s + attribute + u"=\"#([0-9A-Fa-f]{6})\""_s);
    const std::optional<QColor> colour = FirstColour(rules, inRule);
    return colour ? colour : FirstColour(page, inTag);
}

} // namespace

RichTextPage PrepareRichText(QString page) {
    RichTextPage result;
    result.styleSheet = TakeStyleSheet(page);
    result.text = PageColour(result.styleSheet, u"body \\{color"_s, page, u"text"_s);
    result.background = PageColour(result.styleSheet, u"body \\{[^}]*background-color"_s, page, u"bgcolor"_s);
    result.link = PageColour(result.styleSheet, u"a \\{color"_s, page, u"link"_s);
    result.html = std::move(page);
    return result;
}

} // namespace tunedex
