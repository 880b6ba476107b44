#include "QtText.h"

#include "Text.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr char16_t kStrayByteBase = 0xDC00;

bool IsStrayByte(QChar character) {
    return character.unicode() >= kStrayByteBase + 0x80 && character.unicode() <= kStrayByteBase + 0xFF;
}

} // namespace

QString ToQt(std::string_view text) {
    QString result;
    result.reserve(static_cast<qsizetype>(text.size()));
    for (std::size_t position = 0; position < text.size();) {
        const TextStep step = StepAt(text, position);
        if (step.stray) {
            const auto byte = static_cast<unsigned char>(text[position]);
            result.append(QChar(static_cast<char16_t>(kStrayByteBase + byte)));
        } else {
            // Not QString::fromUtf8(), which drops a leading U+FEFF as a byte-order mark.
            result.append(QChar::fromUcs4(step.character));
        }
        position += step.length;
    }
    return result;
}

std::string FromQt(const QString& text) {
    std::string result;
    result.reserve(static_cast<std::size_t>(text.size()));
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            AppendUtf8(result, QChar::surrogateToUcs4(character, text[i + 1]));
            ++i;
        } else if (IsStrayByte(character)) {
            result.push_back(static_cast<char>(character.unicode() - kStrayByteBase));
        } else if (character.isSurrogate()) {
            AppendUtf8(result, QChar::ReplacementCharacter);
        } else {
            AppendUtf8(result, character.unicode());
        }
    }
    return result;
}

QString ToQtDisplay(std::string_view text) {
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    const QString result = decoder(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return QString(result).replace(u"\r\n"_s, u"\n"_s);
}

} // namespace tunedex
