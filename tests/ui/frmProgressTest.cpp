#include "frmProgress.h"

#include "ProgressMonitor.h"
#include "WindowTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

class frmProgressTest : public QObject {
    Q_OBJECT

  private slots:
    void WhileItExistsTheMainWindowIsDisabled() {
        Desk desk;
        desk.Show();
        Find<QLineEdit>(desk.Main(), "txtPageTitle").setFocus();
        desk.frontEnd.ShowProgress();
        auto& window = OpenWindow<frmProgress>(desk.Main());
        QVERIFY(!desk.Main().isEnabled());
        QVERIFY(window.isEnabled());
        QVERIFY(IsEnabled(window, "cmdAbort"));
        desk.frontEnd.CloseProgress();
        QVERIFY(desk.Main().isEnabled());
        QCOMPARE(desk.Main().findChild<frmProgress*>(), nullptr);
        QCOMPARE(desk.Main().focusWidget(), &Find<QLineEdit>(desk.Main(), "txtPageTitle"));
        desk.frontEnd.CloseProgress(); // a second call does nothing
    }

    void TheDisabledMainWindowDoesNothing() {
        Desk desk;
        desk.Show();
        desk.frontEnd.ShowProgress();
        QVERIFY(!desk.Main().close());
        Click(desk.Main(), "cmdQuit");
        QTest::keyClick(&desk.Main(), Qt::Key_Q, Qt::ControlModifier);
        QTest::keyClick(&desk.Main(), Qt::Key_O, Qt::ControlModifier);
        QTest::keyClick(&desk.Main(), Qt::Key_F1);
        Click(desk.Main(), "cmdCreateList");
        QVERIFY(desk.Main().isVisible());
        QVERIFY(desk.dialogs.messages.empty());
        QVERIFY(desk.dialogs.fileQuestions.empty());
    }

    void TextsAndNumbersAreShown() {
        Desk desk;
        desk.Show();
        RunMonitor& monitor = desk.frontEnd.ShowProgress();
        auto& window = OpenWindow<frmProgress>(desk.Main());
        monitor.SetStatus("Searching for MP3 files...");
        QCOMPARE(TextOf(window, "lblStatus"), std::string("Searching for MP3 files..."));
        monitor.SetMaximum(200);
        monitor.SetPosition(50);
        monitor.SetCountedStatus("Retrieving MPEG/ID3 information (", 50, 200, ")...");
        QVERIFY(!monitor.AbortRequested());
        QCOMPARE(TextOf(window, "lblStatus"), std::string("Retrieving MPEG/ID3 information (50/200)..."));
        const auto& bar = Find<QProgressBar>(window, "ProgressBar");
        QCOMPARE(bar.maximum(), 200);
        QCOMPARE(bar.value(), 50);
        desk.frontEnd.SetProgressCaption("Tunedex (Automatic Mode)");
        QCOMPARE(window.windowTitle(), u"Tunedex (Automatic Mode)"_s);
    }

    void TheSearchHasABusyBarAndARunningCount() {
        Desk desk;
        desk.Show();
        RunMonitor& monitor = desk.frontEnd.ShowProgress();
        auto& window = OpenWindow<frmProgress>(desk.Main());
        const auto& bar = Find<QProgressBar>(window, "ProgressBar");
        monitor.SetStatus("Searching for MP3 files...");
        QCOMPARE(bar.maximum(), 0);
        monitor.SetFound(1);
        monitor.AbortRequested();
        QCOMPARE(TextOf(window, "lblDetails"), std::string("1 file found"));
        monitor.SetFound(1234);
        QTest::qWait(120);
        monitor.AbortRequested();
        QCOMPARE(TextOf(window, "lblDetails"), std::string("1234 files found"));
        QCOMPARE(TextOf(window, "lblStatus"), std::string("Searching for MP3 files..."));
        monitor.SetMaximum(1234);
        monitor.SetStatus("Retrieving MPEG/ID3 information...");
        QCOMPARE(bar.maximum(), 1234);
        QCOMPARE(TextOf(window, "lblDetails"), std::string());
    }

    void AfterASecondRateAndTimeLeftAreShown() {
        Desk desk;
        desk.Show();
        RunMonitor& monitor = desk.frontEnd.ShowProgress();
        auto& window = OpenWindow<frmProgress>(desk.Main());
        monitor.SetMaximum(100);
        monitor.SetStatus("Retrieving MPEG/ID3 information...");
        QTest::qWait(1100);
        monitor.SetCountedStatus("Retrieving MPEG/ID3 information (", 50, 100, ")...");
        monitor.AbortRequested();
        QVERIFY2(QRegularExpression(u"^\\d+ files a second, 0:0\\d left$"_s)
                     .match(ToQt(TextOf(window, "lblDetails")))
                     .hasMatch(),
                 TextOf(window, "lblDetails").c_str());
    }

