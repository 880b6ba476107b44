// The windows in every language: complete, unclipped, with unique mnemonics, mirrored where a language is
// read from right to left; and nothing that is written depends on the language.
#include "Languages.h"
#include "CoreText.h"
#include "DefaultSettings.h"
#include "Functions.h"
#include "Mp3Builder.h"
#include "Statistics.h"
#include "StatisticsSentences.h"
#include "Text.h"
#include "TranslationFiles.h"
#include "WindowTest.h"
#include "frmAbout.h"
#include "frmDirSelection.h"
#include "frmEditLayout.h"
#include "frmOptions.h"
#include "frmProgress.h"
#include "frmTip.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLibraryInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTranslator>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <set>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

const QString kPseudo = u"pseudo"_s;                  // 40 % longer than English
const QString kMirrored = u"pseudo, right to left"_s; // the same, in a script of the other direction

// Lengthens each text at its end, where clipping cuts first.
class LongTexts final : public QTranslator {
  public:
    explicit LongTexts(QChar directionMark) : directionMark_(directionMark) {}

    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* sourceText, const char* /*disambiguation*/,
                      int /*n*/) const override {
        const QString source = QString::fromUtf8(sourceText);
        if (source.contains(u"|*."_s)) { // a list of file filters
            return directionMark_ + source;
        }
        const qsizetype more = 1 + source.size() * 2 / 5;
        return directionMark_ + source + QString(more, u'~') + directionMark_;
    }

  private:
    QChar directionMark_;
};

// Shows the windows in a language while it lives.
class SpokenLanguage {
  public:
    explicit SpokenLanguage(const QString& language) {
        if (language == kPseudo || language == kMirrored) {
            constexpr QChar kLeftToRightMark(u'\u200E');
            constexpr QChar kRightToLeftMark(u'\u200F');
            pseudo_ =
                std::make_unique<LongTexts>(language == kMirrored ? kRightToLeftMark : kLeftToRightMark);
            QCoreApplication::installTranslator(pseudo_.get());
        } else {
            translation_ = std::make_unique<Translation>(language);
        }
        QApplication::setLayoutDirection(language == kMirrored ? Qt::RightToLeft : Qt::LeftToRight);
    }
    ~SpokenLanguage() { QApplication::setLayoutDirection(Qt::LeftToRight); }
    SpokenLanguage(const SpokenLanguage&) = delete;
    SpokenLanguage& operator=(const SpokenLanguage&) = delete;

  private:
    std::unique_ptr<Translation> translation_;
    std::unique_ptr<LongTexts> pseudo_;
};

using WindowCheck = std::function<void(QWidget& window, const QString& name)>;

// The windows with all that they can show.
class EveryWindow : public Desk {
  public:
    EveryWindow() {
        Settings& settings = TheSettings();
        settings = DefaultSettings();
        settings.Directory = "%MULT%/a%||%/b%||%/c";
        settings.Modern = true;
        settings.DoLinks = true;
        settings.DocumentType = "HTML5";
        fake.application.statistics = {"2026-11-21", 12345, 2345, 1234567};
        fake.registry.values["TipsFile"] = folder.Write("tips.lst", "A tip.\r\n");
        fake.registry.values["TipsOnStartup"] = "1";
        MainFields fields;
        fields.multipleFolders = true;
        fields.outputFile = "/lists/list.m3u8";
        frontEnd.FillFields(fields);
        Show();
    }

    void ForEach(const WindowCheck& check) {
        Visit(check, Main(), u"main"_s);
        Main().ShowResult(LongOutcome());
        Visit(check, Main(), u"main after a run"_s);
        frmDirSelection folders(fake.application, frontEnd, dialogs, nullptr);
        Visit(check, folders, u"folders"_s);
        frmTip tip(fake.application, frontEnd, nullptr);
        Visit(check, tip, u"tip"_s);
        frmAbout about(fake.application, frontEnd, nullptr);
        Visit(check, about, u"about"_s);
        VisitProgress(check);
        frontEnd.OpenOptions();
        Visit(check, *frontEnd.Options(), u"options"_s);
        Click(*frontEnd.Options(), "cmdEditLayout");
        VisitEditor(check, *frontEnd.Options()->Editor());
    }

