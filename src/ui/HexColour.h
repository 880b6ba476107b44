// Colours as settings hold them: six hexadecimal digits, red first, without "#".
#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace tunedex {

// The text read as a hexadecimal number ("FF" is blue); nothing for any other text and for numbers beyond
// FFFFFF.
std::optional<QColor> ColourFromText(const QString& text);

// Six upper-case digits.
QString TextOfColour(const QColor& colour);

} // namespace tunedex
