#include "WindowTest.h"

#include <QLabel>
#include <QLineEdit>

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

class WidgetHelpersTest : public QObject {
    Q_OBJECT

  private slots:
    void AnyTextSurvivesATextField_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("nothing") << QByteArray("");
        QTest::newRow("ASCII") << QByteArray("/home/a.mp3");
        QTest::newRow("non-ASCII letters") << QByteArray("/M\xC3\xBCsik/\xE3\x81\x82");
        QTest::newRow("a character above U+FFFF") << QByteArray("\xF0\x9F\x8E\xB5");
        QTest::newRow("an invalid byte") << QByteArray("/old\xFCname");
        QTest::newRow("an invalid byte after a character above U+FFFF") << QByteArray("\xF0\x9F\x8E\xB5\xB5");
        QTest::newRow("all invalid bytes") << [] {
            QByteArray bytes;
            for (int byte = 0x80; byte <= 0xFF; ++byte) {
                bytes.append(static_cast<char>(byte)).append(' ');
            }
            return bytes;
        }();
        QTest::newRow("an encoded surrogate") << QByteArray("\xED\xB2\x80");
        QTest::newRow("byte-order marks anywhere") << QByteArray("\uFEFF\uFEFFa\uFEFFb\uFEFF");
        QTest::newRow("an overlong form") << QByteArray("\xC0\xAF");
        QTest::newRow("a TAB, a line break and a NUL") << QByteArray("a\tb\nc\0d", 7);
        QTest::newRow("longer than QLineEdit's default limit") << QByteArray(40000, 'x');
    }
    void AnyTextSurvivesATextField() {
        QFETCH(QByteArray, text);
        const QScopedPointer<QLineEdit> field(MakeTextField(u"field"_s, u"Field"_s, u"For texts"_s));
        field->setText(ToQt(text.toStdString()));
        QCOMPARE(QByteArray::fromStdString(FromQt(field->text())), text);
    }

    void ALoneSurrogateThatEncodesNoByteBecomesAReplacementCharacter() {
        QCOMPARE(FromQt(QString(QChar(0xD800))), std::string("\xEF\xBF\xBD"));
        QCOMPARE(FromQt(QString(QChar(0xDC41))), std::string("\xEF\xBF\xBD"));
    }

    void DisplayTextReplacesInvalidBytesAndUsesPlainLineBreaks() {
        QCOMPARE(ToQtDisplay("a\r\nb\xFC"), u"a\nb\uFFFD"_s);
        QCOMPARE(ToQtDisplay("\uFEFF\uFEFFa\uFEFF\xE2"), u"\uFEFF\uFEFFa\uFEFF\uFFFD"_s);
    }

    void AControlHasItsNameAndDescription() {
        const QScopedPointer<QLineEdit> field(MakeTextField(u"txtField"_s, u"Field"_s, u"For texts"_s));
        QCOMPARE(field->objectName(), u"txtField"_s);
        QCOMPARE(field->accessibleName(), u"Field"_s);
        QCOMPARE(field->accessibleDescription(), u"For texts"_s);
        QCOMPARE(field->toolTip(), u"For texts"_s);
    }

    void ALabelsMnemonicMovesTheFocusToItsField() {
        QWidget window;
        auto* other = new QLineEdit(&window);
        auto* field = MakeTextField(u"txtField"_s, u"Field"_s, QString());
        field->setParent(&window);
        MakeLabelFor(*field, u"&Field:"_s)->setParent(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other->setFocus();
        QTest::keyClick(&window, Qt::Key_F, Qt::AltModifier);
        QVERIFY(field->hasFocus());
    }

    void AWindowRemembersItsSizeUnderItsName() {
        QDialog first;
        first.setObjectName(u"frmFirst"_s);
        first.resize(321, 234);
        SaveWindowGeometry(first);

        QDialog again;
        again.setObjectName(u"frmFirst"_s);
        RestoreWindowGeometry(again);
        QCOMPARE(again.size(), QSize(321, 234));

        QDialog other;
        other.setObjectName(u"frmOther"_s);
        other.resize(111, 112);
        RestoreWindowGeometry(other);
        QCOMPARE(other.size(), QSize(111, 112));
    }

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

TUNEDEX_WINDOW_TEST(WidgetHelpersTest)
#include "WidgetHelpersTest.moc"