  private:
    static RunOutcome LongOutcome() {
        RunOutcome outcome;
        outcome.end = RunEnd::Written;
        outcome.file = "/lists/list.001.htm";
        outcome.tracks = 1234567;
        outcome.pages = 12346;
        outcome.unreadFolders = 12345;
        outcome.unreadFiles = 12345;
        outcome.modernTags = 1234567;
        return outcome;
    }
    static void Visit(const WindowCheck& check, QWidget& window, const QString& name) {
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            qFatal("a window does not appear");
        }
        check(window, name);
    }
    static void VisitProgress(const WindowCheck& check) {
        QWidget ground; // the progress window disables it
        frmProgress progress(ground);
        for (const QString& status : StatusTexts()) {
            progress.Display({.status = status,
                              .details = ProgressMonitor::tr("%1 files found", nullptr, 1234567).arg(1234567),
                              .maximum = 100,
                              .position = 100});
            Visit(check, progress, u"progress: "_s + status);
        }
        progress.ShowOver();
        Visit(check, progress, u"progress, over"_s);
    }
    static void VisitEditor(const WindowCheck& check, frmEditLayout& editor) {
        auto& tabs = Find<QTabWidget>(editor, "TabStrip");
        for (int page = 0; page < tabs.count(); ++page) {
            tabs.setCurrentIndex(page);
            Visit(check, editor, u"layout, page %1"_s.arg(page + 1));
        }
    }
};

bool IsShown(const QWidget& widget) {
    return widget.isVisible() && !widget.isWindow() && !widget.objectName().startsWith(u"qt_"_s);
}

// The text that the widget shows in one piece; empty if it shows none, or wraps it.
QString CaptionOf(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return button->text();
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->wordWrap() ? QString() : label->text();
    }
    const auto* group = qobject_cast<const QGroupBox*>(&widget);
    return group != nullptr ? group->title() : QString();
}

// What the caption needs; a label that ignores its hint is as wide as its text.
int NeededWidth(const QWidget& widget) {
    if (qobject_cast<const QGroupBox*>(&widget) != nullptr) {
        return widget.fontMetrics().size(Qt::TextShowMnemonic, CaptionOf(widget)).width();
    }
    const bool ignoresHint = widget.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
    return ignoresHint ? widget.fontMetrics().horizontalAdvance(CaptionOf(widget))
                       : widget.sizeHint().width();
}

bool CutsItsText(const QWidget& widget) {
    if (const auto* bar = qobject_cast<const QTabBar*>(&widget)) {
        // The selected tab is wider than the bar at its outer side in some styles, by less than a margin.
        constexpr int kOverlap = 4;
        const QRect bounds = bar->rect().adjusted(-kOverlap, 0, kOverlap, 0);
        return !bounds.contains(bar->tabRect(0)) || !bounds.contains(bar->tabRect(bar->count() - 1));
    }
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr && label->wordWrap()) {
        return label->height() < label->heightForWidth(label->width());
    }
    return !CaptionOf(widget).isEmpty() && widget.width() < NeededWidth(widget);
}

bool StandsOut(const QWidget& widget) {
    const QWidget& parent = *widget.parentWidget();
    constexpr int kTolerance = 1; // of QSplitter, from right to left
    const QRect bounds = parent.rect().adjusted(-kTolerance, 0, kTolerance, 0);
    return parent.objectName() != u"qt_scrollarea_viewport"_s && !bounds.contains(widget.geometry());
}

// The first widget of the window that shows its text only in part; empty if there is none.
QString FirstClipped(const QWidget& window) {
    for (const auto* widget : window.findChildren<QWidget*>()) {
        if (IsShown(*widget) && (CutsItsText(*widget) || StandsOut(*widget))) {
            return u"%1 \"%2\" is %3 wide and needs %4"_s.arg(widget->objectName(), CaptionOf(*widget))
                .arg(widget->width())
                .arg(NeededWidth(*widget));
        }
    }
    return {};
}

// All texts of the window, shown or spoken.
QStringList TextsIn(const QWidget& window) {
    QStringList texts{window.windowTitle()};
    for (const auto* widget : window.findChildren<QWidget*>()) {
        texts << CaptionOf(*widget) << widget->toolTip() << widget->accessibleName()
              << widget->accessibleDescription();
        if (const auto* box = qobject_cast<const QComboBox*>(widget)) {
            for (int i = 0; i < box->count(); ++i) {
                texts << box->itemText(i);
            }
        }
        for (const QAction* action : widget->actions()) {
            texts << action->text() << action->statusTip();
        }
    }
    return texts;
}

