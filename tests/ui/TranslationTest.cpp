// Every text that a user sees goes through tr(). A translator marks all texts; a text without the mark must
// be data (names, numbers).
#include "DefaultSettings.h"
#include "WindowTest.h"
#include "frmAbout.h"
#include "frmDirSelection.h"
#include "frmEditLayout.h"
#include "frmOptions.h"
#include "frmProgress.h"
#include "frmTip.h"

#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTranslator>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

constexpr QChar kMark(u'\u2042');

class MarkTranslator final : public QTranslator {
  public:
    bool isEmpty() const override { return false; }
    QString translate(const char* /*context*/, const char* sourceText, const char* /*disambiguation*/,
                      int /*n*/) const override {
        return kMark + QString::fromUtf8(sourceText);
    }
};

QStringList TextsOfActions(const QWidget& widget) {
    QStringList texts;
    for (const QAction* action : widget.actions()) {
        texts << action->text() << action->statusTip() << action->toolTip();
    }
    return texts;
}

QStringList CaptionsOf(const QWidget& widget) {
    QStringList texts;
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        texts << label->text();
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        texts << button->text();
    } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        texts << group->title();
    } else if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        texts << field->placeholderText();
    } else if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
        texts << menu->title();
    } else if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            texts << tabs->tabText(i);
        }
    } else if (const auto* list = qobject_cast<const QListWidget*>(&widget);
               list != nullptr && list->objectName() != u"lvwThemes"_s) { // themes are files
        for (int i = 0; i < list->count(); ++i) {
            texts << list->item(i)->text();
        }
    } else if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        for (int i = 0; i < box->count(); ++i) {
            texts << box->itemText(i);
        }
    }
    return texts;
}

bool IsNumber(const QString& text) {
    bool isNumber = false;
    text.toInt(&isNumber);
    return isNumber;
}

// The window's texts that are neither marked nor data.
QStringList Untranslated(const QWidget& window, const QStringList& data = {}) {
    QList<const QWidget*> widgets{&window};
    for (const QWidget* child : window.findChildren<QWidget*>()) {
        widgets << child;
    }
    QStringList found;
    for (const QWidget* widget : widgets) {
        QStringList texts{widget->windowTitle(), widget->toolTip(), widget->accessibleName(),
                          widget->accessibleDescription()};
        texts << CaptionsOf(*widget) << TextsOfActions(*widget);
        for (const QString& text : texts) {
            if (!text.isEmpty() && !text.contains(kMark) && !IsNumber(text) && !data.contains(text)) {
                found << text;
            }
        }
    }
    return found;
}

// A desk with the options dialog and the layout editor open.
struct OpenDesk : Desk {
    OpenDesk() {
        SetDefaults(TheSettings());
        Show();
        Click(Main(), "cmdOptions");
        Click(Options(), "cmdEditLayout");
        Editor().SetChoosers({[this](QWidget*, const QString& title, const QString& prompt) {
                                  prompts << title << prompt;
                                  return std::optional(u"no/name"_s);
                              },
                              {},
                              {}});
    }
    frmOptions& Options() { return *frontEnd.Options(); }
    frmEditLayout& Editor() { return *Options().Editor(); }

    QStringList prompts;
};

bool IsMarked(const std::string& text) {
    return ToQt(text).contains(kMark);
}

} // namespace

class TranslationTest : public QObject {
    Q_OBJECT

    MarkTranslator translator_;

  private slots:
    void initTestCase() { QVERIFY(QCoreApplication::installTranslator(&translator_)); }

    void TheTextsOfTheMainWindowAreTranslated() {
        Desk desk;
        QCOMPARE(Untranslated(desk.Main()), QStringList());
        desk.TheSettings().Directory = "%MULT%/a%||%/b";
        MainFields fields;
        fields.multipleFolders = true;
        desk.frontEnd.FillFields(fields);
        QVERIFY(IsMarked(TextOf(desk.Main(), "lblFolderCount")));
    }

    void TheResultOfARunIsTranslated() {
        Desk desk;
        RunOutcome outcome;
        outcome.end = RunEnd::Written;
        outcome.file = "/lists/list.htm";
        outcome.tracks = 2;
        outcome.unreadFolders = 1;
        outcome.modernTags = 1;
        desk.Main().ShowResult(outcome);
        const QStringList path{u"/lists/list.htm"_s, Find<QLabel>(desk.Main(), "lblResult").toolTip()};
        QCOMPARE(Untranslated(desk.Main(), path), QStringList());
        const QStringList lines = Find<QLabel>(desk.Main(), "lblResult").text().split(u'\n');
        QCOMPARE(lines.size(), 3);
        for (const QString& line : lines) {
            QVERIFY2(line.contains(kMark), qPrintable(line));
        }
        desk.TheSettings().Modern = true;
        desk.Main().FollowSettings();
        QVERIFY(Find<QLabel>(desk.Main(), "lblResult").text().split(u'\n').value(2).startsWith(kMark));
        Click(desk.Main(), "cmdOpenResult");
        QVERIFY(IsMarked(desk.dialogs.messages.back().text));
    }

