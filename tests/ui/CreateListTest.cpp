// Runs of the list job in the windows: messages, and focus, selection and windows afterwards.
#include "DefaultSettings.h"
#include "Mp3Builder.h"
#include "WindowTest.h"
#include "frmProgress.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include <filesystem>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

// A desk with default settings, the input folder "music" and the output file "list.htm".
struct RunDesk : Desk {
    RunDesk() {
        TheSettings() = DefaultSettings();
        MainFields fields;
        fields.inputFolder = music;
        fields.outputFile = folder / "list.htm";
        fields.windowTitle = "List %D";
        fields.pageTitle = "%C files";
        fields.pageFooter = "%T";
        frontEnd.FillFields(fields);
        Show();
    }

    void AddSong(const std::string& name) {
        folder.Write("music/" + name, Id3v2Tag({{"TIT2", Latin1(name)}}) + Audio(4000) +
                                          Id3v1Tag({name, "Artist", "", "", "", 255}));
    }
    void SetField(const char* name, const std::string& text) {
        Find<QLineEdit>(Main(), name).setText(ToQt(text));
    }
    void Run() { Click(Main(), "cmdCreateList"); }
    frmProgress* Progress() { return Main().findChild<frmProgress*>(); }
    // Whether the progress window says that the run is over, and Close has Abort's place and the focus.
    bool IsOver() {
        frmProgress& window = *Progress();
        return Find<QWidget>(window, "lblOver").isVisible() &&
               !Find<QWidget>(window, "cmdAbort").isVisible() &&
               Find<QWidget>(window, "cmdClose").isVisible() && window.isActiveWindow() &&
               window.focusWidget() == &Find<QWidget>(window, "cmdClose");
    }
    bool WholeTextSelected(const char* name) {
        const auto& field = Find<QLineEdit>(Main(), name);
        return field.hasFocus() && field.selectionStart() == 0 && field.selectedText() == field.text();
    }
    // Expects exactly one message, with this text, these buttons and this title.
    bool Said(const std::string& text, int buttons, const std::string& title) {
        if (dialogs.messages.size() != 1) {
            qWarning("%zu messages", dialogs.messages.size());
            return false;
        }
        const FakeDialogs::Message& message = dialogs.messages[0];
        if (message.text != text || message.buttons != buttons || message.title != title) {
            qWarning("\"%s\" %d \"%s\"", message.text.c_str(), message.buttons, message.title.c_str());
            return false;
        }
        return message.owner == &Main();
    }

    std::string music = folder.Make("music");
};

const char* const kPermission = "An error occurred verifying your input directory.\n\n"
                                "This could be because you do not have permission\n"
                                "to access the directory, or you may be attempting\n"
                                "to use a non-existent network share.";

std::string Unexpected(const std::string& error) {
    return "An unexpected error occurred. The error was: \n\nError number " + error;
}

} // namespace

class CreateListTest : public QObject {
    Q_OBJECT

  private slots:
    void TheExtensionSetsTheFormat_data() {
        QTest::addColumn<QByteArray>("output");
        QTest::addColumn<QByteArray>("written");
        QTest::addColumn<QByteArray>("beginning");
        const QByteArray html("<!DOCTYPE HTML");
        QTest::newRow("list.Htm") << QByteArray("list.Htm") << QByteArray("list.Htm") << html;
        QTest::newRow("list.text") << QByteArray("list.text") << QByteArray() << QByteArray("Number\t");
        QTest::newRow("list.m3u") << QByteArray("list.m3u") << QByteArray("list.m3u")
                                  << QByteArray("#EXTM3U\r\n");
        QTest::newRow("a typed name with an unknown extension")
            << QByteArray("list.xml") << QByteArray() << html;
        QTest::newRow("no extension") << QByteArray("list") << QByteArray() << html;
    }
    void TheExtensionSetsTheFormat() {
        QFETCH(QByteArray, output);
        QFETCH(QByteArray, written);
        QFETCH(QByteArray, beginning);
        RunDesk desk;
        desk.AddSong("a.mp3");
        desk.SetField("txtOutputFile", desk.folder / output.toStdString());
        desk.Run();
        QVERIFY(desk.dialogs.messages.empty());
        std::string found;
        for (const auto& entry : std::filesystem::directory_iterator(desk.folder.Path())) {
            const std::string name = entry.path().filename().string();
            if (name.starts_with("list")) {
                QVERIFY(found.empty());
                found = name;
            }
        }
        if (!written.isEmpty()) {
            QCOMPARE(found, written.toStdString());
        }
        QVERIFY(ReadBytes(desk.folder / found).starts_with(beginning.toStdString()));
        QCOMPARE(desk.TheSettings().OutputFile, desk.folder / output.toStdString());
    }

