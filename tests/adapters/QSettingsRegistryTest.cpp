#include "QSettingsRegistry.h"

#include "TestFolder.h"

#include <QSettings>
#include <QtTest>

using namespace tunedex;
using namespace tunedex::test;

// Qt reads these variables once, on first use.
class QSettingsRegistryTest : public QObject {
    Q_OBJECT

    TestFolder user_;
    TestFolder system_;

  private slots:
    void initTestCase() {
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(user_.Path()));
        qputenv("XDG_CONFIG_DIRS", QByteArray::fromStdString(system_.Path()));
        system_.Write("Corvale Works/Tunedex.conf",
                      "[General]\nTipsOnStartup=1\nInstallationPath=/opt/system wide\n");
    }

    void AMissingValueIsEmpty() { QCOMPARE(QSettingsRegistry().Read("HelpFilePath"), std::string()); }

    void MissingValuesComeFromTheSystemWideFile() {
        QSettingsRegistry registry;
        QCOMPARE(registry.Read("TipsOnStartup"), std::string("1"));
        QCOMPARE(registry.Read("InstallationPath"), std::string("/opt/system wide"));
        registry.Write("TipsOnStartup", "0");
        QCOMPARE(registry.Read("TipsOnStartup"), std::string("0"));
        QCOMPARE(QSettingsRegistry().Read("TipsOnStartup"), std::string("0"));
        QCOMPARE(ReadBytes(user_ / "Corvale Works/Tunedex.conf"),
                 std::string("[General]\nTipsOnStartup=0\n"));
    }

    void AWrittenTextIsReadBack_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("a number") << QByteArray("1");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("blanks, commas and quotes") << QByteArray(" /a, b;c=\"d\" %MULT%\\ ");
        QTest::newRow("non-ASCII letters") << QByteArray("/M\xC3\xBCsik/\xE3\x81\x82/\xF0\x9F\x8E\xB5");
        QTest::newRow("an at sign, which the file format uses") << QByteArray("@ByteArray(x)");
        QTest::newRow("invalid UTF-8") << QByteArray("/old\xFCname");
    }
    void AWrittenTextIsReadBack() {
        QFETCH(QByteArray, text);
        QSettingsRegistry().Write("TipsFile", text.toStdString());
        QCOMPARE(QByteArray::fromStdString(QSettingsRegistry().Read("TipsFile")), text);
    }

    void AnUnquotedCommaIsPartOfTheText() {
        user_.Write("Corvale Works/Tunedex.conf", "[General]\nInstallationPath=/srv/a,b\n");
        QCOMPARE(QSettingsRegistry().Read("InstallationPath"), std::string("/srv/a,b"));
    }
};

QTEST_GUILESS_MAIN(QSettingsRegistryTest)
#include "QSettingsRegistryTest.moc"