    void PaintingIsThrottledAndTheLastTextIsShown() {
        Desk desk;
        desk.Show();
        auto& monitor = dynamic_cast<ProgressMonitor&>(desk.frontEnd.ShowProgress());
        auto& window = OpenWindow<frmProgress>(desk.Main());
        int painted = 0;
        std::string shown;
        for (int i = 1; i <= 100000; ++i) {
            monitor.SetCountedStatus("(", i, 100000, ")");
            monitor.AbortRequested();
            if (TextOf(window, "lblStatus") != shown) {
                shown = TextOf(window, "lblStatus");
                ++painted;
            }
        }
        QVERIFY(painted >= 1);
        QVERIFY2(painted < 50000, "painted for every file");
        QCOMPARE(monitor.StatusText(), std::string("(100000/100000)"));
        QTest::qSleep(120);
        monitor.AbortRequested();
        QCOMPARE(TextOf(window, "lblStatus"), std::string("(100000/100000)"));
    }

    void WithoutAWindowTheMonitorOnlyStoresValues() {
        Desk desk;
        RunMonitor& monitor = desk.frontEnd.ShowProgress();
        desk.frontEnd.CloseProgress();
        monitor.SetStatus("Later");
        monitor.SetMaximum(3);
        monitor.SetPosition(2);
        QVERIFY(!monitor.AbortRequested());
        QCOMPARE(dynamic_cast<ProgressMonitor&>(monitor).StatusText(), std::string("Later"));
        QCOMPARE(desk.Main().findChild<frmProgress*>(), nullptr);
    }

    void AbortOnlySetsTheFlagEvenIfPressedTwice() {
        Desk desk;
        desk.Show();
        RunMonitor& monitor = desk.frontEnd.ShowProgress();
        auto& window = OpenWindow<frmProgress>(desk.Main());
        Click(window, "cmdAbort");
        QVERIFY(monitor.AbortRequested());
        Click(window, "cmdAbort");
        QVERIFY(monitor.AbortRequested());
        QVERIFY(desk.fake.application.abortRequested);
        QVERIFY(window.isVisible());
        QVERIFY(!desk.Main().isEnabled());
    }

    void APendingAbortIsSeenByTheNextCheck() {
        Desk desk;
        desk.Show();
        RunMonitor& monitor = desk.frontEnd.ShowProgress();
        auto& window = OpenWindow<frmProgress>(desk.Main());
        QTest::qSleep(120); // longer than kLongestPause
        QMetaObject::invokeMethod(&Find<QPushButton>(window, "cmdAbort"), "click", Qt::QueuedConnection);
        QVERIFY(!desk.fake.application.abortRequested);
        QVERIFY(monitor.AbortRequested());
    }

    void ClosingDuringARunAborts_data() {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Esc") << true;
        QTest::newRow("title bar") << false;
    }
    void ClosingDuringARunAborts() {
        QFETCH(bool, byKey);
        QWidget main;
        main.show();
        frmProgress window(main);
        const QSignalSpy aborted(&window, &frmProgress::AbortPressed);
        const QSignalSpy closed(&window, &frmProgress::Closed);
        window.SetRunning(true);
        window.show();
        const auto close = [&] { byKey ? QTest::keyClick(&window, Qt::Key_Escape) : (void)window.close(); };
        close();
        QVERIFY(window.isVisible());
        QCOMPARE(aborted.count(), 1);
        QCOMPARE(closed.count(), 0);
        window.SetRunning(false);
        close();
        QVERIFY(!window.isVisible());
        QCOMPARE(aborted.count(), 1);
        QCOMPARE(closed.count(), 1);
    }

    void EnterDoesNotAbort() {
        Desk desk;
        desk.Show();
        desk.frontEnd.ShowProgress();
        auto& window = OpenWindow<frmProgress>(desk.Main());
        QTest::keyClick(&window, Qt::Key_Return);
        QTest::keyClick(&Find<QPushButton>(window, "cmdAbort"), Qt::Key_Return);
        QVERIFY(!desk.fake.application.abortRequested);
        QTest::keyClick(&Find<QPushButton>(window, "cmdAbort"), Qt::Key_Space);
        QVERIFY(desk.fake.application.abortRequested);
    }

    void ClosingAWindowLeftOpenEnablesTheMainWindow() {
        Desk desk;
        desk.Show();
        desk.frontEnd.ShowProgress();
        OpenWindow<frmProgress>(desk.Main()).close();
        QTRY_COMPARE(desk.Main().findChild<frmProgress*>(), nullptr);
        QVERIFY(desk.Main().isEnabled());
        desk.frontEnd.ShowProgress();
        QVERIFY(!desk.Main().isEnabled());
    }

    void TheLongestStatusFits() {
        Desk desk;
        desk.Show();
        RunMonitor& monitor = desk.frontEnd.ShowProgress();
        auto& window = OpenWindow<frmProgress>(desk.Main());
        monitor.SetMaximum(1000000);
        monitor.SetCountedStatus("Retrieving MPEG/ID3 information (", 1000000, 1000000, ")...");
        QTest::qSleep(120);
        monitor.AbortRequested();
        const auto& label = Find<QLabel>(window, "lblStatus");
        QVERIFY(label.width() >= label.fontMetrics().horizontalAdvance(label.text()));
    }
};

TUNEDEX_WINDOW_TEST(frmProgressTest)
#include "frmProgressTest.moc"