    void AFinishedRunIsCountedAndLeavesTheWindowUnchanged() {
        RunDesk desk;
        desk.AddSong("a.mp3");
        desk.AddSong("b.mp3");
        const Settings before = desk.TheSettings();
        desk.Run();
        QVERIFY(desk.folder.Exists("list.htm"));
        QCOMPARE(desk.fake.application.statistics.ListsCreated, 1);
        QCOMPARE(desk.fake.application.statistics.FilesHandled, 2);
        QCOMPARE(desk.fake.clock.slept, std::chrono::milliseconds(1000));
        QCOMPARE(desk.Progress(), nullptr);
        QVERIFY(desk.Main().isEnabled());
        QVERIFY(desk.TheSettings() == before);
        QVERIFY(desk.dialogs.messages.empty());
    }

    void AMissingFolderShowsAMessageAndSelectsItsField() {
        RunDesk desk;
        desk.SetField("txtInputDir", desk.folder / "missing");
        desk.Run();
        QVERIFY(desk.Said("The specified directory does not exist!", 48, "Error!"));
        QVERIFY(desk.WholeTextSelected("txtInputDir"));
        QCOMPARE(desk.Progress(), nullptr);
        QVERIFY(desk.Main().isEnabled());
    }

    void AnEmptyInputShowsAMessage_data() {
        QTest::addColumn<bool>("several");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("one folder") << false << QByteArray("No input directory specified!");
        QTest::newRow("a list without folders") << true << QByteArray("No input directories specified!");
    }
    void AnEmptyInputShowsAMessage() {
        QFETCH(bool, several);
        QFETCH(QByteArray, text);
        RunDesk desk;
        desk.SetField("txtInputDir", "");
        if (several) {
            PressMnemonic(desk.Main(), Qt::Key_M);
            QCOMPARE(desk.TheSettings().Directory, std::string("%MULT%"));
        }
        desk.Run();
        QVERIFY(desk.Said(text.toStdString(), 48, "Error!"));
        QCOMPARE(desk.Progress(), nullptr);
    }

    void AnEmptyOutputFileShowsAMessage() {
        RunDesk desk;
        desk.SetField("txtOutputFile", "");
        desk.Run();
        QVERIFY(desk.Said("No output file specified!", 48, "Error!"));
    }

    void DecliningToCreateTheOutputFolderSelectsItsField() {
        RunDesk desk;
        desk.SetField("txtOutputFile", desk.folder / "a/b/list.htm");
        desk.dialogs.answers = {kAnswerNo};
        desk.Run();
        QVERIFY(desk.Said("The output directory does not exist!\n\nDo you want to create it?", 52, "Error!"));
        QVERIFY(desk.WholeTextSelected("txtOutputFile"));
        QVERIFY(!desk.folder.Exists("a"));
        QCOMPARE(desk.Progress(), nullptr);
    }

    void AcceptingCreatesEveryMissingOutputFolder() {
        RunDesk desk;
        desk.AddSong("a.mp3");
        desk.folder.Make("a");
        desk.SetField("txtOutputFile", desk.folder / "a/b/c/list.htm");
        desk.dialogs.answers = {kAnswerYes};
        desk.Run();
        QVERIFY(desk.folder.Exists("a/b/c/list.htm"));
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
    }

