#include "ResultText.h"

#include "QtText.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace tunedex;

namespace {

RunOutcome Written(const std::string& file, std::int32_t tracks, std::int32_t pages) {
    RunOutcome outcome;
    outcome.end = RunEnd::Written;
    outcome.modern = file.ends_with(".csv"); // a kind of modern lists only
    outcome.file = file;
    outcome.tracks = tracks;
    outcome.pages = pages;
    return outcome;
}

QString TextOf(const RunOutcome& outcome, bool modern = false) {
    return ResultText(outcome, ListName(outcome), modern, Locale());
}

} // namespace

class ResultTextTest : public QObject {
    Q_OBJECT

  private slots:
    void TheFirstLineSaysWhatWasWritten_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("tracks");
        QTest::addColumn<int>("pages");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* file, int tracks, int pages, const QString& text) {
            QTest::newRow(qPrintable(text)) << QByteArray(file) << tracks << pages << text;
        };
        row("/l/list.001.htm", 1234, 13, u"Wrote list.htm: 1,234 tracks on 13 pages."_s);
        row("/l/list.htm", 12, 1, u"Wrote list.htm: 12 tracks on 1 page."_s);
        row("/l/list.xml.HTML", 1, 1, u"Wrote list.xml.HTML: 1 track on 1 page."_s);
        row("/l/list.0001.htm", 1234567, 1235, u"Wrote list.htm: 1,234,567 tracks on 1,235 pages."_s);
        row("list.txt", 999, 1, u"Wrote list.txt: 999 tracks."_s);
        row("/l/a list.m3u", 1000, 1, u"Wrote a list.m3u: 1,000 tracks."_s);
        row("/l/list.csv", 1000, 1, u"Wrote list.csv: 1,000 tracks."_s);
        row("/l/%1 %2.m3u", 2, 1, u"Wrote %1 %2.m3u: 2 tracks."_s);
    }
    void TheFirstLineSaysWhatWasWritten() {
        QFETCH(QByteArray, file);
        QFETCH(int, tracks);
        QFETCH(int, pages);
        QFETCH(QString, text);
        QCOMPARE(TextOf(Written(file.toStdString(), tracks, pages)), text);
    }

    void ALineCountsWhatCouldNotBeRead_data() {
        QTest::addColumn<int>("folders");
        QTest::addColumn<int>("files");
        QTest::addColumn<QString>("line");
        QTest::newRow("both") << 2 << 1 << u"2 folders and 1 file could not be read."_s;
        QTest::newRow("a folder") << 1 << 0 << u"1 folder could not be read."_s;
        QTest::newRow("many files") << 0 << 12345 << u"12,345 files could not be read."_s;
    }
    void ALineCountsWhatCouldNotBeRead() {
        QFETCH(int, folders);
        QFETCH(int, files);
        QFETCH(QString, line);
        RunOutcome outcome = Written("list.txt", 2, 1);
        outcome.unreadFolders = static_cast<std::size_t>(folders);
        outcome.unreadFiles = static_cast<std::size_t>(files);
        QCOMPARE(TextOf(outcome), u"Wrote list.txt: 2 tracks.\n"_s + line);
    }

    void ALineOfAClassicListCountsTheTagsForModernReaders_data() {
        QTest::addColumn<int>("tags");
        QTest::addColumn<bool>("modernRun");
        QTest::addColumn<bool>("modernNow");
        QTest::addColumn<QString>("line");
        QTest::addColumn<bool>("offered");
        const QString many = u"\n1,200 files have tags that 'Modern tags and lists' would read correctly."_s;
        const QString one = u"\n1 file has tags that 'Modern tags and lists' would read correctly."_s;
        const QString on = u"\n'Modern tags and lists' is on now: create the list again."_s;
        QTest::newRow("many") << 1200 << false << false << many << true;
        QTest::newRow("one") << 1 << false << false << one << true;
        QTest::newRow("switched on since") << 1200 << false << true << on << false;
        QTest::newRow("none") << 0 << false << false << QString() << false;
        QTest::newRow("a modern run") << 1200 << true << true << QString() << false;
        QTest::newRow("a modern run, switched off since") << 1200 << true << false << QString() << false;
    }
    void ALineOfAClassicListCountsTheTagsForModernReaders() {
        QFETCH(int, tags);
        QFETCH(bool, modernRun);
        QFETCH(bool, modernNow);
        QFETCH(QString, line);
        QFETCH(bool, offered);
        RunOutcome outcome = Written("list.txt", 2, 1);
        outcome.modernTags = tags;
        outcome.modern = modernRun;
        QCOMPARE(TextOf(outcome, modernNow), u"Wrote list.txt: 2 tracks."_s + line);
        QCOMPARE(OffersModern(outcome, modernNow), offered);
    }

    void NamesCannotSteerTheLine_data() {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("name");
        QTest::newRow("line breaks") << QByteArray("/l/a\nb\rc\u2028.m3u") << u"a?b?c?.m3u"_s;
        QTest::newRow("direction marks") << QByteArray("/l/a\u202Eb\u2066c\u200F.m3u") << u"a?b?c?.m3u"_s;
        QTest::newRow("stray bytes") << QByteArray("/l/a\x9F\xFF.m3u") << u"a?\uFFFD.m3u"_s;
        QTest::newRow("markup and mnemonics") << QByteArray("/l/<b>&amp;.m3u") << u"<b>&amp;.m3u"_s;
        QTest::newRow("pages") << QByteArray("/l/.001.htm") << u".htm"_s;
    }
    void NamesCannotSteerTheLine() {
        QFETCH(QByteArray, file);
        QFETCH(QString, name);
        QCOMPARE(ListName(Written(file.toStdString(), 2, file.contains("001") ? 2 : 1)), name);
    }

    void ANameInAnotherDirectionIsIsolated() {
        const QString hebrew = u"\u05E9\u05D9\u05E8"_s;
        QCOMPARE(Isolated(hebrew), u"\u2068"_s + hebrew + u"\u2069"_s);
        QCOMPARE(Isolated(u"list.htm"_s), u"list.htm"_s);
        QVERIFY(TextOf(Written(FromQt(hebrew) + ".txt", 2, 1)).startsWith(u"Wrote \u2068"_s));
    }
};

QTEST_APPLESS_MAIN(ResultTextTest)
#include "ResultTextTest.moc"
