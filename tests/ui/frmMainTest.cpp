#include "frmMain.h"

#include "DefaultSettings.h"
#include "SettingsFuncs.h"
#include "Startup.h"
#include "WindowTest.h"
#include "frmAbout.h"
#include "frmDirSelection.h"
#include "frmOptions.h"

#include <QAccessible>
#include <QAction>
#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include <tuple>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

// The lines of a settings file without its header, which contains the time.
bool HoldsLine(const std::string& path, const std::string& line) {
    return ReadBytes(path).find("\n" + line + "\r\n") != std::string::npos;
}

QAction& PlaceholderItem(Desk& desk, int index) {
    return *Find<QMenu>(desk.Main(), "mnuPlaceholders").actions()[index];
}

} // namespace

class frmMainTest : public QObject {
    Q_OBJECT

  private slots:
    void TheCaptionNamesTheVersion() {
        Desk desk;
        QVERIFY(desk.Main().windowTitle().startsWith(u"Tunedex v1.1 - "_s));
    }

    void StartUpFillsTheFields() {
        Desk desk;
        desk.folder.Write("Tunedex.cfg",
                          "Directory=/music\r\nOutputFile=/out/list.htm\r\nWindowTitle=W %D\r\n"
                          "PageTitle=P\r\nPageFooter=F\r\n");
        StartUp(desk.fake.application, desk.frontEnd, {});
        QCOMPARE(TextOf(desk.Main(), "txtInputDir"), std::string("/music"));
        QCOMPARE(TextOf(desk.Main(), "txtOutputFile"), std::string("/out/list.htm"));
        QCOMPARE(TextOf(desk.Main(), "txtWindowTitle"), std::string("W %D"));
        QCOMPARE(TextOf(desk.Main(), "txtPageTitle"), std::string("P"));
        QCOMPARE(TextOf(desk.Main(), "txtPageFooter"), std::string("F"));
        QVERIFY(!Find<QCheckBox>(desk.Main(), "chkMultipleDirs").isChecked());
    }

    void AStoredFolderListSurvivesStartUp() {
        Desk desk;
        desk.folder.Write("Tunedex.cfg", "Directory=%MULT%/a%||%/b\r\n");
        StartUp(desk.fake.application, desk.frontEnd, {});
        QVERIFY(Find<QCheckBox>(desk.Main(), "chkMultipleDirs").isChecked());
        QCOMPARE(TextOf(desk.Main(), "txtInputDir"), std::string());
        QCOMPARE(TextOf(desk.Main(), "lblFolderCount"), std::string("2 folders chosen"));
        QCOMPARE(desk.TheSettings().Directory, std::string("%MULT%/a%||%/b"));
    }

    void FieldsUpdateTheirSettingsAtOnce_data() {
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<int>("setting");
        QTest::newRow("txtInputDir") << QByteArray("txtInputDir") << 0;
        QTest::newRow("txtOutputFile") << QByteArray("txtOutputFile") << 1;
        QTest::newRow("txtWindowTitle") << QByteArray("txtWindowTitle") << 2;
        QTest::newRow("txtPageTitle") << QByteArray("txtPageTitle") << 3;
        QTest::newRow("txtPageFooter") << QByteArray("txtPageFooter") << 4;
    }
    void FieldsUpdateTheirSettingsAtOnce() {
        QFETCH(QByteArray, field);
        QFETCH(int, setting);
        Desk desk;
        desk.Show();
        const Settings before = desk.TheSettings();
        Type(desk.Main(), field.constData(), "x%D y");
        Settings expected = before;
        std::string* const targets[] = {&expected.Directory, &expected.OutputFile, &expected.WindowTitle,
                                        &expected.PageTitle, &expected.PageFooter};
        *targets[setting] = "x%D y";
        QVERIFY(desk.TheSettings() == expected);
    }

    void TheFolderFieldIsIgnoredInMultiFolderMode() {
        Desk desk;
        desk.TheSettings().Directory = "%MULT%/a";
        MainFields fields;
        fields.multipleFolders = true;
        desk.frontEnd.FillFields(fields);
        Find<QLineEdit>(desk.Main(), "txtInputDir").setText(u"/other"_s);
        QCOMPARE(desk.TheSettings().Directory, std::string("%MULT%/a"));
    }

    void APathThatIsNoUtf8ComesThroughItsField() {
        Desk desk;
        MainFields fields;
        fields.inputFolder = "/old\xFCname";
        fields.outputFile = "/\xFF/list.htm";
        desk.frontEnd.FillFields(fields);
        QCOMPARE(desk.frontEnd.Fields().inputFolder, fields.inputFolder);
        QCOMPARE(desk.frontEnd.Fields().outputFile, fields.outputFile);
        QCOMPARE(desk.TheSettings().Directory, fields.inputFolder);
    }

