#include "frmTip.h"

#include "WindowTest.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <filesystem>
#include <map>
#include <set>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

std::string Tip(const frmTip& window) {
    return TextOf(window, "lblTipText");
}

// A desk with a tips file of three tips.
struct TipDesk : Desk {
    explicit TipDesk(const char* onStartup) {
        fake.registry.values["TipsFile"] = folder.Write("tips.lst", "one\r\ntwo\r\nthree\r\n");
        fake.registry.values["TipsOnStartup"] = onStartup;
    }
};

} // namespace

class frmTipTest : public QObject {
    Q_OBJECT

  private slots:
    void NextTipCyclesThroughTheTipsInOrder() {
        TipDesk desk("");
        frmTip window(desk.fake.application, desk.frontEnd, nullptr);
        QCOMPARE(Tip(window), std::string());
        window.LoadTips();
        for (const char* expected : {"one", "two", "three", "one", "two"}) {
            Click(window, "cmdNextTip");
            QCOMPARE(Tip(window), std::string(expected));
        }
    }

    void AnyTipCanBeTheFirstAtStartUp() {
        TipDesk desk("1");
        const std::map<std::string, std::string> next{{"one", "two"}, {"two", "three"}, {"three", "one"}};
        std::set<std::string> seen;
        for (int i = 0; i < 1000 && seen.size() < next.size(); ++i) {
            frmTip window(desk.fake.application, desk.frontEnd, nullptr);
            const std::string first = Tip(window);
            QVERIFY(next.contains(first));
            seen.insert(first);
            Click(window, "cmdNextTip");
            QCOMPARE(Tip(window), next.at(first));
        }
        QCOMPARE(seen.size(), next.size());
    }

    void RandomTipEventuallyShowsEveryTip() {
        TipDesk desk("1");
        frmTip window(desk.fake.application, desk.frontEnd, nullptr);
        std::set<std::string> seen;
        for (int i = 0; i < 1000; ++i) {
            Click(window, "cmdRandomTip");
            seen.insert(Tip(window));
        }
        const std::set<std::string> expected{"one", "two", "three"};
        QVERIFY(seen == expected);
    }

    void WithoutATipsFileNothingIsShownAndNextTipDoesNothing() {
        Desk desk;
        std::filesystem::remove_all(desk.fake.application.programFolder + "tips.lst");
        desk.fake.registry.values["TipsOnStartup"] = "1";
        desk.fake.registry.values["TipsFile"] = desk.folder / "missing.lst";
        frmTip window(desk.fake.application, desk.frontEnd, nullptr);
        QCOMPARE(Tip(window), std::string());
        Click(window, "cmdNextTip");
        QCOMPARE(Tip(window), std::string());
        Click(window, "cmdRandomTip");
        QCOMPARE(Tip(window), std::string());
        QVERIFY(desk.dialogs.messages.empty());
    }

    void ATipsFileThatCannotBeReadShowsAMessage() {
        Desk desk;
        desk.fake.registry.values["TipsFile"] = std::string("/proc/self/mem"); // exists, and reading fails
        frmTip window(desk.fake.application, desk.frontEnd, nullptr);
        window.LoadTips();
        QCOMPARE(desk.dialogs.messages.size(), std::size_t(1));
        QCOMPARE(desk.dialogs.messages[0].title, std::string("Error!"));
        QVERIFY(desk.dialogs.messages[0].text.starts_with("An unexpected error occurred. The error was:"));
    }

    void TheCheckBoxShowsTheStoredChoice_data() {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<bool>("checked");
        QTest::newRow("1") << QByteArray("1") << true;
        QTest::newRow("0") << QByteArray("0") << false;
        QTest::newRow("absent") << QByteArray() << false;
        QTest::newRow("-1") << QByteArray("-1") << true;
        QTest::newRow("True") << QByteArray("True") << true;
        QTest::newRow("False") << QByteArray("False") << false;
    }
    void TheCheckBoxShowsTheStoredChoice() {
        QFETCH(QByteArray, stored);
        QFETCH(bool, checked);
        TipDesk desk(stored.constData());
        const frmTip window(desk.fake.application, desk.frontEnd, nullptr);
        QCOMPARE(Find<QCheckBox>(window, "chkLoadTipsAtStartup").isChecked(), checked);
        QCOMPARE(TipsOnStartup(desk.fake.registry), checked);
    }

    void OnlyOKSavesTheChoice() {
        TipDesk desk("1");
        {
            frmTip window(desk.fake.application, desk.frontEnd, nullptr);
            window.open();
            QTest::mouseClick(&Find<QCheckBox>(window, "chkLoadTipsAtStartup"), Qt::LeftButton, {},
                              QPoint(8, 8));
            QTest::keyClick(&window, Qt::Key_Escape);
            QVERIFY(!window.isVisible());
        }
        QVERIFY(TipsOnStartup(desk.fake.registry));
        {
            frmTip window(desk.fake.application, desk.frontEnd, nullptr);
            window.open();
            QTest::mouseClick(&Find<QCheckBox>(window, "chkLoadTipsAtStartup"), Qt::LeftButton, {},
                              QPoint(8, 8));
            Click(window, "cmdOK");
            QVERIFY(!window.isVisible());
        }
        QCOMPARE(desk.fake.registry.Read("TipsOnStartup"), std::string("0"));
        {
            frmTip window(desk.fake.application, desk.frontEnd, nullptr);
            QVERIFY(!Find<QCheckBox>(window, "chkLoadTipsAtStartup").isChecked());
            Find<QCheckBox>(window, "chkLoadTipsAtStartup").setChecked(true);
            window.open();
            QTest::keyClick(&window, Qt::Key_Return);
        }
        QCOMPARE(desk.fake.registry.Read("TipsOnStartup"), std::string("1"));
    }

    void TheMenuShowsATipEvenIfTipsAreOffAtStartUp() {
        TipDesk desk("0");
        desk.Show();
        Choose(desk.Main(), "itmTipOfTheDay");
        const auto& window = OpenWindow<frmTip>(desk.Main());
        const std::set<std::string> tips{"one", "two", "three"};
        QVERIFY(tips.contains(Tip(window)));
    }

    void ALongTipCanBeScrolled() {
        TipDesk desk("1");
        desk.folder.Write("tips.lst", FromQt(u"many words "_s.repeated(500)));
        frmTip window(desk.fake.application, desk.frontEnd, nullptr);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto& label = Find<QLabel>(window, "lblTipText");
        QVERIFY(label.height() >= label.heightForWidth(label.width()));
    }
};

TUNEDEX_WINDOW_TEST(frmTipTest)
#include "frmTipTest.moc"
