// Colours in the settings' form: six hexadecimal digits, RRGGBB, without "#".
#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace tunedex {

bool IsHexDigit(QChar character);

// Exactly six hexadecimal digits, in either case.
bool IsSixDigitColour(const QString& text);

// Parses a hexadecimal number of any length: "FF" is 0000FF, blue. No value for any other text and for
// numbers above FFFFFF.
std::optional<QColor> ColourFromText(const QString& text);

// Six upper-case digits.
QString TextOfColour(const QColor& colour);

} // namespace tunedex
