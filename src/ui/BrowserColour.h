// The colours that browsers show for the colour texts of the settings, also for those that are not six
// hexadecimal digits.
#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace tunedex {

// How a page carries a colour.
enum class ColourUse {
    Attribute,  // bgcolor="#FF8000"
    Both,       // the same, and a rule "color: #FF8000;", which overrides it where browsers accept it
    StyleSheet, // the rule alone
    Html5       // a page of our own, which has its usual colour for a text that is no colour
};

// Parses the attribute value "#" + text as browsers do (HTML Standard, section 2.3.6, "rules for parsing a
// legacy colour value"). They find a colour in every text.
QColor AttributeColour(const QString& text);

// Parses "#" + text as a style sheet does (CSS Color 4, section 5.2): 3, 4, 6 or 8 hexadecimal digits, with 4
// and 8 of them the last are the opacity. No value for other texts, which browsers skip.
std::optional<QColor> StyleSheetColour(const QString& text);

// The colour that a page shows for the text. No value: the page ignores the text.
std::optional<QColor> BrowserColour(const QString& text, ColourUse use);

} // namespace tunedex
