// The options dialog and the layout editor beside the main window: what works while they are open, and what a
// run takes from them.
#include "Mp3Builder.h"
#include "WindowTest.h"
#include "frmEditLayout.h"
#include "frmOptions.h"
#include "frmProgress.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSettings>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

// A desk whose fields name a folder with one track of "The Band" and the output file list.htm.
struct EditDesk : Desk {
    EditDesk() {
        TheSettings().SetDefaults();
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

} // namespace

class OpenDialogsTest : public QObject {
    Q_OBJECT

  private slots:
    void WhileTheEditorIsOpenOnlyTheOptionsWait() {
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

    void OptionsThatWaitForTheEditorCannotBeClosed() {
        EditDesk desk;
        desk.OpenEditor();
        QVERIFY(!desk.frontEnd.Options()->close());
        QVERIFY(desk.OnlyTheOptionsWait());
        Click(*desk.Editor(), "cmdCancel");
        QVERIFY(desk.frontEnd.Options()->close());
    }

    void ARunTakesTheControlsOfTheOpenDialogs() {
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

    void DuringARunTheOpenDialogsWaitAndCannotBeClosed() {
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

    void AProgressWindowThatARunLeavesOpenHoldsUpTheEditorAsWell() {
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

    void QuittingClosesTheOpenDialogsAndDropsTheirEdits() {
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

    void AQuitThatIsCancelledLeavesTheDialogsOpen() {
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
};

TUNEDEX_WINDOW_TEST(OpenDialogsTest)
#include "OpenDialogsTest.moc"