    void TheCheckBoxSwitchesBetweenOneFolderAndAList() {
        Desk desk;
        desk.Show();
        Type(desk.Main(), "txtInputDir", "/music");
        auto& box = Find<QCheckBox>(desk.Main(), "chkMultipleDirs");
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
        QVERIFY(box.isChecked());
        QCOMPARE(desk.TheSettings().Directory, std::string("%MULT%"));
        QVERIFY(!IsEnabled(desk.Main(), "txtInputDir"));
        QVERIFY(!IsEnabled(desk.Main(), "cmdSelectDir"));
        QVERIFY(IsEnabled(desk.Main(), "cmdSelectDirs"));
        QCOMPARE(TextOf(desk.Main(), "lblFolderCount"), std::string("0 folders chosen"));
        QCOMPARE(TextOf(desk.Main(), "txtInputDir"), std::string("/music"));

        PressMnemonic(desk.Main(), Qt::Key_M);
        QVERIFY(!box.isChecked());
        QCOMPARE(desk.TheSettings().Directory, std::string("/music"));
        QVERIFY(IsEnabled(desk.Main(), "txtInputDir"));
        QVERIFY(IsEnabled(desk.Main(), "cmdSelectDir"));
        QVERIFY(!IsEnabled(desk.Main(), "cmdSelectDirs"));
        QCOMPARE(TextOf(desk.Main(), "lblFolderCount"), std::string());
    }

    void AssistiveTechnologySwitchesBetweenOneFolderAndAList() {
        Desk desk;
        desk.Show();
        Type(desk.Main(), "txtInputDir", "/music");
        auto& box = Find<QCheckBox>(desk.Main(), "chkMultipleDirs");
        QAccessibleActionInterface& actions = *QAccessible::queryAccessibleInterface(&box)->actionInterface();
        actions.doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(box.isChecked());
        QCOMPARE(desk.TheSettings().Directory, std::string("%MULT%"));
        QVERIFY(IsEnabled(desk.Main(), "cmdSelectDirs"));
        actions.doAction(QAccessibleActionInterface::toggleAction());
        QVERIFY(!box.isChecked());
        QCOMPARE(desk.TheSettings().Directory, std::string("/music"));
        QVERIFY(!IsEnabled(desk.Main(), "cmdSelectDirs"));
    }

    void FillingTheFieldsLeavesTheFolderSettingUnchanged_data() {
        QTest::addColumn<bool>("several");
        QTest::newRow("to a list") << true;
        QTest::newRow("to one folder") << false;
    }
    void FillingTheFieldsLeavesTheFolderSettingUnchanged() {
        QFETCH(bool, several);
        Desk desk;
        Find<QCheckBox>(desk.Main(), "chkMultipleDirs").setChecked(!several);
        desk.TheSettings().Directory = several ? "%MULT%/a%||%/b" : "/music";
        desk.frontEnd.FillFields(FieldsFor(desk.TheSettings()));
        QCOMPARE(desk.frontEnd.Fields().multipleFolders, several);
        QCOMPARE(desk.TheSettings().Directory, std::string(several ? "%MULT%/a%||%/b" : "/music"));
        QCOMPARE(IsEnabled(desk.Main(), "cmdSelectDirs"), several);
    }

    void BrowsingSetsTheFolderField() {
        Desk desk;
        desk.Show();
        Type(desk.Main(), "txtInputDir", "/before");
        desk.dialogs.folders = {"/mus\xFC"
                                "c",
                                std::nullopt};
        Click(desk.Main(), "cmdSelectDir");
        QCOMPARE(desk.dialogs.folderQuestions[0].prompt,
                 std::string(
                     "Select the folder that you would like Tunedex to scan for MP3 files, and click OK."));
        QCOMPARE(desk.dialogs.folderQuestions[0].start, std::string("/before"));
        QCOMPARE(desk.TheSettings().Directory, std::string("/mus\xFC"
                                                           "c"));
        Click(desk.Main(), "cmdSelectDir");
        QCOMPARE(desk.TheSettings().Directory, std::string("/mus\xFC"
                                                           "c"));
    }

    void TheFolderListIsEditedInItsDialog() {
        Desk desk;
        desk.Show();
        const std::string one = desk.folder.Make("One");
        const std::string two = desk.folder.Make("Two");
        PressMnemonic(desk.Main(), Qt::Key_M);
        Click(desk.Main(), "cmdSelectDirs");
        auto& window = OpenWindow<frmDirSelection>(desk.Main());
        QVERIFY(window.isModal());
        desk.dialogs.folders = {one, two};
        Click(window, "cmdAdd");
        Click(window, "cmdAdd");
        Click(window, "cmdOK");
        QCOMPARE(desk.TheSettings().Directory, "%MULT%" + one + "%||%" + two);
        QCOMPARE(TextOf(desk.Main(), "lblFolderCount"), std::string("2 folders chosen"));
    }

