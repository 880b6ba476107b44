#include "Languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

// In the global namespace, as Q_INIT_RESOURCE requires in a static library.
static void RegisterTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace tunedex {
namespace {

constexpr QStringView kTranslationFolder = u":/translations/";
constexpr QStringView kFilePrefix = u"tunedex_";
constexpr QStringView kEnglish = u"en";

bool IsC(const QByteArray& locale) {
    return locale.isEmpty() || locale == "POSIX" || locale == "C" || locale.startsWith("C.");
}

// The locale of messages, in the order of setlocale().
QByteArray MessageLocale() {
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (QByteArray locale = qgetenv(variable); !locale.isEmpty()) {
            return locale;
        }
    }
    return {};
}

// "pt" of "pt-PT", "pt-Latn-BR" and "pt_BR"
QStringView WithoutRegion(QStringView language) {
    const auto* const end = std::find_if(language.begin(), language.end(), [](QChar character) {
        return character == u'-' || character == u'_';
    });
    return language.first(end - language.begin());
}

void Install(QTranslator& translator, const QString& file) {
    if (translator.load(file)) {
        QCoreApplication::installTranslator(&translator);
    }
}

} // namespace

QStringList TranslatedLanguages() {
    RegisterTranslations();
    QStringList languages;
    for (const QString& file :
         QDir(kTranslationFolder.toString()).entryList({u"*.qm"_s}, QDir::Files, QDir::Name)) {
        languages << file.sliced(kFilePrefix.size()).chopped(3); // ".qm"
    }
    return languages;
}

QStringList WantedLanguages() {
    return IsC(MessageLocale()) ? QStringList() : QLocale::system().uiLanguages();
}

QString LanguageFor(const QStringList& wanted) {
    const QStringList languages = TranslatedLanguages();
    for (const QString& name : wanted) {
        const QStringView language = WithoutRegion(name);
        if (language == kEnglish) {
            return {};
        }
        // Each language has one translation, so a Portuguese user gets the Brazilian one.
        for (const QString& translated : languages) {
            if (WithoutRegion(translated) == language) {
                return translated;
            }
        }
    }
    return {};
}

Translation::Translation(const QString& language) {
    if (language.isEmpty()) {
        return;
    }
    RegisterTranslations();
    Install(textsOfQt_, QLibraryInfo::path(QLibraryInfo::TranslationsPath) + u"/qtbase_"_s + language);
    Install(texts_, kTranslationFolder.toString() + kFilePrefix.toString() + language);
}

} // namespace tunedex