    void TheTextsOfTheSmallWindowsAreTranslated() {
        Desk desk;
        desk.fake.application.statistics = {"2026-11-21", 12345, 2345, 1234567};
        desk.fake.registry.values["TipsFile"] = desk.folder.Write("tips.lst", "A tip.\r\n");
        desk.fake.registry.values["TipsOnStartup"] = "1";
        QCOMPARE(Untranslated(frmDirSelection(desk.fake.application, desk.frontEnd, desk.dialogs, nullptr)),
                 QStringList());
        QCOMPARE(Untranslated(frmTip(desk.fake.application, desk.frontEnd, nullptr), {u"A tip."_s}),
                 QStringList());
        QCOMPARE(Untranslated(frmAbout(desk.fake.application, desk.frontEnd, nullptr),
                              {u"Tunedex"_s, u"https://tunedex.example/"_s, u"orvando@tunedex.example"_s}),
                 QStringList());
        QCOMPARE(Untranslated(frmProgress(desk.Main())), QStringList());
    }

    void TheTextsOfOptionsAndLayoutEditorAreTranslated() {
        OpenDesk desk;
        QCOMPARE(Untranslated(desk.Options()), QStringList());
        QCOMPARE(Untranslated(desk.Editor()), QStringList());
        desk.Options().SwitchModernOn();
        QCOMPARE(Untranslated(desk.Options()), QStringList());
    }

    void TheQuestionsOfTheMainWindowAreTranslated() {
        Desk desk;
        desk.Show();
        desk.dialogs.files = {std::nullopt, desk.folder / "missing.cfg"};
        Click(desk.Main(), "cmdSelectDir");
        Click(desk.Main(), "cmdSelectOutputFile");
        Choose(desk.Main(), "itmFileOpenSettings");
        Choose(desk.Main(), "itmHelpTopics");
        desk.TheSettings().ConfirmQuit = true;
        desk.dialogs.answers = {kAnswerCancel};
        Click(desk.Main(), "cmdQuit");

        QCOMPARE(desk.dialogs.folderQuestions.size(), std::size_t(1));
        QVERIFY(IsMarked(desk.dialogs.folderQuestions[0].title));
        QVERIFY(IsMarked(desk.dialogs.folderQuestions[0].prompt));
        QCOMPARE(desk.dialogs.fileQuestions.size(), std::size_t(2));
        for (const FileQuestion& question : desk.dialogs.fileQuestions) {
            QVERIFY(question.title.contains(kMark));
            QVERIFY(question.filters.contains(kMark));
        }
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(3));
        for (const FakeDialogs::Message& message : desk.dialogs.messages) {
            QVERIFY2(IsMarked(message.text), message.text.c_str());
        }
        QVERIFY(IsMarked(desk.dialogs.messages.back().title));
    }

    void WhatCoreSaysIsTranslated() {
        Desk desk;
        desk.Show();
        Find<QLineEdit>(desk.Main(), "txtInputDir").setText(u"/missing"_s);
        Click(desk.Main(), "cmdCreateList");
        desk.frontEnd.ShowReport("An error occurred decoding the headers of: \r\n\r\n/a.mp3", "Error!");
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(2));
        for (const FakeDialogs::Message& message : desk.dialogs.messages) {
            QVERIFY2(IsMarked(message.text), message.text.c_str());
        }
        RunMonitor& monitor = desk.frontEnd.ShowProgress();
        const auto& status = Find<QLabel>(desk.Main(), "lblStatus");
        monitor.SetStatus("Sorting information...");
        QVERIFY(status.text().contains(kMark));
        monitor.SetCountedStatus("Writing entry for file ", 1, 2, "...");
        monitor.AbortRequested(); // paints
        QVERIFY2(status.text().contains(kMark), qPrintable(status.text()));
        desk.frontEnd.SetProgressCaption("Tunedex (Automatic Mode)");
        QVERIFY(OpenWindow<frmProgress>(desk.Main()).windowTitle().contains(kMark));
    }

    void TheMessagesOfOptionsAndLayoutEditorAreTranslated() {
        OpenDesk desk;
        Find<QLineEdit>(desk.Editor(), "txtTableWidth").setText(u"wide"_s);
        Find<QPushButton>(desk.Editor(), "cmdOK").click();
        Find<QPushButton>(desk.Editor(), "cmdSaveTheme").click();
        Find<QPushButton>(desk.Editor(), "cmdCancel").click();
        Find<QLineEdit>(desk.Options(), "txtFilesPerPage").setText(u"many"_s);
        Find<QPushButton>(desk.Options(), "cmdUse").click();

        QCOMPARE(desk.prompts.size(), 2);
        for (const QString& prompt : desk.prompts) {
            QVERIFY2(prompt.contains(kMark), qPrintable(prompt));
        }
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(3));
        for (const FakeDialogs::Message& message : desk.dialogs.messages) {
            QVERIFY2(IsMarked(message.text), message.text.c_str());
            QVERIFY2(IsMarked(message.title), message.title.c_str());
        }
    }
};

TUNEDEX_WINDOW_TEST(TranslationTest)
#include "TranslationTest.moc"
