// The result of a run in the main window.
#include "ResultPanel.h"
#include "DefaultSettings.h"
#include "Mp3Builder.h"
#include "WindowTest.h"
#include "frmOptions.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <filesystem>
#include <utility>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

const std::string kUtf16("\x01\xFF\xFE"
                         "a\0",
                         5);

// A desk whose fields name a folder with one track in ISO-8859-1 and the output file list.htm.
struct ResultDesk : Desk {
    ResultDesk() {
        TheSettings() = DefaultSettings();
        AddSong("a.mp3", Latin1("a"));
        MainFields fields;
        fields.inputFolder = folder / "music";
        fields.outputFile = folder / "list.htm";
        frontEnd.FillFields(fields);
        Show();
    }
    void AddSong(const std::string& name, const std::string& title) {
        folder.Write("music/" + name, Id3v2Tag({{"TIT2", title}}) + Audio(417) + Audio(417));
    }
    void SetOutput(const std::string& path) { Find<QLineEdit>(Main(), "txtOutputFile").setText(ToQt(path)); }
    void Run() {
        Click(Main(), "cmdCreateList");
        Show(); // active, as a window manager does once the progress window has closed
    }
    QLabel& Label() { return Find<QLabel>(Main(), "lblResult"); }
    QWidget& Panel() { return Find<QWidget>(Main(), "fraResult"); }
    QPushButton& SwitchOn() { return Find<QPushButton>(Main(), "cmdSwitchModern"); }
};

constexpr const char* kHint = "\n2 files have tags that 'Modern tags and lists' would read correctly.";
constexpr const char* kOn = "\n'Modern tags and lists' is on now: create the list again.";

// A desk after a run over three files, two with tags in UTF-16.
struct HintDesk : ResultDesk {
    HintDesk() {
        AddSong("b.mp3", kUtf16);
        AddSong("c.mp3", kUtf16);
        Run();
    }
    bool Says(const char* line) {
        return FromQt(Label().text()) == std::string("Wrote list.htm: 3 tracks on 1 page.") + line;
    }
};

} // namespace

class ResultPanelTest : public QObject {
    Q_OBJECT

  private slots:
    void TheResultIsHiddenBeforeTheFirstRun() {
        ResultDesk desk;
        QVERIFY(!desk.Panel().isVisible());
        QCOMPARE(desk.Label().text(), QString());
    }

    void AFinishedRunShowsWhatWasWritten_data() {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<bool>("modern");
        QTest::addColumn<QString>("text");
        QTest::newRow("a page") << QByteArray("list.htm") << false
                                << u"Wrote list.htm: 2 tracks on 1 page."_s;
        QTest::newRow("a modern page")
            << QByteArray("list.htm") << true << u"Wrote list.htm: 2 tracks on 1 page."_s;
        QTest::newRow("an extension appended")
            << QByteArray("list") << false << u"Wrote list.htm: 2 tracks on 1 page."_s;
        QTest::newRow("text") << QByteArray("list.txt") << false << u"Wrote list.txt: 2 tracks."_s;
    }
    void AFinishedRunShowsWhatWasWritten() {
        QFETCH(QByteArray, output);
        QFETCH(bool, modern);
        QFETCH(QString, text);
        ResultDesk desk;
        desk.AddSong("b.mp3", Latin1("b"));
        desk.TheSettings().Modern = modern;
        desk.SetOutput(desk.folder / output.toStdString());
        desk.Run();
        QVERIFY(desk.dialogs.messages.empty());
        QVERIFY(desk.Panel().isVisible());
        QCOMPARE(desk.Label().text(), text);
        QVERIFY(!desk.SwitchOn().isVisible());
    }