// The texts that are English while the language has other words for them.
class EnglishTexts {
  public:
    explicit EnglishTexts(const QString& language) {
        std::set<QString> translations;
        for (const TranslatedText& text : ReadTranslations(language)) {
            sources_.insert(text.source);
            translations.insert(text.forms.begin(), text.forms.end());
        }
        for (const QString& text : translations) {
            sources_.erase(text);
        }
    }
    bool Contain(const QString& text) const { return sources_.contains(text); }

  private:
    std::set<QString> sources_;
};

QStringList CaptionsWithMnemonics(const QWidget& window) {
    QStringList captions;
    for (const auto* widget : window.findChildren<QWidget*>()) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const bool captioned = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                               (label != nullptr && label->buddy() != nullptr);
        if (IsShown(*widget) && captioned) {
            captions << CaptionOf(*widget);
        }
        if (const auto* bar = qobject_cast<const QTabBar*>(widget)) {
            for (int i = 0; i < bar->count(); ++i) {
                captions << bar->tabText(i);
            }
        }
        if (const auto* bar = qobject_cast<const QMenuBar*>(widget)) {
            for (const QAction* menu : bar->actions()) {
                captions << menu->text();
            }
        }
    }
    return captions;
}

// Two captions with the same key; empty if there are none. Equal captions are those of the three fonts, among
// which the key goes around.
QString SharedMnemonic(const QStringList& captions) {
    std::map<QKeySequence, QString> taken;
    for (const QString& caption : captions) {
        const QKeySequence key = QKeySequence::mnemonic(caption);
        if (key.isEmpty()) {
            continue;
        }
        if (const auto [other, isNew] = taken.try_emplace(key, caption); !isNew && other->second != caption) {
            return other->second + u" and "_s + caption;
        }
    }
    return {};
}

// The labels that are in one row with their control, and on which side of it.
struct LabelSides {
    int left = 0;
    int right = 0;
};

void CountSides(const QWidget& window, LabelSides& sides) {
    for (const auto* label : window.findChildren<QLabel*>()) {
        const QWidget* control = label->buddy();
        if (control == nullptr || !IsShown(*label) || control->parentWidget() != label->parentWidget() ||
            label->y() > control->geometry().bottom() || control->y() > label->geometry().bottom()) {
            continue;
        }
        (label->x() < control->x() ? sides.left : sides.right) += 1;
    }
}

std::string BytesOfFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// What a user does with the windows, from the first folder to the saved theme.
class WritingDesk : public Desk {
  public:
    WritingDesk() {
        folder.Write("music/song.mp3", Id3v2Tag({{"TIT2", Latin1("Song")}}) + Audio(4000));
        folder.Write("music/broken.mp3", std::string(5000, 'x'));
        TheSettings() = DefaultSettings();
        TheSettings().ErrorLog = true;
        MainFields fields;
        fields.inputFolder = folder / "music";
        frontEnd.FillFields(fields);
        Show();
    }

    // The bytes of all files that are written on the way, without the name of the temporary folder.
    std::string Written() {
        PassOptions();
        std::string bytes = MakeList("list.htm");
        bytes += MakeList("list.txt");
        bytes += BytesOfFile(folder / "Tunedex.log");
        std::filesystem::remove(folder / "music/broken.mp3"); // it has no duration, as a playlist needs it
        bytes += MakeList("list.m3u");
        dialogs.files = {folder / "saved.cfg"};
        Choose(Main(), "itmFileSaveSettingsAs");
        bytes += BytesOfFile(folder / "saved.cfg") + BytesOfFile(folder / "Themes/Mine.thm");
        return ReplaceAll(bytes, folder.Path(), "");
    }

  private:
    // Opens each window that stores settings, and confirms it unchanged.
    void PassOptions() {
        frontEnd.OpenOptions();
        frmOptions& options = *frontEnd.Options();
        Click(options, "cmdEditLayout");
        frmEditLayout& editor = *options.Editor();
        editor.SetChoosers(
            {[](QWidget*, const QString&, const QString&) { return std::optional(u"Mine"_s); }, {}, {}});
        Find<QPushButton>(editor, "cmdSaveTheme").click();
        Find<QPushButton>(editor, "cmdOK").click();
        Find<QPushButton>(options, "cmdUse").click();
    }
    std::string MakeList(const char* name) {
        Find<QLineEdit>(Main(), "txtOutputFile").setText(ToQt(folder / name));
        Click(Main(), "cmdCreateList");
        return BytesOfFile(folder / name);
    }
};

} // namespace

