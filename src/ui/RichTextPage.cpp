#include "RichTextPage.h"

#include "BrowserColour.h"
#include "HexColour.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

// The CSS size keywords in a browser's default pixels. Qt's rich text does not support all of them.
struct NamedSize {
    QString name;
    QString pixels;
};

// Removes the style element from the page and returns its content.
QString TakeStyleElement(QString& page) {
    static const QRegularExpression element(u"<style[^>]*>(.*?)</style>"_s,
                                            QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = element.match(page);
    if (!match.hasMatch()) {
        return {};
    }
    page.remove(match.capturedStart(), match.capturedLength());
    return match.captured(1);
}

// The rules that browsers apply. The writer writes a rule without properties as "tr }", without its "{". That
// spoils the selector of the next rule, which browsers skip; Qt's parser would skip all later rules.
QString ReadableRules(QString text) {
    if (text.contains(u"<![CDATA["_s)) {
        return {};
    }
    text.remove(u"<!--"_s);
    static const QRegularExpression rule(u"([^{]*)(\\{[^}]*\\})"_s);
    static const QRegularExpression selector(u"^[\\w\\s.,]+$"_s);
    QString rules;
    for (const QRegularExpressionMatch& match : rule.globalMatch(text)) {
        if (selector.match(match.captured(1)).hasMatch()) {
            rules += match.captured(1).trimmed() + u' ' + match.captured(2) + u'\n';
        }
    }
    return rules;
}

QString WithSizesInPixels(QString rules) {
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

// `text` with what each match of `pattern` captures replaced by `replace(captured)`.
template <typename Replace>
QString WithReplacedCaptures(const QString& text, const QRegularExpression& pattern, const Replace& replace) {
    QString result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch& match : pattern.globalMatch(text)) {
        result += QStringView(text).mid(end, match.capturedStart(1) - end);
        result += replace(match.captured(1));
        end = match.capturedEnd(1);
    }
    return result += QStringView(text).mid(end);
}

// Qt's rich text knows six digits only; it prints a warning on standard error for each other colour.
QString WithBrowserColours(const QString& page) {
    static const QRegularExpression colour(
        u" (?:bgcolor|color|text|link)=\"#(?![0-9A-Fa-f]{6}\")([^\"]*)\""_s);
    return WithReplacedCaptures(page, colour,
                                [](const QString& text) { return TextOfColour(AttributeColour(text)); });
}

// Browsers skip a declaration with another colour.
QString WithReadableColours(const QString& rules) {
    static const QRegularExpression declaration(u"([\\w-]+: #(?![0-9A-Fa-f]{6};)[^;{}]*;)"_s);
    return WithReplacedCaptures(rules, declaration, [](const QString& text) {
        const qsizetype sign = text.indexOf(u'#');
        const auto colour = StyleSheetColour(text.mid(sign + 1).chopped(1));
        return colour ? text.left(sign + 1) + TextOfColour(*colour) + u';' : QString();
    });
}

std::optional<QColor> FirstColour(const QString& text, const QRegularExpression& pattern) {
    const QRegularExpressionMatch match = pattern.match(text);
    return match.hasMatch() ? ColourFromText(match.captured(1)) : std::nullopt;
}

// The colour set by the rule, else by the body tag.
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
    const QString styles = TakeStyleElement(page);
    page = WithBrowserColours(page);
    result.styleSheet = WithSizesInPixels(WithReadableColours(ReadableRules(styles)));
    result.styleSheetIgnored = styles.contains(u'{') && result.styleSheet.isEmpty();
    result.text = PageColour(result.styleSheet, u"body \\{color"_s, page, u"text"_s);
    result.background = PageColour(result.styleSheet, u"body \\{[^}]*background-color"_s, page, u"bgcolor"_s);
    result.link = PageColour(result.styleSheet, u"a \\{color"_s, page, u"link"_s);
    result.html = std::move(page);
    return result;
}

} // namespace tunedex