    void OpenAndShowFolderGoToTheDesktop() {
        const FakeBrowser browser;
        ResultDesk desk;
        desk.AddSong("b.mp3", Latin1("b"));
        desk.TheSettings().Spanning = 1;
        desk.SetOutput(desk.folder / "50% \xFC#.htm");
        desk.Run();
        QVERIFY(desk.Label().text().endsWith(u": 2 tracks on 2 pages."_s));
        Click(desk.Main(), "cmdOpenResult");
        Click(desk.Main(), "cmdShowFolder");
        QTest::keyClick(&desk.Main(), Qt::Key_L, Qt::ControlModifier);
        QTest::keyClick(&desk.Main(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE(browser.opened.size(), std::size_t(4));
        const QByteArray parent = QByteArray::fromStdString("file://" + desk.folder.Path());
        const QByteArray page = parent + "50%25%20%FC%23.001.htm";
        for (std::size_t i = 0; i < 4; ++i) {
            QCOMPARE(browser.opened[i].toEncoded() + (i % 2 == 0 ? "" : "/"), i % 2 == 0 ? page : parent);
        }
        QVERIFY(desk.dialogs.messages.empty());
    }

    void AListThatWasRemovedShowsAMessage() {
        const FakeBrowser browser;
        ResultDesk desk;
        desk.Run();
        std::filesystem::remove(desk.folder / "list.htm");
        Click(desk.Main(), "cmdOpenResult");
        QVERIFY(browser.opened.empty());
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QCOMPARE(desk.dialogs.messages[0].text, desk.folder / "list.htm" + "\ndoes not exist any more!");
        QCOMPARE(desk.dialogs.messages[0].buttons, 48);
    }

    void ARunThatWritesNoListSaysSo_data() {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("text");
        QTest::newRow("refused") << 0 << QString();
        QTest::newRow("nothing found") << 1 << u"No MP3 files were found. No list was written."_s;
        QTest::newRow("aborted") << 2 << u"The run was aborted. No list was written."_s;
        QTest::newRow("failed") << 3
                                << u"The run failed: Path/File access error. No complete list was written."_s;
    }
    void ARunThatWritesNoListSaysSo() {
        QFETCH(int, kind);
        QFETCH(QString, text);
        ResultDesk desk;
        desk.Run();
        QVERIFY(desk.Panel().isVisible());
        bool hiddenMeanwhile = true;
        desk.dialogs.whileMessageIsShown = [&] {
            hiddenMeanwhile = hiddenMeanwhile && !desk.Panel().isVisible();
            if (kind == 2) {
                desk.fake.application.abortRequested = true;
            }
        };
        if (kind == 0) {
            desk.SetOutput("");
        } else if (kind == 1) {
            std::filesystem::remove(desk.folder / "music/a.mp3");
        } else if (kind == 2) {
            desk.folder.Write("music/empty.mp3", "");
        } else {
            std::filesystem::remove(desk.folder / "list.htm");
            desk.folder.Make("list.htm"); // a folder in the list's place
        }
        desk.Run();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QVERIFY(hiddenMeanwhile);
        QCOMPARE(desk.Panel().isVisible(), !text.isEmpty());
        QCOMPARE(desk.Label().text(), text);
        QVERIFY(!Find<QPushButton>(desk.Main(), "cmdOpenResult").isVisible());
        QVERIFY(!Find<QPushButton>(desk.Main(), "cmdShowFolder").isVisible());
        QVERIFY(!desk.SwitchOn().isVisible());
    }

    void ANoticeIsAddedToTheResultUntilTheNextRun() {
        ResultDesk desk;
        QTest::keyClick(&desk.Main(), Qt::Key_S, Qt::ControlModifier);
        const QString saved = u"Saved to "_s + ToQt(desk.folder / "Tunedex.cfg") + u'.';
        QVERIFY(desk.Panel().isVisible());
        QCOMPARE(desk.Label().text(), saved);
        desk.Run();
        QCOMPARE(desk.Label().text(), u"Wrote list.htm: 1 track on 1 page."_s);
        QTest::keyClick(&desk.Main(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(desk.Label().text(), u"Wrote list.htm: 1 track on 1 page.\n"_s + saved);
        QVERIFY(Find<QPushButton>(desk.Main(), "cmdOpenResult").isVisible());
    }

    void AnUnattendedRunShowsNoResult() {
        ResultDesk desk;
        desk.fake.application.automaticMode = true;
        QVERIFY(desk.frontEnd.CreateList().Written());
        QVERIFY(!desk.Panel().isVisible());
    }

    void WhatCouldNotBeReadIsCounted() {
        ResultDesk desk;
        desk.TheSettings().Modern = true;
        desk.TheSettings().ErrorWarnings = false;
        desk.TheSettings().Recurse = false;
        desk.folder.Make("music/Live.mp3"); // a folder that counts as a file
        Find<QCheckBox>(desk.Main(), "chkMultipleDirs").click();
        desk.TheSettings().Directory =
            "%MULT%" + (desk.folder / "music") + "%||%" + (desk.folder / "missing");
        desk.Run();
        QCOMPARE(desk.Label().text(),
                 u"Wrote list.htm: 1 track on 1 page.\n1 folder and 1 file could not be read."_s);
    }

    void SwitchOnChangesTheSettingAndAsksForAnotherRun() {
        HintDesk desk;
        QVERIFY(desk.Says(kHint));
        QVERIFY(desk.SwitchOn().isVisible());
        Click(desk.Main(), "cmdSwitchModern");
        QVERIFY(desk.TheSettings().Modern);
        QVERIFY(desk.Says(kOn));
        QVERIFY(!desk.SwitchOn().isVisible());
        desk.Run();
        QVERIFY(desk.Says(""));
    }

    void SwitchOnPassesTheFocusToCreateList() {
        HintDesk desk;
        desk.SwitchOn().setFocus();
        QTest::keyClick(&desk.SwitchOn(), Qt::Key_Space);
        QVERIFY(desk.TheSettings().Modern);
        QCOMPARE(desk.Main().focusWidget(), &Find<QWidget>(desk.Main(), "cmdCreateList"));
    }

    void SwitchOnTicksTheOpenOptionsAndKeepsTheirEdits() {
        HintDesk desk;
        Click(desk.Main(), "cmdOptions");
        frmOptions& options = *desk.frontEnd.Options();
        Find<QLineEdit>(options, "txtFilesPerPage").setText(u"7"_s);
        desk.Show();
        QTest::keyClick(&desk.Main(), Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(desk.TheSettings().Modern);
        QVERIFY(Find<QCheckBox>(options, "chkModern").isChecked());
        QCOMPARE(TextOf(options, "txtFilesPerPage"), std::string("7"));
        Click(options, "cmdCancel");
        QVERIFY(desk.TheSettings().Modern);
        QVERIFY(desk.Says(kOn));
    }

    void TheHintFollowsTheOptionsAndSettingsFiles() {
        HintDesk desk;
        for (const auto& [tick, line] : {std::pair(true, kOn), std::pair(false, kHint)}) {
            Click(desk.Main(), "cmdOptions");
            Find<QCheckBox>(*desk.frontEnd.Options(), "chkModern").setChecked(tick);
            Click(*desk.frontEnd.Options(), "cmdUse");
            QTRY_COMPARE(desk.frontEnd.Options(), nullptr);
            QVERIFY(desk.Says(line));
            QCOMPARE(desk.SwitchOn().isVisible(), !tick);
        }
        desk.dialogs.files = {desk.folder.Write("modern.cfg", "Modern=1\r\n")};
        Choose(desk.Main(), "itmFileOpenSettings");
        QVERIFY(desk.Says(kOn));
    }

    void AssistiveTechnologyReadsTheWholeResult() {
        HintDesk desk;
        const QAccessibleInterface* label = QAccessible::queryAccessibleInterface(&desk.Label());
        const QString said = QString(desk.Label().text()).replace(u'\n', u' ');
        QVERIFY(said.contains(u"1 page. 2 files"_s));
        QCOMPARE(label->text(QAccessible::Name), said);
        QCOMPARE(label->text(QAccessible::Description), ToQt(desk.folder / "list.htm"));
        QCOMPARE(desk.SwitchOn().accessibleName(), u"Switch on Modern tags and lists"_s);
    }

    void TabGoesFromTheFieldsThroughTheResultToTheCommands() {
        HintDesk desk;
        Find<QWidget>(desk.Main(), "cmdPageFooterPlaceHolders").setFocus();
        QStringList order;
        for (int i = 0; i < 5; ++i) {
            QTest::keyClick(desk.Main().windowHandle(), Qt::Key_Tab);
            order << desk.Main().focusWidget()->objectName();
        }
        QCOMPARE(order, (QStringList{u"lblResult"_s, u"cmdOpenResult"_s, u"cmdShowFolder"_s,
                                     u"cmdSwitchModern"_s, u"cmdCreateList"_s}));
    }

    void TheFocusOfTheResultCanBeSeen() {
        HintDesk desk;
        Find<QWidget>(desk.Main(), "cmdPageFooterPlaceHolders").setFocus();
        const auto rightEnd = [&desk] { // without the text cursor
            return desk.Label()
                .grab(desk.Label().rect().adjusted(desk.Label().width() - 20, 0, 0, 0))
                .toImage();
        };
        const QImage without = rightEnd();
        QTest::keyClick(desk.Main().windowHandle(), Qt::Key_Tab);
        QVERIFY(desk.Label().hasFocus());
        QVERIFY(rightEnd() != without);
    }

    void ALongPathIsElidedAndShownInTheToolTip() {
        ResultDesk desk;
        const std::string name = std::string(200, 'x') + "\u202E<b>\n.htm";
        desk.SetOutput(desk.folder / name);
        const int narrowest = desk.Main().minimumSizeHint().width();
        desk.Run();
        QVERIFY(desk.Label().text().contains(u'\u2026'));
        QVERIFY(!desk.Label().toolTip().contains(u'\u202E'));
        QVERIFY(desk.Label().toolTip().contains(QString(200, u'x') + u"?&lt;b&gt;?.htm"_s));
        QVERIFY(desk.Main().minimumSizeHint().width() <= narrowest);
        QCOMPARE(desk.Label().textFormat(), Qt::PlainText);
    }
};

TUNEDEX_WINDOW_TEST(ResultPanelTest)
#include "ResultPanelTest.moc"