    void TheOutputFileDialogOffersThreeFormats() {
        Desk desk;
        desk.Show();
        desk.dialogs.files = {"/out/list.m3u", std::nullopt};
        Click(desk.Main(), "cmdSelectOutputFile");
        QVERIFY(desk.dialogs.fileQuestions[0].forSaving);
        QCOMPARE(
            desk.dialogs.fileQuestions[0].filters,
            u"HTML File (*.htm,*.html)|*.htm;*.html|Text File (*.txt)|*.txt|Winamp Playlist (*.m3u)|*.m3u|"_s);
        QCOMPARE(TextOf(desk.Main(), "txtOutputFile"), std::string("/out/list.m3u"));
        Click(desk.Main(), "cmdSelectOutputFile");
        QCOMPARE(desk.dialogs.fileQuestions[1].start, std::string("/out/list.m3u"));
        QCOMPARE(desk.TheSettings().OutputFile, std::string("/out/list.m3u"));
    }

    void ModernListsHaveMoreFormats() {
        Desk desk;
        desk.Show();
        const std::string classic = TextOf(desk.Main(), "lblOutputHint");
        QVERIFY(classic.find(".csv") == std::string::npos);
        desk.dialogs.files = {desk.folder.Write("modern.cfg", "Modern=1\r\n"), "/out/list.csv"};
        Choose(desk.Main(), "itmFileOpenSettings");
        QVERIFY(TextOf(desk.Main(), "lblOutputHint").find(".csv table") != std::string::npos);
        Click(desk.Main(), "cmdSelectOutputFile");
        QVERIFY(desk.dialogs.fileQuestions[1].filters.endsWith(
            u"|*.m3u|CSV File (*.csv)|*.csv|UTF-8 Playlist (*.m3u8)|*.m3u8|"_s));
        Click(desk.Main(), "cmdOptions");
        Find<QCheckBox>(*desk.frontEnd.Options(), "chkModern").setChecked(false);
        Click(*desk.frontEnd.Options(), "cmdUse");
        QVERIFY(TextOf(desk.Main(), "lblOutputHint").starts_with("Writes list.csv.htm."));
        Find<QLineEdit>(desk.Main(), "txtOutputFile").clear();
        QCOMPARE(TextOf(desk.Main(), "lblOutputHint"), classic);
    }

    void SaveInTheOptionsDialogStoresTheMainFieldsToo() {
        Desk desk;
        desk.Show();
        desk.TheSettings() = DefaultSettings();
        desk.frontEnd.FillFields(FieldsFor(desk.TheSettings()));
        Type(desk.Main(), "txtPageTitle", "Mine");
        Click(desk.Main(), "cmdOptions");
        auto& window = OpenWindow<frmOptions>(desk.Main());
        QCOMPARE(desk.frontEnd.Options(), &window);
        Find<QCheckBox>(window, "chkErrorLog").setChecked(true);
        QVERIFY(!desk.TheSettings().ErrorLog);
        Click(window, "cmdSave");
        QVERIFY(!window.isVisible());
        QVERIFY(desk.TheSettings().ErrorLog);
        QVERIFY(HoldsLine(desk.folder / "Tunedex.cfg", "PageTitle=Mine"));
        QVERIFY(HoldsLine(desk.folder / "Tunedex.cfg", "ErrorLog=1"));
        QTRY_COMPARE(desk.frontEnd.Options(), nullptr);
        Click(desk.Main(), "cmdOptions");
        QVERIFY(desk.frontEnd.Options() != nullptr);
    }

    void QuittingAsksIfConfirmationIsOn_data() {
        QTest::addColumn<QByteArray>("how");
        QTest::newRow("button") << QByteArray("cmdQuit");
        QTest::newRow("menu") << QByteArray("itmFileExit");
        QTest::newRow("shortcut") << QByteArray("Ctrl+Q");
        QTest::newRow("title bar") << QByteArray("close");
    }
    void QuittingAsksIfConfirmationIsOn() {
        QFETCH(QByteArray, how);
        Desk desk;
        desk.Show();
        const QSignalSpy closed(&desk.Main(), &frmMain::Closed);
        const auto quit = [&] {
            if (how == "cmdQuit") {
                Click(desk.Main(), "cmdQuit");
            } else if (how == "itmFileExit") {
                Choose(desk.Main(), "itmFileExit");
            } else if (how == "Ctrl+Q") {
                QTest::keyClick(&desk.Main(), Qt::Key_Q, Qt::ControlModifier);
            } else {
                desk.Main().close();
            }
        };
        desk.TheSettings().ConfirmQuit = true;
        const Settings before = desk.TheSettings();
        desk.dialogs.answers = {kAnswerCancel};
        quit();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QCOMPARE(desk.dialogs.messages[0].text, std::string("Do you really want\nto quit Tunedex?"));
        QCOMPARE(desk.dialogs.messages[0].buttons, 33);
        QCOMPARE(desk.dialogs.messages[0].title, std::string("Quit?"));
        QVERIFY(desk.Main().isVisible());
        QCOMPARE(closed.count(), 0);
        QVERIFY(desk.TheSettings() == before);

        desk.dialogs.answers = {kAnswerOk};
        quit();
        QVERIFY(!desk.Main().isVisible());
        QCOMPARE(closed.count(), 1);
    }

