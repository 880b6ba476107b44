#include "TranslationFiles.h"

#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace tunedex::test {
namespace {

// The text of an element; lupdate writes control characters as <byte value="xd"/>.
QString ReadText(QXmlStreamReader& xml) {
    QString text;
    while (!xml.atEnd() && xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isCharacters()) {
            text += xml.text();
        } else if (xml.isStartElement()) {
            text += QChar(
                static_cast<char16_t>(xml.attributes().value("value"_L1).sliced(1).toUInt(nullptr, 16)));
            xml.skipCurrentElement();
        }
    }
    return text;
}

void ReadForms(QXmlStreamReader& xml, TranslatedText& text) {
    text.finished = !xml.attributes().hasAttribute("type"_L1);
    if (!text.plural) {
        text.forms << ReadText(xml);
        return;
    }
    while (xml.readNextStartElement()) {
        text.forms << ReadText(xml);
    }
}

TranslatedText ReadMessage(QXmlStreamReader& xml, const QString& context) {
    TranslatedText text;
    text.context = context;
    text.plural = xml.attributes().value("numerus"_L1) == "yes"_L1;
    while (xml.readNextStartElement()) {
        if (xml.name() == "source"_L1) {
            text.source = ReadText(xml);
        } else if (xml.name() == "translation"_L1) {
            ReadForms(xml, text);
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

} // namespace

QString TranslationFolder() {
    return QStringLiteral(TUNEDEX_SOURCE_FOLDER "/data/translations");
}

QList<TranslatedText> ReadTranslations(const QString& language) {
    QFile file(u"%1/tunedex_%2.ts"_s.arg(TranslationFolder(), language));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(file.fileName()));
    }
    QXmlStreamReader xml(&file);
    QList<TranslatedText> texts;
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == "name"_L1) {
            context = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == "message"_L1) {
            texts << ReadMessage(xml, context);
        }
    }
    if (xml.hasError()) {
        qFatal("%s: %s", qPrintable(file.fileName()), qPrintable(xml.errorString()));
    }
    return texts;
}

} // namespace tunedex::test
