#include "frmAbout.h"

#include "Version.h"
#include "WindowTest.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

class frmAboutTest : public QObject {
    Q_OBJECT

  private slots:
    void TheButtonAndTheMenuOpenIt_data() {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("button") << false;
        QTest::newRow("menu") << true;
    }
    void TheButtonAndTheMenuOpenIt() {
        QFETCH(bool, byMenu);
        Desk desk;
        desk.Show();
        if (byMenu) {
            Choose(desk.Main(), "itmAbout");
        } else {
            Click(desk.Main(), "cmdAbout");
        }
        auto& window = OpenWindow<frmAbout>(desk.Main());
        QVERIFY(window.isModal());
        Click(window, "cmdOK");
        QVERIFY(!window.isVisible());
    }

    void ItShowsVersionAndStatistics() {
        Desk desk;
        desk.fake.application.statistics = {"15/11/2026", 3, 1, 1};
        const frmAbout window(desk.fake.application, desk.frontEnd, nullptr);
        QCOMPARE(window.windowTitle(), u"About Tunedex"_s);
        QCOMPARE(TextOf(window, "lblVersion"),
                 std::string("Version ") + kVersionText + " - Build " + kBuildNumber);
        QCOMPARE(TextOf(window, "lblStats"),
                 std::string("Tunedex was first started on 15/11/2026 and has been started 3 times since.\n"
                             "It has created 1 list, and handled 1 MP3 file."));
    }

    void TheFirstStartShowsNoSecondSentence() {
        Desk desk;
        desk.fake.application.statistics = FirstStatistics("2026-11-21");
        const frmAbout window(desk.fake.application, desk.frontEnd, nullptr);
        QCOMPARE(TextOf(window, "lblStats"),
                 std::string("Tunedex was first started on 2026-11-21 and has been started 1 time since."));
    }

    void TheLinksOpenHomePageAndMail() {
        FakeBrowser browser;
        Desk desk;
        frmAbout window(desk.fake.application, desk.frontEnd, nullptr);
        Click(window, "cmdHomePage");
        Click(window, "cmdEmail");
        const std::vector<QUrl> expected{QUrl(u"https://tunedex.example/"_s),
                                         QUrl(u"mailto:orvando@tunedex.example"_s)};
        QVERIFY(browser.opened == expected);
        QVERIFY(desk.dialogs.messages.empty());
    }

    void EnterAndEscCloseIt_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("Esc") << static_cast<int>(Qt::Key_Escape);
    }
    void EnterAndEscCloseIt() {
        QFETCH(int, key);
        Desk desk;
        frmAbout window(desk.fake.application, desk.frontEnd, nullptr);
        window.open();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTest::keyClick(&window, static_cast<Qt::Key>(key));
        QVERIFY(!window.isVisible());
    }
};

TUNEDEX_WINDOW_TEST(frmAboutTest)
#include "frmAboutTest.moc"
