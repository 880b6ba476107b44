#include "HexColour.h"

#include <algorithm>

namespace tunedex {

std::optional<QColor> ColourFromText(const QString& text) {
    const auto isDigit = [](QChar character) {
        return (character >= u'0' && character <= u'9') || (character >= u'A' && character <= u'F') ||
               (character >= u'a' && character <= u'f');
    };
    bool fits = false;
    const uint number = text.toUInt(&fits, 16);
    if (!fits || number > 0xFFFFFFU || !std::all_of(text.begin(), text.end(), isDigit)) {
        return std::nullopt;
    }
    return QColor::fromRgb(number);
}

QString TextOfColour(const QColor& colour) {
    const uint number = colour.rgb() & 0xFFFFFFU;
    return QString::number(number, 16).rightJustified(6, u'0').toUpper();
}

} // namespace tunedex