class LanguagesTest : public QObject {
    Q_OBJECT

    static void AddLanguages(const QStringList& others = {}) {
        QTest::addColumn<QString>("language");
        for (const QString& language : TranslatedLanguages() + others) {
            QTest::newRow(qPrintable(language)) << language;
        }
    }

  private slots:
    void TheFirstWantedLanguageIsShown_data() {
        QTest::addColumn<QStringList>("wanted");
        QTest::addColumn<QString>("language");
        QTest::newRow("none") << QStringList() << QString();
        QTest::newRow("exact") << QStringList{u"de-DE"_s, u"de-Latn-DE"_s, u"de"_s} << u"de"_s;
        QTest::newRow("another country") << QStringList{u"fr-Latn-CA"_s} << u"fr"_s;
        QTest::newRow("Portugal") << QStringList{u"pt-PT"_s} << u"pt_BR"_s;
        QTest::newRow("Brazil") << QStringList{u"pt-BR"_s, u"pt"_s} << u"pt_BR"_s;
        QTest::newRow("the second") << QStringList{u"it-IT"_s, u"it"_s, u"es"_s, u"de"_s} << u"es"_s;
        QTest::newRow("English before") << QStringList{u"en-GB"_s, u"de"_s} << QString();
        QTest::newRow("unknown") << QStringList{u"xx"_s, u"C"_s} << QString();
        QTest::newRow("the same beginning") << QStringList{u"deu"_s} << QString();
    }
    void TheFirstWantedLanguageIsShown() {
        QFETCH(QStringList, wanted);
        QFETCH(QString, language);
        QCOMPARE(LanguageFor(wanted), language);
    }

    void TheLocaleCIsEnglishWhateverElseIsSet() {
        const QByteArray before = qgetenv("LC_ALL");
        qputenv("LANGUAGE", "de");
        for (const char* locale : {"C", "POSIX", "C.UTF-8"}) {
            qputenv("LC_ALL", locale);
            QVERIFY2(WantedLanguages().isEmpty(), locale);
        }
        qunsetenv("LANGUAGE");
        qputenv("LC_ALL", before);
    }

    void NoWindowClipsATextOrStandsOut_data() { AddLanguages({kPseudo, kMirrored}); }
    void NoWindowClipsATextOrStandsOut() {
        QFETCH(QString, language);
        const SpokenLanguage spoken(language);
        EveryWindow().ForEach([](QWidget& window, const QString& name) {
            QTest::qWait(1);
            QVERIFY2(FirstClipped(window).isEmpty(), qPrintable(name + u": "_s + FirstClipped(window)));
            const QSize natural = window.size();
            window.resize(window.minimumSizeHint());
            QTest::qWait(1);
            QVERIFY2(FirstClipped(window).isEmpty(),
                     qPrintable(name + u", smallest: "_s + FirstClipped(window)));
            window.resize(natural);
        });
    }

    // 1024 pixels wide, less the frame of the window.
    void EveryWindowFitsASmallScreen_data() { AddLanguages(); }
    void EveryWindowFitsASmallScreen() {
        QFETCH(QString, language);
        const SpokenLanguage spoken(language);
        EveryWindow().ForEach([](QWidget& window, const QString& name) {
            QVERIFY2(window.minimumSizeHint().width() <= 1000,
                     qPrintable(u"%1: %2"_s.arg(name).arg(window.minimumSizeHint().width())));
        });
    }

    void NoWindowShowsEnglish_data() { AddLanguages(); }
    void NoWindowShowsEnglish() {
        QFETCH(QString, language);
        const SpokenLanguage spoken(language);
        const EnglishTexts english(language);
        EveryWindow().ForEach([&](QWidget& window, const QString& name) {
            for (const QString& text : TextsIn(window)) {
                QVERIFY2(!english.Contain(text), qPrintable(name + u": "_s + text));
            }
        });
    }

