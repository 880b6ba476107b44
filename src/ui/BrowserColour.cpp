#include "BrowserColour.h"

#include "HexColour.h"

#include <algorithm>
#include <array>

namespace tunedex {
namespace {

constexpr qsizetype kMostCharacters = 128; // of an attribute value, with its "#"
constexpr qsizetype kMostDigits = 8;       // of a component, before the first two are taken
constexpr int kFromOneDigit = 0x11;

bool AreHexDigits(const QString& text) {
    return std::all_of(text.begin(), text.end(), IsHexDigit);
}

int HexNumber(QStringView digits) {
    return digits.toInt(nullptr, 16);
}

// Digits only, at least one for each of the three components, all with the same number of them.
QString LegacyDigits(const QString& text) {
    QString digits;
    for (const QChar character : text.left(kMostCharacters - 1)) {
        digits += IsHexDigit(character) ? character : u'0'; // a surrogate pair becomes two digits
    }
    while (digits.isEmpty() || digits.size() % 3 != 0) {
        digits += u'0';
    }
    return digits;
}

std::array<QString, 3> Components(const QString& digits) {
    const qsizetype size = digits.size() / 3;
    const qsizetype skipped = std::max<qsizetype>(size - kMostDigits, 0);
    return {digits.mid(skipped, size - skipped), digits.mid(size + skipped, size - skipped),
            digits.mid(2 * size + skipped, size - skipped)};
}

void RemoveCommonZeros(std::array<QString, 3>& components) {
    const auto isZero = [](const QString& component) { return component.startsWith(u'0'); };
    while (components[0].size() > 2 && std::all_of(components.begin(), components.end(), isZero)) {
        for (QString& component : components) {
            component.remove(0, 1);
        }
    }
}

QColor ShortColour(const QString& text) {
    const auto component = [&](qsizetype i) {
        return HexNumber(QStringView(text).mid(i, 1)) * kFromOneDigit;
    };
    return QColor(component(0), component(1), component(2), text.size() == 4 ? component(3) : 0xFF);
}

QColor LongColour(const QString& text) {
    const auto component = [&](qsizetype i) { return HexNumber(QStringView(text).mid(i * 2, 2)); };
    return QColor(component(0), component(1), component(2), text.size() == 8 ? component(3) : 0xFF);
}

QString WithoutTrailingBlanks(QString text) {
    constexpr QStringView kBlanks = u" \t\n\f\r"; // ASCII whitespace of HTML
    while (!text.isEmpty() && kBlanks.contains(text.back())) {
        text.chop(1);
    }
    return text;
}

} // namespace

QColor AttributeColour(const QString& text) {
    const QString value = WithoutTrailingBlanks(text);
    if (value.size() == 3 && AreHexDigits(value)) {
        return ShortColour(value);
    }
    std::array<QString, 3> components = Components(LegacyDigits(value));
    RemoveCommonZeros(components);
    return QColor(HexNumber(QStringView(components[0]).left(2)),
                  HexNumber(QStringView(components[1]).left(2)),
                  HexNumber(QStringView(components[2]).left(2)));
}

std::optional<QColor> StyleSheetColour(const QString& text) {
    if (!AreHexDigits(text)) {
        return std::nullopt;
    }
    switch (text.size()) {
    case 3:
    case 4:
        return ShortColour(text);
    case 6:
    case 8:
        return LongColour(text);
    default:
        return std::nullopt;
    }
}

std::optional<QColor> BrowserColour(const QString& text, ColourUse use) {
    const std::optional<QColor> inStyleSheet = StyleSheetColour(text);
    switch (use) {
    case ColourUse::Attribute:
        return AttributeColour(text);
    case ColourUse::Both:
        return inStyleSheet ? *inStyleSheet : AttributeColour(text);
    case ColourUse::Html5: // as OwnColours() reads it
        return text.size() % 3 == 0 ? inStyleSheet : std::nullopt;
    default:
        return inStyleSheet;
    }
}

} // namespace tunedex
