#include "QtText.h"
#include "Controls.h"
#include "WindowTest.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

class QtTextTest : public QObject {
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
};

TUNEDEX_WINDOW_TEST(QtTextTest)
#include "QtTextTest.moc"