    void MnemonicsAreUniqueInEveryWindow_data() { AddLanguages(); }
    void MnemonicsAreUniqueInEveryWindow() {
        QFETCH(QString, language);
        const SpokenLanguage spoken(language);
        EveryWindow().ForEach([](QWidget& window, const QString& name) {
            const QString shared = SharedMnemonic(CaptionsWithMnemonics(window));
            QVERIFY2(shared.isEmpty(), qPrintable(name + u": "_s + shared));
            for (const QMenu* menu : window.findChildren<QMenu*>()) {
                QStringList items;
                for (const QAction* item : menu->actions()) {
                    items << item->text();
                }
                QCOMPARE(SharedMnemonic(items), QString());
            }
        });
    }

    void LabelsChangeSidesWhereALanguageIsReadFromRightToLeft() {
        LabelSides usual;
        EveryWindow().ForEach([&](QWidget& window, const QString&) { CountSides(window, usual); });
        QVERIFY(usual.left > 20);
        QCOMPARE(usual.right, 0);
        const SpokenLanguage spoken(kMirrored);
        LabelSides mirrored;
        EveryWindow().ForEach([&](QWidget& window, const QString&) { CountSides(window, mirrored); });
        QCOMPARE(mirrored.right, usual.left);
        QCOMPARE(mirrored.left, 0);
    }

    void PathsAndColoursAreReadFromLeftToRight() {
        const SpokenLanguage spoken(kMirrored);
        EveryWindow().ForEach([](QWidget& window, const QString&) {
            QCOMPARE(window.layoutDirection(), Qt::RightToLeft);
            for (const QString& name : {u"txtInputDir"_s, u"txtOutputFile"_s, u"txtLinkPrefix"_s,
                                        u"txtColour(0)"_s, u"txtFontList(0)"_s, u"txtTableWidth"_s}) {
                if (const auto* field = window.findChild<QLineEdit*>(name)) {
                    QCOMPARE(field->layoutDirection(), Qt::LeftToRight);
                }
            }
            if (const auto* title = window.findChild<QLineEdit*>(u"txtPageTitle"_s)) {
                QCOMPARE(title->layoutDirection(), Qt::RightToLeft);
            }
        });
    }

    void NothingThatIsWrittenDependsOnTheLanguage_data() { AddLanguages({kPseudo, kMirrored}); }
    void NothingThatIsWrittenDependsOnTheLanguage() {
        QFETCH(QString, language);
        const std::string english = WritingDesk().Written();
        for (const char* part : {"<html", "#EXTM3U", "ActiveColumns", "decoding the headers", "Theme"}) {
            QVERIFY2(english.find(part) != std::string::npos, part);
        }
        const SpokenLanguage spoken(language);
        QVERIFY(WritingDesk().Written() == english);
    }

    void MessagesOfLowerFloorsAreTranslated_data() {
        QTest::addColumn<QString>("english");
        QTest::addColumn<QString>("german");
        QTest::newRow("a title") << u"Error!"_s << u"Fehler!"_s;
        QTest::newRow("line breaks") << u"No MP3 files were found\r\nin the directory specified."_s
                                     << u"Im angegebenen Verzeichnis wurden\nkeine MP3-Dateien gefunden."_s;
        QTest::newRow("an error and its description")
            << ToQt(UnexpectedErrorText(RunTimeError(ErrorNumber::PathNotFound)))
            << u"Ein unerwarteter Fehler ist aufgetreten: \n\nFehlernummer 76 - Pfad nicht gefunden"_s;
        QTest::newRow("a folder with the words of a message")
            << u"An error occurred scanning the directory: \r\n\r\n/a\r\n\r\n52: %3 %1\r\n\r\n75: Disk full"_s
            << u"Fehler beim Durchsuchen des Verzeichnisses: \n\n/a\n\n52: %3 %1\n\n75: Datenträger voll"_s;
        QTest::newRow("a file with the name of an error")
            << u"An error occurred decoding the headers of: \r\n\r\nOverflow"_s
            << u"Fehler beim Dekodieren der Header von: \n\nOverflow"_s;
        QTest::newRow("no known text") << u"Overflow in /music"_s << u"Overflow in /music"_s;
    }
    void MessagesOfLowerFloorsAreTranslated() {
        QFETCH(QString, english);
        QFETCH(QString, german);
        QCOMPARE(ShownText(FromQt(english)), QString(english).remove(u'\r'));
        const SpokenLanguage spoken(u"de"_s);
        QCOMPARE(ShownText(FromQt(english)), german);
        Desk desk;
        desk.frontEnd.ShowReport(FromQt(english), "Error!");
        QCOMPARE(ToQt(desk.dialogs.messages.back().text), german);
        QCOMPARE(ToQt(desk.dialogs.messages.back().title), u"Fehler!"_s);
    }

