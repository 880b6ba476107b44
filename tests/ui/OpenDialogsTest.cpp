// The options dialog and the layout editor beside the main window: what works while they are open, what a run
// takes from them, and where a message leaves the focus.
#include "DefaultSettings.h"
#include "Mp3Builder.h"
#include "WindowTest.h"
#include "frmDirSelection.h"
#include "frmEditLayout.h"
#include "frmOptions.h"
#include "frmProgress.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

// A desk whose fields name a folder with one track of "The Band" and the output file list.htm.
struct EditDesk : Desk {
    EditDesk() {
        TheSettings() = DefaultSettings();
        folder.Write("music/a.mp3", Id3v2Tag({{"TPE1", Latin1("The Band")}}) + Audio(4000));
        MainFields fields;
        fields.inputFolder = folder / "music";
        fields.outputFile = folder / "list.htm";
        frontEnd.FillFields(fields);
        Show();
    }

    frmOptions& OpenOptions() {
        Click(Main(), "cmdOptions");
        return *frontEnd.Options();
    }
    frmEditLayout& OpenEditor() {
        Click(OpenOptions(), "cmdEditLayout");
        if (!QTest::qWaitForWindowActive(Editor())) {
            qFatal("the layout editor does not become active");
        }
        return *Editor();
    }
    frmEditLayout* Editor() { return frontEnd.Options() != nullptr ? frontEnd.Options()->Editor() : nullptr; }
    frmProgress* Progress() { return Main().findChild<frmProgress*>(); }
    void Run() { Click(Main(), "cmdCreateList"); }
    // Only the options wait: what holds while the editor is open and no run is under way.
    bool OnlyTheOptionsWait() {
        return Main().isEnabled() && Editor() != nullptr && Editor()->isVisible() && Editor()->isEnabled() &&
               IsEnabled(*Editor(), "cmdOK") && !frontEnd.Options()->isEnabled();
    }
    // A file that is worth a message in the middle of a run.
    void AddBrokenFile() { folder.Write("music/empty.mp3", ""); }
};

// Clicks where a user would: a window that is blocked by another one gets nothing.
void ClickOnScreen(QWidget& control) {
    QWidget& window = *control.window();
    const QPoint place = control.mapTo(&window, control.rect().center());
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
}

// Presses Enter in the next message box, once it is there.
void ConfirmNextMessage() {
    QTimer::singleShot(0, qApp, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr && box->isVisible() && box->isActiveWindow()) {
            QTest::keyClick(box, Qt::Key_Return);
        } else {
            ConfirmNextMessage();
        }
    });
}

bool IsFocusedWithWholeText(const QLineEdit& field) {
    return QApplication::activeWindow() == field.window() && QApplication::focusWidget() == &field &&
           !field.text().isEmpty() && field.selectedText() == field.text();
}

} // namespace

class OpenDialogsTest : public QObject {
    Q_OBJECT

  private slots:
    void AnOpenEditorDisablesOnlyTheOptions() {
        EditDesk desk;
        desk.OpenEditor();
        QVERIFY(desk.OnlyTheOptionsWait());
        desk.Main().activateWindow();
        auto& title = Find<QLineEdit>(desk.Main(), "txtPageTitle");
        ClickOnScreen(title);
        QTest::keyClick(desk.Main().windowHandle(), Qt::Key_X);
        QCOMPARE(title.text(), u"x"_s);
        auto& preview = Find<QCheckBox>(*desk.Editor(), "chkPreview");
        const bool before = preview.isChecked();
        preview.setFocus();
        QTest::keyClick(desk.Editor()->windowHandle(), Qt::Key_Space);
        QVERIFY(preview.isChecked() != before);
    }