    void QuittingWithoutConfirmationAsksNothing() {
        Desk desk;
        desk.Show();
        desk.TheSettings().ConfirmQuit = false;
        Click(desk.Main(), "cmdQuit");
        QVERIFY(desk.dialogs.messages.empty());
        QVERIFY(!desk.Main().isVisible());
    }

    void HelpOpensTheHelpFileOrOnlyShowsAMessage() {
        FakeBrowser browser;
        Desk desk;
        desk.Show();
        desk.fake.application.errorTitle = "Error!";
        Choose(desk.Main(), "itmHelpTopics");
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QCOMPARE(desk.dialogs.messages[0].text, std::string("The help file could not be found!"));
        QCOMPARE(desk.dialogs.messages[0].buttons, 48);
        QCOMPARE(desk.dialogs.messages[0].title, std::string("Error!"));
        QVERIFY(browser.opened.empty());

        desk.fake.application.helpFile = "/srv/Help.html";
        QTest::keyClick(&desk.Main(), Qt::Key_F1);
        QCOMPARE(browser.opened.size(), std::size_t(1));
        QCOMPARE(browser.opened[0], QUrl(u"file:///srv/Help.html"_s));
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
    }

    void SavingStoresTheControlsAndWritesTheDefaultFile() {
        Desk desk;
        desk.Show();
        Type(desk.Main(), "txtInputDir", "/music");
        Type(desk.Main(), "txtWindowTitle", "My list");
        QTest::keyClick(&desk.Main(), Qt::Key_S, Qt::ControlModifier);
        QVERIFY(desk.dialogs.fileQuestions.empty());
        QVERIFY(HoldsLine(desk.folder / "Tunedex.cfg", "Directory=/music"));
        QVERIFY(HoldsLine(desk.folder / "Tunedex.cfg", "WindowTitle=My list"));
        QVERIFY(HoldsLine(desk.folder / "Tunedex.cfg", "DocumentType=HTML"));
        QVERIFY(desk.dialogs.messages.empty());
    }

