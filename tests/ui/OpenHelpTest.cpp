#include "OpenHelp.h"
#include "WindowTest.h"

#include <QDialog>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

// Whether there was exactly one message, with this text and owned by the main window.
bool SaidByMainWindow(Desk& desk, const std::string& text) {
    const std::vector<FakeDialogs::Message>& messages = desk.dialogs.messages;
    return messages.size() == 1 && messages[0].text == text && messages[0].buttons == kOkExclamation &&
           messages[0].title == "Error!" && messages[0].owner == &desk.Main();
}

} // namespace

class OpenHelpTest : public QObject {
    Q_OBJECT

  private slots:
    void AMissingHelpFileShowsAMessage() {
        Desk desk;
        desk.Show();
        OpenHelp(desk.fake.application, desk.frontEnd, desk.Main());
        QVERIFY(SaidByMainWindow(desk, "The help file could not be found!"));
    }

    void TheHelpFileOpensEvenIfItsPathIsNotUtf8() {
        FakeBrowser browser;
        Desk desk;
        desk.fake.application.helpFile = "/srv/a b/\xFC#%/Help.html";
        OpenHelp(desk.fake.application, desk.frontEnd, desk.Main());
        QVERIFY(desk.dialogs.messages.empty());
        QCOMPARE(browser.opened.size(), std::size_t(1));
        QCOMPARE(browser.opened[0].toEncoded(), QByteArray("file:///srv/a%20b/%FC%23%25/Help.html"));
    }

    void AnAddressWithoutAHandlerShowsAMessage() {
        Desk desk;
        desk.Show();
        OpenAddress(u"https://tunedex.example/"_s, desk.fake.application, desk.frontEnd, desk.Main());
        QVERIFY(SaidByMainWindow(desk, "No program could be found to open\nhttps://tunedex.example/"));
    }

    void AMessageOfAHiddenWindowIsOwnedByItsVisibleParent() {
        Desk desk;
        desk.Show();
        QDialog hidden(&desk.Main());
        OpenHelp(desk.fake.application, desk.frontEnd, hidden);
        QVERIFY(SaidByMainWindow(desk, "The help file could not be found!"));
    }
};

TUNEDEX_WINDOW_TEST(OpenHelpTest)
#include "OpenHelpTest.moc"
