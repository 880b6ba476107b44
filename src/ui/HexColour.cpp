#include "HexColour.h"

#include <algorithm>

namespace tunedex {

bool IsHexDigit(QChar character) {
    return (character >= u'0' && character <= u'9') || (character >= u'A' && character <= u'F') ||
           (character >= u'a' && character <= u'f');
}

bool IsSixDigitColour(const QString& text) {
    return text.size() == 6 && std::all_of(text.begin(), text.end(), IsHexDigit);
}

std::optional<QColor> ColourFromText(const QString& text) {
    bool fits = false;
    const uint number = text.toUInt(&fits, 16);
    if (!fits || number > 0xFFFFFFU || !std::all_of(text.begin(), text.end(), IsHexDigit)) {
        return std::nullopt;
    }
    return QColor::fromRgb(number);
}

QString TextOfColour(const QColor& colour) {
    const uint number = colour.rgb() & 0xFFFFFFU;
    return QString::number(number, 16).rightJustified(6, u'0').toUpper();
}

} // namespace tunedex
