// Each translation is complete, and agrees with the source texts in what the program relies on.
#include "TranslationFiles.h"
#include "CodePages.h"
#include "Columns.h"
#include "Languages.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "WindowTest.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <map>
#include <set>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

const QStringList kLanguages{u"de"_s, u"es"_s, u"fr"_s, u"ja"_s, u"pt_BR"_s};

// "%1" and the like, sorted.
QStringList PlaceholdersOf(const QString& text) {
    static const QRegularExpression placeholder(u"%(\\d|n)|\\[\\*\\]"_s);
    QStringList found;
    for (const QRegularExpressionMatch& match : placeholder.globalMatch(text)) {
        found << match.captured();
    }
    found.sort();
    return found;
}

// What follows the last word: "...", ":" or nothing. A mnemonic in parentheses belongs to the word, and so
// does the space that French puts before a colon.
QString EndingOf(const QString& text) {
    return text.endsWith(u"..."_s) ? u"..."_s : text.endsWith(u':') ? u":"_s : QString();
}

qsizetype MnemonicsIn(const QString& text) {
    return QString(text).remove(u"&&"_s).count(u'&');
}

// "*.htm;*.html" and the like; empty if the text is no filter list.
QStringList PatternsOf(const QString& text) {
    QStringList patterns;
    if (text.contains(u"|*."_s)) {
        const QStringList pieces = text.split(u'|');
        for (qsizetype i = 1; i < pieces.size(); i += 2) {
            patterns << pieces[i];
        }
    }
    return patterns;
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

// Calls `check` for each form of each translation, with the words for a failure.
template <typename Check> void ForEachForm(const QString& language, const Check& check) {
    const QList<TranslatedText> texts = ReadTranslations(language);
    QVERIFY(texts.size() > 400);
    for (const TranslatedText& text : texts) {
        for (const QString& form : text.forms) {
            QVERIFY2(check(text.source, form), qPrintable(text.source + u" -> "_s + form));
        }
    }
}

} // namespace

class TranslationFilesTest : public QObject {
    Q_OBJECT

    static void AddLanguages() {
        QTest::addColumn<QString>("language");
        for (const QString& language : kLanguages) {
            QTest::newRow(qPrintable(language)) << language;
        }
    }

  private slots:
    void TheProgramHasEveryLanguage() { QCOMPARE(TranslatedLanguages(), kLanguages); }

    void EveryTextIsTranslated_data() { AddLanguages(); }
    void EveryTextIsTranslated() {
        QFETCH(QString, language);
        const qsizetype pluralForms = language == u"ja"_s ? 1 : 2;
        for (const TranslatedText& text : ReadTranslations(language)) {
            QVERIFY2(text.finished, qPrintable(text.source));
            QCOMPARE(text.forms.size(), text.plural ? pluralForms : 1);
            for (const QString& form : text.forms) {
                QVERIFY2(!form.trimmed().isEmpty(), qPrintable(text.source));
            }
        }
    }

    // lupdate would add texts that the files lack, and remove or rename those that no window has any more.
    void TheFilesHaveTheTextsOfTheSources() {
        const QTemporaryDir folder;
        QStringList arguments{u"-silent"_s,      u"-locations"_s,
                              u"none"_s,         u"-no-obsolete"_s,
                              u"-no-ui-lines"_s, QStringLiteral(TUNEDEX_SOURCE_FOLDER "/src/ui"),
                              u"-ts"_s};
        for (const QString& language : kLanguages) {
            const QString name = u"/tunedex_%1.ts"_s.arg(language);
            QVERIFY(QFile::copy(TranslationFolder() + name, folder.path() + name));
            QVERIFY(QFile::setPermissions(folder.path() + name, QFile::ReadOwner | QFile::WriteOwner));
            arguments << folder.path() + name;
        }
        QCOMPARE(QProcess::execute(QStringLiteral(TUNEDEX_LUPDATE), arguments), 0);
        for (const QString& language : kLanguages) {
            const QString name = u"/tunedex_%1.ts"_s.arg(language);
            QVERIFY2(BytesOf(folder.path() + name) == BytesOf(TranslationFolder() + name),
                     qPrintable(language + u": run tools/update-translations"_s));
        }
    }

    void PlaceholdersAgree_data() { AddLanguages(); }
    void PlaceholdersAgree() {
        QFETCH(QString, language);
        ForEachForm(language, [](const QString& source, const QString& form) {
            return PlaceholdersOf(source) == PlaceholdersOf(form);
        });
    }

    void CaptionsHaveAMnemonicWhereTheSourceHasOne_data() { AddLanguages(); }
    void CaptionsHaveAMnemonicWhereTheSourceHasOne() {
        QFETCH(QString, language);
        ForEachForm(language, [](const QString& source, const QString& form) {
            return MnemonicsIn(source) == MnemonicsIn(form);
        });
    }

    void EllipsesAndColonsAtTheEndAgree_data() { AddLanguages(); }
    void EllipsesAndColonsAtTheEndAgree() {
        QFETCH(QString, language);
        ForEachForm(language, [](const QString& source, const QString& form) {
            return EndingOf(source) == EndingOf(form);
        });
    }

    void PatternsOfFileFiltersAreNotTranslated_data() { AddLanguages(); }
    void PatternsOfFileFiltersAreNotTranslated() {
        QFETCH(QString, language);
        ForEachForm(language, [](const QString& source, const QString& form) {
            return PatternsOf(source) == PatternsOf(form);
        });
    }

    // Texts of the floors below are translated by tables in src/ui, which must not lack any.
    void TheNamesOfLowerFloorsAreInTheFiles() {
        std::map<QString, std::set<QString>> sources;
        for (const TranslatedText& text : ReadTranslations(kLanguages.front())) {
            sources[text.context].insert(text.source);
        }
        for (const CodePageName& page : kCodePages) {
            QVERIFY2(sources[u"tunedex::CodePageBox"_s].contains(ToQt(page.label)), page.label);
        }
        for (const ColumnKind& column : kColumns) {
            const QString name = ToQt(column.name);
            QVERIFY2(!IsChoosable(column.key, ColumnSet::Modern) ||
                         sources[u"tunedex::Columns"_s].contains(name),
                     qPrintable(name));
        }
        for (int number = 0; number < 100; ++number) {
            const RunTimeError error{static_cast<ErrorNumber>(number)};
            QVERIFY2(sources[u"tunedex::CoreText"_s].contains(QString::fromLatin1(error.Description())),
                     error.Description());
        }
    }
};

TUNEDEX_WINDOW_TEST(TranslationFilesTest)
#include "TranslationFilesTest.moc"
