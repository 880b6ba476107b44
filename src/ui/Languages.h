// The language of the windows.
#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace tunedex {

// The languages that the windows have besides English, as their files are named: "de", "pt_BR".
QStringList TranslatedLanguages();

// The languages that the environment asks for, best first, as QLocale::uiLanguages() names them. None in the
// locales C and POSIX, where gettext ignores LANGUAGE, too.
QStringList WantedLanguages();

// The first of the wanted languages that the windows have; empty for English.
QString LanguageFor(const QStringList& wanted);

// Shows the windows in a language of TranslatedLanguages() while it lives, also the dialogs of Qt if its
// translations are installed. Nothing is loaded for English. Needs the application object.
class Translation {
  public:
    explicit Translation(const QString& language);

  private:
    QTranslator texts_;
    QTranslator textsOfQt_;
};

} // namespace tunedex
