// The files in data/translations, as their translators wrote them.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tunedex::test {

struct TranslatedText {
    QString context;
    QString source;
    QStringList forms; // of the translation: one, or one for each plural form
    bool plural = false;
    bool finished = true;
};

// The folder of the files in the checkout.
QString TranslationFolder();

// The texts of a file: ReadTranslations("de"). Aborts the test if the file cannot be read.
QList<TranslatedText> ReadTranslations(const QString& language);

} // namespace tunedex::test