    // The words of each message are in core; a change there must reach the table.
    void EveryMessageOfARunIsTranslated() {
        const SpokenLanguage spoken(u"de"_s);
        Desk desk;
        desk.TheSettings() = DefaultSettings();
        MainFields fields;
        const auto run = [&] {
            desk.frontEnd.FillFields(fields);
            desk.frontEnd.CreateList();
            const std::string text = desk.dialogs.messages.empty() ? "" : desk.dialogs.messages.back().text;
            desk.dialogs.messages.clear();
            return ToQt(text);
        };
        fields.inputFolder = desk.folder / "missing";
        QCOMPARE(run(), u"Das angegebene Verzeichnis ist nicht vorhanden!"_s);
        fields.inputFolder = desk.folder.Path();
        QCOMPARE(run(), u"Es wurde keine Ausgabedatei angegeben!"_s);
        fields.outputFile = desk.folder / "missing/list.htm";
        desk.dialogs.answers = {kAnswerNo};
        QCOMPARE(run(), u"Das Ausgabeverzeichnis ist nicht vorhanden!\n\nMöchten Sie es anlegen?"_s);
        fields.outputFile = desk.folder / "list.htm";
        QCOMPARE(run(), u"Im angegebenen Verzeichnis wurden\nkeine MP3-Dateien gefunden."_s);
        fields.multipleFolders = true;
        desk.TheSettings().Directory = "%MULT%";
        QCOMPARE(run(), u"Es wurden keine Eingabeverzeichnisse angegeben!"_s);
        desk.TheSettings().Directory = "%MULT%" + desk.folder.Path();
        QCOMPARE(run(), u"In den angegebenen Verzeichnissen wurden\nkeine MP3-Dateien gefunden."_s);
    }

    void StatusTextsAreTranslatedAndEnglishStaysToTheLetter() {
        QCOMPARE(ShownStatus("Writing entry for file ", 3, 40, "..."), u"Writing entry for file 3/40..."_s);
        QCOMPARE(StatusTexts().front(), u"Searching for MP3 files..."_s);
        const SpokenLanguage spoken(u"de"_s);
        QCOMPARE(ShownStatus("Writing entry for file ", 3, 40, "..."),
                 u"Eintrag für Datei 3/40 wird geschrieben..."_s);
        QCOMPARE(ShownText("Searching for MP3 files..."), u"MP3-Dateien werden gesucht..."_s);
    }

    void ColumnsAreTranslatedByNameInEveryCase() {
        QCOMPARE(ShownColumn("aRTIST"), u"aRTIST"_s);
        const SpokenLanguage spoken(u"de"_s);
        QCOMPARE(ShownColumn("aRTIST"), u"Interpret"_s);
        QCOMPARE(ShownColumn("My column"), u"My column"_s);
    }

    void StatisticsAreInEnglishWhatCoreSays() {
        for (const std::int32_t started : {0, 1, 2, 12345}) {
            for (const std::int32_t lists : {0, 1, 2}) {
                for (const std::int32_t files : {0, 1, 1234567}) {
                    const Statistics statistics{"2026-11-21", started, lists, files};
                    QCOMPARE(StatisticsSentences(statistics),
                             ToQtDisplay(StatisticsText(statistics)).trimmed());
                }
            }
        }
    }

    void DialogsOfQtSpeakTheLanguageToo() {
        const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        if (!QFile::exists(folder + u"/qtbase_de.qm"_s)) {
            QSKIP("Qt's translations are not installed: qt6-translations-l10n");
        }
        for (const QString& language : TranslatedLanguages()) {
            QVERIFY2(QFile::exists(u"%1/qtbase_%2.qm"_s.arg(folder, language)), qPrintable(language));
        }
        const SpokenLanguage spoken(u"de"_s);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Abbrechen"_s);
    }
};

TUNEDEX_WINDOW_TEST(LanguagesTest)
#include "LanguagesTest.moc"