    void FindingNothingShowsAMessageAndLeavesTheProgressWindowOpen_data() {
        QTest::addColumn<bool>("several");
        QTest::addColumn<QByteArray>("word");
        QTest::newRow("one folder") << false << QByteArray("directory");
        QTest::newRow("a list") << true << QByteArray("directories");
    }
    void FindingNothingShowsAMessageAndLeavesTheProgressWindowOpen() {
        QFETCH(bool, several);
        QFETCH(QByteArray, word);
        RunDesk desk;
        if (several) {
            PressMnemonic(desk.Main(), Qt::Key_M);
            desk.TheSettings().Directory = "%MULT%" + desk.music;
        }
        const std::string directory = desk.TheSettings().Directory;
        bool disabledMeanwhile = false;
        desk.dialogs.whileMessageIsShown = [&] { disabledMeanwhile = !desk.Main().isEnabled(); };
        desk.Run();
        QVERIFY(desk.Said("No MP3 files were found\nin the " + word.toStdString() + " specified.", 64,
                          "No MP3 files!"));
        QVERIFY(disabledMeanwhile);
        QVERIFY(desk.Main().isEnabled());
        QVERIFY(desk.Progress() != nullptr && desk.Progress()->isVisible());
        QCOMPARE(TextOf(*desk.Progress(), "lblStatus"), std::string("Searching for MP3 files..."));
        QCOMPARE(desk.fake.application.statistics, Statistics());
        QCOMPARE(desk.TheSettings().Directory, directory);
        QVERIFY(!desk.folder.Exists("list.htm"));
        QVERIFY(desk.IsOver());
        QCOMPARE(TextOf(desk.Main(), "lblResult"),
                 std::string("No MP3 files were found. No list was written."));

        QTest::keyClick(desk.Progress(), Qt::Key_Escape);
        QTRY_COMPARE(desk.Progress(), nullptr);
        QVERIFY(desk.Main().isEnabled());
    }

    void ANewRunReplacesTheProgressWindowOfTheLastOne() {
        RunDesk desk;
        desk.Run();
        QVERIFY(desk.Progress() != nullptr);
        desk.dialogs.messages.clear();
        desk.AddSong("a.mp3");
        desk.Run();
        QVERIFY(desk.dialogs.messages.empty());
        QCOMPARE(desk.Progress(), nullptr);
        QVERIFY(desk.Main().isEnabled());
        QVERIFY(desk.folder.Exists("list.htm"));
    }

    void AnErrorInARunShowsAMessageAndLeavesTheProgressWindowOpen() {
        RunDesk desk;
        desk.AddSong("a.mp3");
        desk.TheSettings().Spanning = 0;
        desk.folder.Make("list.htm"); // a folder in the list's place
        desk.Run();
        QVERIFY(desk.Said(Unexpected("75 - Path/File access error"), 48, "Error"));
        QVERIFY(desk.Progress() != nullptr && desk.Progress()->isVisible());
        QVERIFY(!desk.Main().isEnabled());
        QCOMPARE(desk.fake.application.statistics, Statistics());
        QCOMPARE(TextOf(*desk.Progress(), "lblStatus"), std::string("Writing information..."));
        QVERIFY(desk.IsOver());
        QCOMPARE(TextOf(desk.Main(), "lblResult"),
                 std::string("The run failed: Path/File access error. No complete list was written."));
        desk.Progress()->close();
        QTRY_COMPARE(desk.Progress(), nullptr);
        QVERIFY(desk.Main().isEnabled());
    }