    void SavingAsWritesTheChosenFileAndLaterSavesGoThere() {
        Desk desk;
        desk.Show();
        desk.dialogs.files = {desk.folder / "mine"};
        QTest::keyClick(&desk.Main(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(desk.dialogs.fileQuestions[0].forSaving);
        QCOMPARE(desk.dialogs.fileQuestions[0].filters,
                 u"Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*"_s);
        QVERIFY(HoldsLine(desk.folder / "mine.cfg", "PageTitle="));
        Type(desk.Main(), "txtPageTitle", "Later");
        Choose(desk.Main(), "itmFileSaveSettings");
        QVERIFY(HoldsLine(desk.folder / "mine.cfg", "PageTitle=Later"));
        QVERIFY(!desk.folder.Exists("Tunedex.cfg"));
        QVERIFY(desk.Main().windowTitle().startsWith(u"Tunedex v1.1 - "_s));
    }

    void TheCaptionNamesTheSettingsFileAndMarksChanges() {
        Desk desk;
        desk.Show();
        StartUp(desk.fake.application, desk.frontEnd, {});
        const auto caption = [&desk] {
            return desk.Main().windowTitle() + (desk.Main().isWindowModified() ? u" changed"_s : QString());
        };
        QCOMPARE(caption(), u"Tunedex v1.1 - Tunedex.cfg[*]"_s);
        Type(desk.Main(), "txtPageTitle", "Mine");
        QCOMPARE(caption(), u"Tunedex v1.1 - Tunedex.cfg[*] changed"_s);
        desk.dialogs.files = {desk.folder / "mine"};
        Choose(desk.Main(), "itmFileSaveSettingsAs");
        QCOMPARE(caption(), u"Tunedex v1.1 - mine.cfg[*]"_s);
        Click(desk.Main(), "chkMultipleDirs");
        QCOMPARE(caption(), u"Tunedex v1.1 - mine.cfg[*] changed"_s);
        desk.dialogs.files = {desk.folder / "mine.cfg"};
        Choose(desk.Main(), "itmFileOpenSettings");
        QCOMPARE(caption(), u"Tunedex v1.1 - mine.cfg[*]"_s);
        Click(desk.Main(), "cmdOptions");
        Find<QCheckBox>(*desk.frontEnd.Options(), "chkRecursive").toggle();
        Click(*desk.frontEnd.Options(), "cmdUse");
        QTRY_COMPARE(caption(), u"Tunedex v1.1 - mine.cfg[*] changed"_s);
    }

    void ATildeIsTheHomeFolderInPathFields() {
        qputenv("HOME", "/home/lea");
        Desk desk;
        desk.Show();
        Type(desk.Main(), "txtInputDir", "~/Music");
        QCOMPARE(desk.TheSettings().Directory, std::string("/home/lea/Music"));
        QCOMPARE(desk.Main().Fields().inputFolder, std::string("/home/lea/Music"));
        QCOMPARE(TextOf(desk.Main(), "txtInputDir"), std::string("~/Music"));
        Type(desk.Main(), "txtOutputFile", "~/list.htm");
        QCOMPARE(TextOf(desk.Main(), "txtInputDir"), std::string("/home/lea/Music"));
        QCOMPARE(desk.TheSettings().OutputFile, std::string("/home/lea/list.htm"));
        Type(desk.Main(), "txtPageTitle", "~/not a path");
        QCOMPARE(TextOf(desk.Main(), "txtOutputFile"), std::string("/home/lea/list.htm"));
        Find<QLineEdit>(desk.Main(), "txtWindowTitle").setFocus();
        QCOMPARE(TextOf(desk.Main(), "txtPageTitle"), std::string("~/not a path"));
    }

    void PathsOfEarlierRunsAreOfferedBesideTheirFields() {
        Desk desk;
        desk.Show();
        QVERIFY(!IsEnabled(desk.Main(), "cmdRecentFolders"));
        QVERIFY(!IsEnabled(desk.Main(), "cmdRecentOutputs"));
        const std::string music = desk.folder.Make("a & b");
        Find<QLineEdit>(desk.Main(), "txtInputDir").setText(ToQt(music));
        Click(desk.Main(), "cmdCreateList"); // refused: no output file
        QVERIFY(!IsEnabled(desk.Main(), "cmdRecentFolders"));
        Find<QLineEdit>(desk.Main(), "txtOutputFile").setText(ToQt(desk.folder / "list.htm"));
        Click(desk.Main(), "cmdCreateList");
        desk.frontEnd.CloseProgress();
        QVERIFY(IsEnabled(desk.Main(), "cmdRecentFolders"));
        QVERIFY(IsEnabled(desk.Main(), "cmdRecentOutputs"));
        for (const auto& [button, field, path] :
             {std::tuple("cmdRecentFolders", "txtInputDir", music),
              std::tuple("cmdRecentOutputs", "txtOutputFile", desk.folder / "list.htm")}) {
            Find<QLineEdit>(desk.Main(), field).setText(u"other"_s);
            QMenu& menu = *Find<QToolButton>(desk.Main(), button).menu();
            emit menu.aboutToShow();
            menu.actions().constFirst()->trigger();
            QCOMPARE(TextOf(desk.Main(), field), path);
            emit menu.aboutToShow();
            menu.actions().constLast()->trigger();
            QVERIFY(!IsEnabled(desk.Main(), button));
        }
    }

    void ALineSaysWhatARunWouldWrite_data() {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<int>("spanning");
        QTest::addColumn<bool>("modern");
        QTest::addColumn<QString>("hint");
        const auto row = [](const char* output, int spanning, bool modern, const QString& hint) {
            QTest::newRow(qPrintable(hint)) << QByteArray(output) << spanning << modern << hint;
        };
        row("list.htm", 0, false, u"Writes list.htm.\n"_s);
        row("list", 0, true, u"Writes list.htm.\n"_s);
        row("list.htm", 100, false, u"Writes list.001.htm … (100 files a page).\n"_s);
        row("list.txt", 100, false, u"Writes list.txt.\n"_s);
        row("list.m3u8", 0, true, u"Writes list.m3u8.\n"_s);
        row("list.m3u8", 0, false, u"Writes list.m3u8.htm.\nOnly modern tags and lists know .m3u8."_s);
        row("list.pdf", 0, true, u"Writes list.pdf.htm.\n.pdf is not the extension of a format."_s);
        row("old.htm", 0, false, u"Writes old.htm.\nThe existing list will be replaced."_s);
        row("old2.htm", 5, false,
            u"Writes old2.001.htm … (5 files a page).\nThe existing list will be replaced."_s);
    }
    void ALineSaysWhatARunWouldWrite() {
        QFETCH(QByteArray, output);
        QFETCH(int, spanning);
        QFETCH(bool, modern);
        QFETCH(QString, hint);
        Desk desk;
        desk.Show();
        desk.folder.Write("old.htm", "x");
        desk.folder.Write("old2.001.htm", "x");
        desk.TheSettings().Spanning = static_cast<std::int16_t>(spanning);
        desk.TheSettings().Modern = modern;
        const std::string extensions = TextOf(desk.Main(), "lblOutputHint");
        QVERIFY(extensions.starts_with("The extension sets the format: "));
        Find<QLineEdit>(desk.Main(), "txtOutputFile").setText(ToQt(desk.folder / output.toStdString()));
        QCOMPARE(ToQt(TextOf(desk.Main(), "lblOutputHint")), hint);
        Find<QLineEdit>(desk.Main(), "txtOutputFile").clear();
        QVERIFY(TextOf(desk.Main(), "lblOutputHint").starts_with("The extension sets the format: "));
    }

    void CancellingADialogSavesAndLoadsNothing() {
        Desk desk;
        desk.Show();
        const Settings before = desk.TheSettings();
        Choose(desk.Main(), "itmFileSaveSettingsAs");
        QTest::keyClick(&desk.Main(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(desk.dialogs.fileQuestions.size(), std::size_t(2));
        QVERIFY(desk.TheSettings() == before);
        QVERIFY(!desk.folder.Exists("Tunedex.cfg"));
    }

    void OpeningLoadsTheFileOverTheSettingsAndRefreshesTheFields() {
        Desk desk;
        desk.Show();
        desk.TheSettings().PageFooter = "kept";
        desk.frontEnd.FillFields(FieldsFor(desk.TheSettings()));
        const std::string path =
            desk.folder.Write("other.cfg", "Directory=%MULT%/a%||%/b\r\nOutputFile=/o.txt\r\nSpanning=7\r\n");
        desk.dialogs.files = {path};
        QTest::keyClick(&desk.Main(), Qt::Key_O, Qt::ControlModifier);
        QVERIFY(!desk.dialogs.fileQuestions[0].forSaving);
        QCOMPARE(desk.dialogs.fileQuestions[0].filters,
                 u"Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*"_s);
        QCOMPARE(TextOf(desk.Main(), "txtOutputFile"), std::string("/o.txt"));
        QCOMPARE(TextOf(desk.Main(), "txtPageFooter"), std::string("kept"));
        QVERIFY(desk.frontEnd.Fields().multipleFolders);
        QCOMPARE(desk.TheSettings().Directory, std::string("%MULT%/a%||%/b"));
        QCOMPARE(desk.TheSettings().Spanning, std::int16_t(7));

        Choose(desk.Main(), "itmFileSaveSettings"); // to the opened file
        QVERIFY(HoldsLine(path, "PageFooter=kept"));
        QVERIFY(!desk.folder.Exists("Tunedex.cfg"));
    }

    void AFileOfAFileManagerOpensAsSettingsOrLendsItsLook() {
        Desk desk;
        desk.Show();
        desk.Main().OpenFile(
            desk.folder.Write("mine.cfg", "OutputFile=/out/mine.txt\r\nColour(0)=111111\r\n"));
        QCOMPARE(TextOf(desk.Main(), "txtOutputFile"), std::string("/out/mine.txt"));
        QVERIFY(desk.Main().windowTitle().endsWith(u" - mine.cfg[*]"_s));
        desk.Main().OpenFile(desk.folder.Write("Sea.THM", "Colour(0)=0B3C5D\r\n"));
        QCOMPARE(desk.TheSettings().Colour[0], std::string("0B3C5D"));
        QCOMPARE(TextOf(desk.Main(), "txtOutputFile"), std::string("/out/mine.txt"));
        QVERIFY(desk.Main().windowTitle().contains(u" - mine.cfg[*]"_s)); // saving writes no theme file
        QVERIFY(desk.Main().isWindowModified());
        QVERIFY(TextOf(desk.Main(), "lblResult").ends_with("the look of this theme: Sea.THM"));
    }

    void AFileOfAFileManagerThatIsGoneShowsAMessage() {
        Desk desk;
        desk.Show();
        desk.Main().OpenFile(desk.folder / "gone.cfg");
        desk.Main().OpenFile(desk.folder / "gone.thm");
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(2));
        QCOMPARE(desk.dialogs.messages[0].text, std::string("The specified settings file\ndoes not exist!"));
        QVERIFY(desk.dialogs.messages[1].text.ends_with("53 - File not found"));
        QVERIFY(!desk.Main().isWindowModified());
    }

    void ASettingsFileThatFailsShowsAMessage_data() {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("error");
        const QByteArray unexpected = "An unexpected error occurred. The error was: \n\nError number ";
        QTest::newRow("opening a missing file") << QByteArray("itmFileOpenSettings") << QByteArray("gone.cfg")
                                                << QByteArray("The specified settings file\ndoes not exist!");
        QTest::newRow("opening a name that is too long")
            << QByteArray("itmFileOpenSettings") << QByteArray(300, 'n') + ".cfg"
            << unexpected + "52 - Bad file name or number";
        QTest::newRow("saving into a missing folder")
            << QByteArray("itmFileSaveSettingsAs") << QByteArray("none/a.cfg")
            << unexpected + "76 - Path not found";
    }
    void ASettingsFileThatFailsShowsAMessage() {
        QFETCH(QByteArray, item);
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, error);
        Desk desk;
        desk.Show();
        desk.dialogs.files = {desk.folder / path.toStdString()};
        Choose(desk.Main(), item.constData());
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QCOMPARE(desk.dialogs.messages[0].text, error.toStdString());
        QCOMPARE(desk.dialogs.messages[0].buttons, 48);
        QCOMPARE(desk.dialogs.messages[0].title, std::string("Error!"));
        Choose(desk.Main(), "itmFileSaveSettings"); // not to the file that failed
        QVERIFY(desk.folder.Exists("Tunedex.cfg"));
    }

    void AMessageNamesASettingThatIsNotSavedBecauseOfALineBreak() {
        Desk desk;
        desk.Show();
        desk.TheSettings().Directory = "%MULT%/a\nb";
        desk.frontEnd.FillFields(FieldsFor(desk.TheSettings()));
        Choose(desk.Main(), "itmFileSaveSettings");
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QCOMPARE(desk.dialogs.messages[0].text, std::string("A settings file cannot hold a line break.\n"
                                                            "These settings were not saved:\n\nDirectory"));
        QCOMPARE(desk.dialogs.messages[0].buttons, 48);
        QCOMPARE(desk.dialogs.messages[0].title, std::string("Settings"));
        QVERIFY(HoldsLine(desk.folder / "Tunedex.cfg", "Recurse=0"));
        QVERIFY(test::ReadBytes(desk.folder / "Tunedex.cfg").find("Directory=") == std::string::npos);
    }

    void TheMenuListsAllEightPlaceholders() {
        Desk desk;
        QStringList labels;
        for (const QAction* action : Find<QMenu>(desk.Main(), "mnuPlaceholders").actions()) {
            QCOMPARE(action->objectName(), u"itmPlaceholder"_s);
            labels.append(action->text());
        }
        const QStringList expected{u"%D - Current date"_s,
                                   u"%T - Current time"_s,
                                   u"%C - Number of files"_s,
                                   u"%N - Number of non-tagged files"_s,
                                   u"%S - Total size of all files"_s,
                                   u"%P - Total play-time of all files"_s,
                                   u"%% - Percent sign"_s,
                                   u"%L - Line break"_s};
        QCOMPARE(labels, expected);
    }

    void APlaceholderIsInsertedAtTheCaret_data() {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QByteArray>("field");
        QTest::newRow("window title")
            << QByteArray("cmdWindowTitlePlaceHolders") << QByteArray("txtWindowTitle");
        QTest::newRow("page title") << QByteArray("cmdPageTitlePlaceHolders") << QByteArray("txtPageTitle");
        QTest::newRow("page footer") << QByteArray("cmdPageFooterPlaceHolders")
                                     << QByteArray("txtPageFooter");
    }
    void APlaceholderIsInsertedAtTheCaret() {
        QFETCH(QByteArray, button);
        QFETCH(QByteArray, field);
        Desk desk;
        desk.Show();
        Type(desk.Main(), field.constData(), "ab");
        auto& line = Find<QLineEdit>(desk.Main(), field.constData());
        QTest::keyClick(&line, Qt::Key_Left);
        Click(desk.Main(), button.constData());
        auto& menu = Find<QMenu>(desk.Main(), "mnuPlaceholders");
        QTRY_VERIFY(menu.isVisible());
        QTest::keyClick(&menu, Qt::Key_Down); // from the first item to the second
        QTest::keyClick(&menu, Qt::Key_Return);
        QTRY_VERIFY(!menu.isVisible());
        QCOMPARE(TextOf(desk.Main(), field.constData()), std::string("a%Tb"));
        QCOMPARE(line.cursorPosition(), 3);
        QTRY_VERIFY(line.hasFocus());
        QVERIFY(!line.hasSelectedText());
        line.undo();
        QCOMPARE(line.text(), u"ab"_s);
    }

    void APlaceholderReplacesTheUsersSelection() {
        Desk desk;
        desk.Show();
        Type(desk.Main(), "txtPageTitle", "abcd");
        auto& line = Find<QLineEdit>(desk.Main(), "txtPageTitle");
        QTest::keyClick(&line, Qt::Key_Left);
        QTest::keyClick(&line, Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(&line, Qt::Key_Left, Qt::ShiftModifier);
        Click(desk.Main(), "cmdPageTitlePlaceHolders");
        PlaceholderItem(desk, 7).trigger();
        QCOMPARE(line.text(), u"a%Ld"_s);
        QCOMPARE(desk.TheSettings().PageTitle, std::string("a%Ld"));
    }

    void ASelectionMadeByEnteringTheFieldIsNotReplaced_data() {
        QTest::addColumn<bool>("entersByMnemonic");
        QTest::addColumn<bool>("opensByMnemonic");
        QTest::addColumn<bool>("otherWindowMeanwhile");
        QTest::newRow("Tab, then Tab and Space") << false << false << false;
        QTest::newRow("Tab, then the button's mnemonic") << false << true << false;
        QTest::newRow("the label's mnemonic, then Tab and Space") << true << false << false;
        QTest::newRow("the label's mnemonic, then the button's") << true << true << false;
        QTest::newRow("another window between Tab and the mnemonic") << false << true << true;
    }
    void ASelectionMadeByEnteringTheFieldIsNotReplaced() {
        QFETCH(bool, entersByMnemonic);
        QFETCH(bool, opensByMnemonic);
        QFETCH(bool, otherWindowMeanwhile);
        Desk desk;
        desk.Show();
        Type(desk.Main(), "txtPageTitle", "precious");
        Find<QPushButton>(desk.Main(), "cmdWindowTitlePlaceHolders").setFocus();
        auto* window = desk.Main().windowHandle();
        if (entersByMnemonic) {
            QTest::keyClick(window, Qt::Key_P, Qt::AltModifier);
        } else {
            QTest::keyClick(window, Qt::Key_Tab);
        }
        auto& line = Find<QLineEdit>(desk.Main(), "txtPageTitle");
        QVERIFY(line.hasFocus());
        QCOMPARE(line.selectedText(), u"precious"_s);
        if (otherWindowMeanwhile) {
            QWidget other;
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
            desk.Main().activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&desk.Main()));
        }
        if (opensByMnemonic) {
            QTest::keyClick(window, Qt::Key_N, Qt::AltModifier);
        } else {
            QTest::keyClick(window, Qt::Key_Tab);
            QTest::keyClick(window, Qt::Key_Space);
        }
        auto& menu = Find<QMenu>(desk.Main(), "mnuPlaceholders");
        QTRY_VERIFY(menu.isVisible());
        QTest::keyClick(&menu, Qt::Key_Return);
        QTRY_VERIFY(!menu.isVisible());
        QCOMPARE(line.text(), u"precious%D"_s);
        QTRY_VERIFY(line.hasFocus());
    }

    void TheUsersSelectionIsReplacedByMnemonicToo() {
        Desk desk;
        desk.Show();
        Type(desk.Main(), "txtPageTitle", "abcd");
        auto* window = desk.Main().windowHandle();
        QTest::keyClick(window, Qt::Key_P,
                        Qt::AltModifier); // selects the whole text; the arrow key deselects it
        QTest::keyClick(window, Qt::Key_Right);
        QTest::keyClick(window, Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(window, Qt::Key_N, Qt::AltModifier);
        auto& menu = Find<QMenu>(desk.Main(), "mnuPlaceholders");
        QTRY_VERIFY(menu.isVisible());
        QTest::keyClick(&menu, Qt::Key_Return);
        QTRY_COMPARE(TextOf(desk.Main(), "txtPageTitle"), std::string("abc%D"));
    }

    void DismissingThePlaceholderMenuChangesNothing() {
        Desk desk;
        desk.Show();
        Type(desk.Main(), "txtPageFooter", "footer");
        Click(desk.Main(), "cmdPageFooterPlaceHolders");
        auto& menu = Find<QMenu>(desk.Main(), "mnuPlaceholders");
        QTest::keyClick(&menu, Qt::Key_Escape);
        QVERIFY(!menu.isVisible());
        QCOMPARE(TextOf(desk.Main(), "txtPageFooter"), std::string("footer"));
    }

    void TheMenusHaveTheirItemsAndShortcuts() {
        Desk desk;
        const auto shortcut = [&](const char* name) {
            return Find<QAction>(desk.Main(), name).shortcut().toString(QKeySequence::PortableText);
        };
        QCOMPARE(shortcut("itmFileOpenSettings"), u"Ctrl+O"_s);
        QCOMPARE(shortcut("itmFileSaveSettings"), u"Ctrl+S"_s);
        QCOMPARE(shortcut("itmFileSaveSettingsAs"), u"Ctrl+Shift+S"_s);
        QCOMPARE(shortcut("itmFileExit"), u"Ctrl+Q"_s);
        QCOMPARE(shortcut("itmHelpTopics"), u"F1"_s);
        QVERIFY(Find<QMenu>(desk.Main(), "mnuHelp")
                    .actions()
                    .contains(&Find<QAction>(desk.Main(), "itmTipOfTheDay")));
    }

    void EnterInAFieldCreatesTheList_data() {
        QTest::addColumn<QByteArray>("field");
        for (const char* name :
             {"txtInputDir", "txtOutputFile", "txtWindowTitle", "txtPageTitle", "txtPageFooter"}) {
            QTest::newRow(name) << QByteArray(name);
        }
    }
    void EnterInAFieldCreatesTheList() {
        QFETCH(QByteArray, field);
        Desk desk;
        desk.Show();
        QTest::keyClick(&Find<QLineEdit>(desk.Main(), field.constData()), Qt::Key_Return);
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QCOMPARE(desk.dialogs.messages[0].text, std::string("No input directory specified!"));
    }

    void EscLeavesTheWindowOpen() {
        Desk desk;
        desk.Show();
        QTest::keyClick(&desk.Main(), Qt::Key_Escape);
        QVERIFY(desk.Main().isVisible());
        QVERIFY(desk.dialogs.messages.empty());
    }

    void ItsSizeIsRemembered() {
        QSize size;
        {
            Desk desk;
            desk.Show();
            size = desk.Main().size() + QSize(50, 20);
            desk.Main().resize(size);
            desk.Main().close();
        }
        Desk desk;
        QCOMPARE(desk.Main().size(), size);
    }
};

TUNEDEX_WINDOW_TEST(frmMainTest)
#include "frmMainTest.moc"
