#include "frmDirSelection.h"

#include "WindowTest.h"

#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

// The dialog, opened with a folder value.
struct ListDesk : Desk {
    explicit ListDesk(const std::string& folderValue) {
        TheSettings().Directory = folderValue;
        window.emplace(fake.application, frontEnd, dialogs, nullptr);
        window->open();
        window->activateWindow();
        if (!QTest::qWaitForWindowActive(&*window)) {
            qFatal("the window does not become active");
        }
    }

    QTreeWidget& List() { return Find<QTreeWidget>(*window, "lvwDirs"); }
    QString Rows() {
        QStringList rows;
        for (int i = 0; i < List().topLevelItemCount(); ++i) {
            rows.append(List().topLevelItem(i)->text(0));
        }
        return rows.join(u' ');
    }
    void Select(int row) { List().setCurrentItem(List().topLevelItem(row - 1)); }
    // 1-based; 0 if no row is selected.
    int Selected() {
        const QList<QTreeWidgetItem*> items = List().selectedItems();
        return items.isEmpty() ? 0 : List().indexOfTopLevelItem(items.first()) + 1;
    }
    void Press(const char* button) { Click(*window, button); }

    std::optional<frmDirSelection> window;
};

} // namespace

class frmDirSelectionTest : public QObject {
    Q_OBJECT