    void AFinishedRunIsClosedByItsButtonEnterOrEscape_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("the button") << 0;
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("Space") << static_cast<int>(Qt::Key_Space);
        QTest::newRow("Escape") << static_cast<int>(Qt::Key_Escape);
    }
    void AFinishedRunIsClosedByItsButtonEnterOrEscape() {
        QFETCH(int, key);
        RunDesk desk;
        desk.AddSong("a.mp3");
        desk.folder.Make("list.htm");
        desk.Run();
        if (key == 0) {
            Click(*desk.Progress(), "cmdClose");
        } else {
            QTest::keyClick(desk.Progress()->focusWidget(), static_cast<Qt::Key>(key));
        }
        QTRY_COMPARE(desk.Progress(), nullptr);
        QVERIFY(desk.Main().isEnabled());
    }

    void ADeclinedMessageIsTheLastOfItsRun() {
        RunDesk desk;
        for (const char* name : {"a.mp3", "b.mp3", "c.mp3"}) {
            desk.folder.Write(std::string("music/") + name, "no audio");
        }
        desk.dialogs.declineReports = true;
        desk.Run();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        desk.Run();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(2));
        desk.dialogs.declineReports = false;
        desk.Run();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(5));
    }

    void AnErrorBeforeTheRunOpensNoProgressWindow_data() {
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("a folder that cannot be examined")
            << QByteArray("txtInputDir") << QByteArray("loop/music") << QByteArray(kPermission);
        QTest::newRow("an output folder that cannot be examined")
            << QByteArray("txtOutputFile") << QByteArray("loop/list.htm") << QByteArray(kPermission);
        QTest::newRow("an output folder that cannot be created")
            << QByteArray("txtOutputFile") << QByteArray("file/sub/list.htm")
            << QByteArray::fromStdString(Unexpected("57 - Device I/O error"));
    }
    void AnErrorBeforeTheRunOpensNoProgressWindow() {
        QFETCH(QByteArray, field);
        QFETCH(QByteArray, path);
        QFETCH(QByteArray, text);
        RunDesk desk;
        std::filesystem::create_symlink("loop2", desk.folder / "loop");
        std::filesystem::create_symlink("loop", desk.folder / "loop2");
        desk.folder.Write("file", "");
        desk.SetField(field.constData(), desk.folder / path.toStdString());
        desk.dialogs.answers = {kAnswerYes};
        desk.Run();
        QVERIFY(!desk.dialogs.messages.empty());
        QCOMPARE(QByteArray::fromStdString(desk.dialogs.messages.back().text), text);
        QCOMPARE(desk.dialogs.messages.back().buttons, 48);
        QCOMPARE(desk.dialogs.messages.back().title, std::string("Error"));
        QCOMPARE(desk.Progress(), nullptr);
        QVERIFY(desk.Main().isEnabled());
    }

    void AFileThatCannotBeDecodedShowsAMessageAndTheRunContinues() {
        RunDesk desk;
        desk.folder.Write("music/empty.mp3", "");
        desk.Run();
        QVERIFY(desk.Said("An error occurred decoding the headers of: \n\n" + desk.music + "/empty.mp3", 48,
                          "Error!"));
        QVERIFY(desk.folder.Exists("list.htm"));
        QVERIFY(desk.Main().isEnabled());
    }

    void TheTitleShowsAutomaticMode() {
        RunDesk desk;
        desk.fake.application.automaticMode = true;
        desk.fake.application.errorTitle = "Tunedex Error! (Automatic Mode)";
        desk.SetField("txtOutputFile", "");
        QVERIFY(!desk.frontEnd.CreateList().Written());
        QVERIFY(desk.Said("No output file specified!", 48, "Tunedex Error! (Automatic Mode)"));
    }

    void AbortWhileReadingChangesNeitherStatisticsNorList() {
        RunDesk desk;
        for (int i = 0; i < 40; ++i) {
            desk.folder.Write("music/" + std::to_string(i) + ".mp3", ""); // an empty file causes a message
        }
        desk.dialogs.whileMessageIsShown = [&] { Click(*desk.Progress(), "cmdAbort"); };
        desk.Run();
        QVERIFY(desk.dialogs.messages.size() < 40);
        QVERIFY(!desk.folder.Exists("list.htm"));
        QCOMPARE(desk.fake.application.statistics, Statistics());
        QCOMPARE(desk.Progress(), nullptr);
        QVERIFY(desk.Main().isEnabled());

        desk.dialogs.whileMessageIsShown = nullptr; // not in the next run
        desk.Run();
        QVERIFY(desk.folder.Exists("list.htm"));
        QCOMPARE(desk.fake.application.statistics.FilesHandled, 40);
    }

    void ARunCannotStartDuringAnotherRun() {
        RunDesk desk;
        desk.folder.Write("music/empty.mp3", "");
        bool second = true;
        desk.dialogs.whileMessageIsShown = [&] { second = desk.frontEnd.CreateList().Written(); };
        desk.Run();
        QVERIFY(!second);
        QCOMPARE(desk.fake.application.statistics.ListsCreated, 1);
    }

    void EveryFolderOfAListIsSearched() {
        RunDesk desk;
        desk.AddSong("a.mp3");
        const std::string more = desk.folder.Make("more");
        desk.folder.Write("more/b.mp3", Audio(4000));
        PressMnemonic(desk.Main(), Qt::Key_M);
        desk.TheSettings().Directory = "%MULT%" + desk.music + "%||%" + more;
        desk.Run();
        QCOMPARE(desk.fake.application.statistics.FilesHandled, 2);
        QCOMPARE(desk.TheSettings().Directory, "%MULT%" + desk.music + "%||%" + more);
    }
};

TUNEDEX_WINDOW_TEST(CreateListTest)
#include "CreateListTest.moc"