    void TheOptionsButtonBringsTheOpenEditorToTheFront() {
        EditDesk desk;
        frmEditLayout& editor = desk.OpenEditor();
        desk.Main().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&desk.Main()));
        Click(desk.Main(), "cmdOptions");
        QTRY_COMPARE(QApplication::activeWindow(), &editor);
        QVERIFY(desk.OnlyTheOptionsWait());
    }

    void OptionsCannotBeClosedWhileTheEditorIsOpen() {
        EditDesk desk;
        desk.OpenEditor();
        QVERIFY(!desk.frontEnd.Options()->close());
        QVERIFY(desk.OnlyTheOptionsWait());
        Click(*desk.Editor(), "cmdCancel");
        QVERIFY(desk.frontEnd.Options()->close());
    }

    void ARunUsesTheControlsOfOpenDialogs() {
        EditDesk desk;
        frmEditLayout& editor = desk.OpenEditor();
        Find<QCheckBox>(*desk.frontEnd.Options(), "chkLinks").setChecked(true);
        Find<QComboBox>(editor, "cmbDocumentType").setCurrentText(u"XHTML 1.0"_s);
        Find<QCheckBox>(editor, "chkTheSubstitution").setChecked(false);
        Find<QLineEdit>(editor, "txtTableWidth").setText(u"77"_s);
        desk.Run();
        QVERIFY(desk.dialogs.messages.empty());
        const std::string page = ReadBytes(desk.folder / "list.htm");
        QVERIFY(page.starts_with("<?xml"));
        QVERIFY(page.find("The Band") != std::string::npos);
        QVERIFY(page.find(">Link</a>") != std::string::npos);
        QVERIFY(page.find("width=\"99%\"") != std::string::npos); // the rest of the editor waits for its OK
        QVERIFY(desk.OnlyTheOptionsWait());
        QCOMPARE(TextOf(editor, "txtTableWidth"), std::string("77"));
    }

    void DuringARunOpenDialogsAreDisabledAndCannotBeClosed() {
        EditDesk desk;
        desk.AddBrokenFile();
        frmEditLayout& editor = desk.OpenEditor();
        Find<QLineEdit>(editor, "txtTableWidth").setText(u"77"_s);
        bool waited = false;
        bool closed = false;
        desk.dialogs.whileMessageIsShown = [&] {
            waited = !desk.Main().isEnabled() && !desk.frontEnd.Options()->isEnabled() && !editor.isEnabled();
            const bool editorClosed = editor.close();
            const bool optionsClosed = desk.frontEnd.Options()->close();
            closed = editorClosed || optionsClosed;
        };
        desk.Run();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QVERIFY(waited);
        QVERIFY(!closed);
        QVERIFY(desk.folder.Exists("list.htm"));
        QVERIFY(desk.OnlyTheOptionsWait());
        QCOMPARE(TextOf(editor, "txtTableWidth"), std::string("77"));
        Click(editor, "cmdOK");
        QCOMPARE(desk.TheSettings().TableWidth, std::int16_t(77));
        QVERIFY(desk.frontEnd.Options()->isEnabled());
    }

    void TheMessagesOfARunBelongToTheMainWindow() {
        EditDesk desk;
        desk.AddBrokenFile();
        desk.OpenEditor();
        desk.Run();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QCOMPARE(desk.dialogs.messages[0].owner, &desk.Main());
    }

    void AProgressWindowLeftOpenDisablesTheEditorToo() {
        EditDesk desk;
        desk.OpenEditor();
        desk.TheSettings().Spanning = 0;
        Find<QCheckBox>(*desk.frontEnd.Options(), "chkSpan").setChecked(false);
        desk.folder.Make("list.htm"); // a folder where the list should go
        desk.Run();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QVERIFY(desk.Progress() != nullptr);
        QVERIFY(!desk.Main().isEnabled());
        QVERIFY(!desk.Editor()->isEnabled());
        desk.Progress()->close();
        QTRY_COMPARE(desk.Progress(), nullptr);
        QVERIFY(desk.OnlyTheOptionsWait());
    }

    void ARunThatFindsNothingLeavesTheEditorUsable() {
        EditDesk desk;
        desk.OpenEditor();
        Find<QLineEdit>(desk.Main(), "txtInputDir").setText(ToQt(desk.folder.Make("nothing")));
        desk.Run();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QVERIFY(desk.Progress() != nullptr);
        QVERIFY(desk.OnlyTheOptionsWait());
    }

    void ARunWithABadNumberInTheOpenOptionsIsRefused() {
        EditDesk desk;
        Find<QLineEdit>(desk.OpenOptions(), "txtFilesPerPage").setText(u"many"_s);
        const Settings before = desk.TheSettings();
        desk.Run();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QVERIFY(desk.dialogs.messages[0].text.ends_with("Error number 13 - Type mismatch"));
        QVERIFY(!desk.folder.Exists("list.htm"));
        QCOMPARE(desk.TheSettings().Spanning, before.Spanning);
        QVERIFY(desk.Main().isEnabled());
        QVERIFY(desk.frontEnd.Options()->isEnabled());
    }

    void QuittingClosesTheOpenDialogsAndDiscardsTheirEdits() {
        EditDesk desk;
        frmEditLayout& editor = desk.OpenEditor();
        Find<QLineEdit>(editor, "txtTableWidth").setText(u"77"_s);
        Find<QCheckBox>(*desk.frontEnd.Options(), "chkErrorLog").setChecked(true);
        const Settings before = desk.TheSettings();
        const QSignalSpy closed(&desk.Main(), &frmMain::Closed);
        QSettings(u"Corvale Works"_s, u"Tunedex"_s).clear();
        Click(desk.Main(), "cmdQuit");
        QCOMPARE(closed.count(), 1);
        // The program quits only when no window refuses to close.
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            QVERIFY2(!window->isVisible(), qPrintable(window->objectName()));
        }
        QTRY_COMPARE(desk.frontEnd.Options(), nullptr);
        QVERIFY(desk.TheSettings() == before);
        const QSettings store(u"Corvale Works"_s, u"Tunedex"_s);
        for (const char* name : {"Windows/frmEditLayout", "Windows/frmOptions", "Windows/frmMain"}) {
            QVERIFY2(store.contains(QString::fromLatin1(name)), name);
        }
    }

    void CancellingQuitLeavesTheDialogsOpen() {
        EditDesk desk;
        frmEditLayout& editor = desk.OpenEditor();
        Find<QLineEdit>(editor, "txtTableWidth").setText(u"77"_s);
        desk.dialogs.answers = {kAnswerCancel};
        Click(desk.Main(), "cmdQuit");
        QVERIFY(desk.OnlyTheOptionsWait());
        QCOMPARE(TextOf(editor, "txtTableWidth"), std::string("77"));
    }

    void OpenedSettingsAreShownInTheOpenDialogs() {
        EditDesk desk;
        frmEditLayout& editor = desk.OpenEditor();
        Find<QLineEdit>(editor, "txtBorderSize").setText(u"9"_s);
        desk.dialogs.files = {desk.folder.Write("other.cfg",
                                                "Spanning=7\r\nDocumentType=XHTML\r\nTableWidth=0/640\r\n"
                                                "Colour(1)=ABCDEF\r\nPageTitle=Other\r\n")};
        Choose(desk.Main(), "itmFileOpenSettings");
        QCOMPARE(TextOf(desk.Main(), "txtPageTitle"), std::string("Other"));
        QCOMPARE(TextOf(*desk.frontEnd.Options(), "txtFilesPerPage"), std::string("7"));
        QCOMPARE(Find<QComboBox>(editor, "cmbDocumentType").currentText(), u"XHTML 1.0"_s);
        QCOMPARE(TextOf(editor, "txtTableWidth"), std::string("640"));
        QCOMPARE(TextOf(editor, "txtBorderSize"), std::string("1"));
        QCOMPARE(TextOf(editor, "txtColour(1)"), std::string("ABCDEF"));
        QVERIFY(desk.OnlyTheOptionsWait());
    }

    void SavedSettingsHoldWhatTheOpenDialogsShow() {
        EditDesk desk;
        frmEditLayout& editor = desk.OpenEditor();
        Find<QCheckBox>(*desk.frontEnd.Options(), "chkErrorLog").setChecked(true);
        Find<QComboBox>(editor, "cmbDocumentType").setCurrentText(u"XHTML 1.0"_s);
        Choose(desk.Main(), "itmFileSaveSettings");
        const std::string saved = ReadBytes(desk.folder / "Tunedex.cfg");
        QVERIFY(saved.find("\nErrorLog=1\r\n") != std::string::npos);
        QVERIFY(saved.find("\nDocumentType=XHTML\r\n") != std::string::npos);
    }

    void AMessageBelongsToTheWindowThatRaisesIt() {
        EditDesk desk;
        const auto owner = [&] { return desk.dialogs.messages.back().owner; };
        frmOptions& options = desk.OpenOptions();
        Choose(options, "itmHelpTopics");
        QCOMPARE(owner(), &options);
        Find<QLineEdit>(options, "txtFilesPerPage").setText(u"many"_s);
        Click(options, "cmdUse");
        QCOMPARE(owner(), &options);
        Choose(desk.Main(), "itmHelpTopics");
        QCOMPARE(owner(), &desk.Main());

        frmEditLayout& editor = desk.OpenEditor();
        Click(editor, "cmdHelp");
        QCOMPARE(owner(), &editor);
        Find<QLineEdit>(editor, "txtTableWidth").setText(u"wide"_s);
        Click(editor, "cmdOK");
        QCOMPARE(owner(), &editor);
        desk.dialogs.answers = {kAnswerCancel};
        Click(desk.Main(), "cmdQuit");
        QCOMPARE(owner(), &desk.Main());

        Find<QCheckBox>(desk.Main(), "chkMultipleDirs").click();
        desk.TheSettings().Directory = "%MULT%/a";
        Click(desk.Main(), "cmdSelectDirs");
        auto& folders = OpenWindow<frmDirSelection>(desk.Main());
        Click(folders, "cmdClear");
        QCOMPARE(owner(), &folders);
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(7));
    }

    void ABadNumberHasTheFocusAfterItsMessage_data() {
        QTest::addColumn<QByteArray>("box");
        QTest::addColumn<bool>("inEditor");
        QTest::newRow("files per page") << QByteArray("txtFilesPerPage") << false;
        QTest::newRow("table width") << QByteArray("txtTableWidth") << true;
        QTest::newRow("border size") << QByteArray("txtBorderSize") << true;
        QTest::newRow("cell padding") << QByteArray("txtCellPadding") << true;
    }
    void ABadNumberHasTheFocusAfterItsMessage() {
        QFETCH(QByteArray, box);
        QFETCH(bool, inEditor);
        Desk desk;
        desk.TheSettings() = DefaultSettings();
        Dialogs boxes; // the real ones
        WindowsFrontEnd frontEnd(desk.fake.application, boxes);
        frontEnd.MainWindow().show();
        frontEnd.OpenOptions();
        QWidget* window = frontEnd.Options();
        if (inEditor) {
            Click(*window, "cmdEditLayout");
            window = frontEnd.Options()->Editor();
        }
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        auto& field = Find<QLineEdit>(*window, box.constData());
        field.setText(u"12a"_s);
        auto& accept = Find<QPushButton>(*window, inEditor ? "cmdOK" : "cmdUse");
        accept.setFocus();
        ConfirmNextMessage();
        accept.click();
        QTRY_VERIFY(IsFocusedWithWholeText(field));
        QTest::keyClick(window->windowHandle(), Qt::Key_5);
        QCOMPARE(field.text(), u"5"_s);
    }

    void TheFolderFieldHasTheFocusAfterItsMessageWithOptionsOpen() {
        Desk desk;
        desk.TheSettings() = DefaultSettings();
        Dialogs boxes; // the real ones
        WindowsFrontEnd frontEnd(desk.fake.application, boxes);
        frontEnd.MainWindow().show();
        auto& field = Find<QLineEdit>(frontEnd.MainWindow(), "txtInputDir");
        field.setText(ToQt(desk.folder / "missing"));
        frontEnd.OpenOptions();
        QVERIFY(QTest::qWaitForWindowActive(frontEnd.Options()));
        ConfirmNextMessage();
        QVERIFY(!frontEnd.CreateList().Written());
        QTRY_VERIFY(IsFocusedWithWholeText(field));
    }
};

TUNEDEX_WINDOW_TEST(OpenDialogsTest)
#include "OpenDialogsTest.moc"