  private slots:
    void ItOpensWithTheFoldersOfTheSetting_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QString>("rows");
        QTest::newRow("a list") << QByteArray("%MULT%/a%||%/b/%||%/c") << u"/a /b/ /c"_s;
        QTest::newRow("one folder in a list") << QByteArray("%MULT%/a") << u"/a"_s;
        QTest::newRow("the marker alone") << QByteArray("%MULT%") << QString();
        QTest::newRow("a single folder") << QByteArray("/a") << QString();
        QTest::newRow("nothing") << QByteArray("") << QString();
    }
    void ItOpensWithTheFoldersOfTheSetting() {
        QFETCH(QByteArray, value);
        QFETCH(QString, rows);
        ListDesk desk(value.toStdString());
        QCOMPARE(desk.Rows(), rows);
        const qsizetype count = rows.isEmpty() ? 0 : rows.count(u' ') + 1;
        QCOMPARE(TextOf(*desk.window, "lblNumOfDirs"),
                 std::to_string(count) + (count == 1 ? " folder" : " folders"));
    }

    void OKStoresTheRowsInTheirOrder_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("two") << QByteArray("%MULT%C:\\A%||%D:\\B");
        QTest::newRow("one") << QByteArray("%MULT%/a");
        QTest::newRow("a name that is not UTF-8") << QByteArray("%MULT%/old\xFC%||%/new");
    }
    void OKStoresTheRowsInTheirOrder() {
        QFETCH(QByteArray, value);
        ListDesk desk(value.toStdString());
        desk.TheSettings().Directory = "changed";
        desk.Press("cmdOK");
        QVERIFY(!desk.window->isVisible());
        QCOMPARE(QByteArray::fromStdString(desk.TheSettings().Directory), value);
    }

    void OKOnAnEmptyListLeavesTheSettingUnchanged_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("single folder") << QByteArray("/music");
        QTest::newRow("list") << QByteArray("%MULT%/a%||%/b");
    }
    void OKOnAnEmptyListLeavesTheSettingUnchanged() {
        QFETCH(QByteArray, value);
        ListDesk desk(value.toStdString());
        if (desk.List().topLevelItemCount() > 0) {
            desk.Press("cmdClear");
        }
        QCOMPARE(desk.Rows(), QString());
        desk.Press("cmdOK");
        QCOMPARE(QByteArray::fromStdString(desk.TheSettings().Directory), value);
    }

    void EscLeavesTheSettingUnchanged() {
        ListDesk desk("%MULT%/a%||%/b");
        desk.Press("cmdRemove");
        QTest::keyClick(&*desk.window, Qt::Key_Escape);
        QVERIFY(!desk.window->isVisible());
        QCOMPARE(desk.TheSettings().Directory, std::string("%MULT%/a%||%/b"));
    }

    void EnterIsOK() {
        ListDesk desk("%MULT%/a%||%/b");
        desk.Select(1);
        desk.Press("cmdRemove");
        QTest::keyClick(&desk.List(), Qt::Key_Return);
        QVERIFY(!desk.window->isVisible());
        QCOMPARE(desk.TheSettings().Directory, std::string("%MULT%/b"));
    }

    void AddAppendsAnExistingFolder() {
        ListDesk desk("%MULT%/a");
        const std::string music = desk.folder.Make("Music");
        desk.dialogs.folders = {music};
        desk.Press("cmdAdd");
        QCOMPARE(desk.dialogs.folderQuestions[0].title, std::string("Select a Directory"));
        QCOMPARE(
            desk.dialogs.folderQuestions[0].prompt,
            std::string("Select a folder that you would like Tunedex to scan for MP3 files, and click OK."));
        QCOMPARE(desk.Rows(), u"/a "_s + ToQt(music));
        QCOMPARE(TextOf(*desk.window, "lblNumOfDirs"), std::string("2 folders"));
        QVERIFY(desk.dialogs.messages.empty());
    }

    void AddBeginsBesideTheLastFolderAndTakesSeveral() {
        ListDesk desk("%MULT%/music/jazz/");
        const std::string rock = desk.folder.Make("rock");
        const std::string folk = desk.folder.Make("folk");
        desk.dialogs.folders = {rock};
        desk.dialogs.moreFolders = {folk, rock, desk.folder / "missing"};
        desk.Press("cmdAdd");
        QCOMPARE(desk.dialogs.folderQuestions[0].start, std::string("/music"));
        QCOMPARE(desk.Rows(), u"/music/jazz/ "_s + ToQt(rock) + u' ' + ToQt(folk));
        desk.Press("cmdAdd");
        QCOMPARE(desk.dialogs.folderQuestions[1].start + "/", desk.folder.Path());
    }

    void CancelLeavesTheSettingUnchanged() {
        ListDesk desk("%MULT%/a%||%/b");
        desk.Press("cmdRemove");
        desk.Press("cmdCancel");
        QVERIFY(!desk.window->isVisible());
        QCOMPARE(desk.TheSettings().Directory, std::string("%MULT%/a%||%/b"));
    }

    void AddIgnoresMissingFoldersAndDuplicates() {
        ListDesk desk("%MULT%");
        const std::string music = desk.folder.Make("Music");
        const std::string capitals = desk.folder.Make("MUSIC");
        desk.dialogs.folders = {music, std::nullopt, desk.folder / "missing", music, capitals};
        for (int i = 0; i < 5; ++i) {
            desk.Press("cmdAdd");
        }
        QCOMPARE(desk.Rows(), ToQt(music));
        QVERIFY(desk.dialogs.messages.empty());
    }

    void AFolderThatCannotBeExaminedShowsAMessage() {
        ListDesk desk("%MULT%");
        desk.dialogs.folders = {std::string(5000, 'x')};
        desk.Press("cmdAdd");
        QCOMPARE(desk.Rows(), QString());
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QCOMPARE(desk.dialogs.messages[0].buttons, static_cast<int>(kOkExclamation));
    }

    void RemoveDeletesTheSelectedRow() {
        ListDesk desk("%MULT%A%||%B%||%C");
        desk.Select(2);
        desk.Press("cmdRemove");
        QCOMPARE(desk.Rows(), u"A C"_s);
        QCOMPARE(TextOf(*desk.window, "lblNumOfDirs"), std::string("2 folders"));
        desk.List().setFocus();
        QTest::keyClick(&desk.List(), Qt::Key_Delete);
        QCOMPARE(desk.Rows(), u"A"_s);
        QTest::keyClick(&desk.List(), Qt::Key_Delete);
        QTest::keyClick(&desk.List(), Qt::Key_Delete);
        QCOMPARE(desk.Rows(), QString());
        QCOMPARE(TextOf(*desk.window, "lblNumOfDirs"), std::string("0 folders"));
    }

    void ClearAsksFirst() {
        ListDesk desk("%MULT%A%||%B");
        desk.dialogs.answers = {kAnswerCancel, kAnswerOk};
        desk.Press("cmdClear");
        QCOMPARE(desk.Rows(), u"A B"_s);
        QCOMPARE(desk.dialogs.messages[0].text, std::string("Are you sure you want\nto clear the list?"));
        QCOMPARE(desk.dialogs.messages[0].buttons, static_cast<int>(kOkCancelQuestion));
        QCOMPARE(desk.dialogs.messages[0].title, std::string("Clear Directories?"));
        desk.Press("cmdClear");
        QCOMPARE(desk.Rows(), QString());
        QCOMPARE(TextOf(*desk.window, "lblNumOfDirs"), std::string("0 folders"));
    }

    void MovesExchangeTextsAndTheSelectionFollows_data() {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<int>("selected");
        QTest::newRow("top of 3") << QByteArray("cmdTop") << 3 << u"C A B D"_s << 1;
        QTest::newRow("top of 2") << QByteArray("cmdTop") << 2 << u"B A C D"_s << 1;
        QTest::newRow("top of 1") << QByteArray("cmdTop") << 1 << u"A B C D"_s << 1;
        QTest::newRow("up of 1") << QByteArray("cmdUp") << 1 << u"A B C D"_s << 1;
        QTest::newRow("up of 4") << QByteArray("cmdUp") << 4 << u"A B D C"_s << 3;
        QTest::newRow("down of 1") << QByteArray("cmdDown") << 1 << u"B A C D"_s << 2;
        QTest::newRow("down of 4") << QByteArray("cmdDown") << 4 << u"A B C D"_s << 4;
        QTest::newRow("bottom of 2") << QByteArray("cmdBottom") << 2 << u"A C D B"_s << 4;
        QTest::newRow("bottom of 4") << QByteArray("cmdBottom") << 4 << u"A B C D"_s << 4;
    }
    void MovesExchangeTextsAndTheSelectionFollows() {
        QFETCH(QByteArray, button);
        QFETCH(int, row);
        QFETCH(QString, rows);
        QFETCH(int, selected);
        ListDesk desk("%MULT%A%||%B%||%C%||%D");
        desk.Select(row);
        desk.Press(button.constData());
        QCOMPARE(desk.Rows(), rows);
        QCOMPARE(desk.Selected(), selected);
    }

    void OnlyUsableCommandsAreEnabled_data() {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("enabled");
        QTest::newRow("empty") << QByteArray("%MULT%") << 0 << QStringList();
        QTest::newRow("first") << QByteArray("%MULT%A%||%B%||%C") << 1
                               << QStringList{u"cmdRemove"_s, u"cmdClear"_s, u"cmdDown"_s, u"cmdBottom"_s};
        QTest::newRow("middle") << QByteArray("%MULT%A%||%B%||%C") << 2
                                << QStringList{u"cmdRemove"_s, u"cmdClear"_s, u"cmdTop"_s,
                                               u"cmdUp"_s,     u"cmdDown"_s,  u"cmdBottom"_s};
        QTest::newRow("last") << QByteArray("%MULT%A%||%B%||%C") << 3
                              << QStringList{u"cmdRemove"_s, u"cmdClear"_s, u"cmdTop"_s, u"cmdUp"_s};
        QTest::newRow("the only row")
            << QByteArray("%MULT%A") << 1 << QStringList{u"cmdRemove"_s, u"cmdClear"_s};
    }
    void OnlyUsableCommandsAreEnabled() {
        QFETCH(QByteArray, value);
        QFETCH(int, row);
        QFETCH(QStringList, enabled);
        ListDesk desk(value.toStdString());
        if (row > 0) {
            desk.Select(row);
        }
        QStringList found;
        for (const char* name : {"cmdRemove", "cmdClear", "cmdTop", "cmdUp", "cmdDown", "cmdBottom"}) {
            if (IsEnabled(*desk.window, name)) {
                found.append(QString::fromLatin1(name));
            }
        }
        QCOMPARE(found, enabled);
        QVERIFY(IsEnabled(*desk.window, "cmdAdd"));
        QVERIFY(IsEnabled(*desk.window, "cmdOK"));
    }

    void AButtonThatDisablesItselfPassesTheFocusToTheList() {
        ListDesk desk("%MULT%A%||%B");
        desk.window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&*desk.window));
        desk.Select(2);
        auto& up = Find<QPushButton>(*desk.window, "cmdUp");
        up.setFocus();
        QTest::keyClick(&up, Qt::Key_Space);
        QVERIFY(!up.isEnabled());
        QVERIFY(desk.List().hasFocus());
    }

    void HelpOpensTheHelpFileOrShowsAMessage() {
        FakeBrowser browser;
        ListDesk desk("");
        desk.Press("cmdHelp");
        QCOMPARE(desk.dialogs.messages[0].text, std::string("The help file could not be found!"));
        QVERIFY(browser.opened.empty());
        desk.fake.application.helpFile = "/srv/Help.html";
        QTest::keyClick(&*desk.window, Qt::Key_F1);
        QTRY_COMPARE(browser.opened.size(), std::size_t(1));
        QCOMPARE(browser.opened[0], QUrl(u"file:///srv/Help.html"_s));
        PressMnemonic(*desk.window, Qt::Key_H);
        QTRY_COMPARE(browser.opened.size(), std::size_t(2));
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
    }

    void TheColumnFitsTheLongestFolder() {
        ListDesk desk("%MULT%/short%||%/" + std::string(300, 'm'));
        QVERIFY(desk.List().columnWidth(0) > desk.List().viewport()->width());
        desk.Select(2);
        desk.Press("cmdRemove");
        QTRY_COMPARE(desk.List().columnWidth(0), desk.List().viewport()->width());
    }

    void ItsSizeIsRemembered() {
        QSize size;
        {
            ListDesk desk("%MULT%A");
            desk.window->resize(desk.window->width() + 77, desk.window->height() + 33);
            size = desk.window->size();
            desk.Press("cmdOK");
        }
        ListDesk desk("%MULT%A");
        QCOMPARE(desk.window->size(), size);
    }
};

TUNEDEX_WINDOW_TEST(frmDirSelectionTest)
#include "frmDirSelectionTest.moc"
