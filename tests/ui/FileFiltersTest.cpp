#include "FileFilters.h"

#include "WindowTest.h"

using namespace Qt::StringLiterals;
using namespace tunedex;

namespace {

const QString kOutput =
    u"HTML File (*.htm,*.html)|*.htm;*.html|Text File (*.txt)|*.txt|Winamp Playlist (*.m3u)|*.m3u|"_s;

} // namespace

class FileFiltersTest : public QObject {
    Q_OBJECT

  private slots:
    void AFilterListConsistsOfPairsAndMayEndInABar_data() {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QStringList>("expected");
        const QStringList output{u"HTML File (*.htm,*.html) (*.htm *.html)"_s, u"Text File (*.txt) (*.txt)"_s,
                                 u"Winamp Playlist (*.m3u) (*.m3u)"_s};
        QTest::newRow("a bar at the end") << kOutput << output;
        QTest::newRow("no bar at the end") << kOutput.chopped(1) << output;
        QTest::newRow("all files") << u"Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*"_s
                                   << QStringList{u"Settings Files (*.cfg) (*.cfg)"_s,
                                                  u"All Files (*.*) (*)"_s};
        QTest::newRow("nothing") << QString() << QStringList();
    }
    void AFilterListConsistsOfPairsAndMayEndInABar() {
        QFETCH(QString, list);
        QFETCH(QStringList, expected);
        QStringList names;
        for (const FileFilter& filter : ParseFilterList(list)) {
            names.append(QtNameFilter(filter));
        }
        QCOMPARE(names, expected);
    }

    void OnlyAFilterForAllFilesHasNoExtension() {
        QCOMPARE(ExtensionOf({u"HTML"_s, {u"*.htm"_s, u"*.html"_s}}), u"htm"_s);
        QCOMPARE(ExtensionOf({u"All"_s, {u"*.*"_s}}), QString());
        QCOMPARE(ExtensionOf({u"None"_s, {}}), QString());
    }

    void ChangingTheFilterReplacesOnlyExtensionsOfTheList_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("filter");
        QTest::addColumn<QString>("expected");
        QTest::newRow("page to playlist") << u"list.htm"_s << 2 << u"list.m3u"_s;
        QTest::newRow("playlist to page") << u"list.M3U"_s << 0 << u"list.htm"_s;
        QTest::newRow("extension of the chosen filter") << u"list.html"_s << 0 << u"list.html"_s;
        QTest::newRow("another extension is kept") << u"list.xml"_s << 2 << u"list.xml"_s;
        QTest::newRow("none") << u"list"_s << 2 << u"list"_s;
        QTest::newRow("a hidden file") << u".htm"_s << 2 << u".htm"_s;
        QTest::newRow("only the last extension counts") << u"a.txt.htm"_s << 1 << u"a.txt.txt"_s;
        QTest::newRow("no name") << QString() << 1 << QString();
    }
    void ChangingTheFilterReplacesOnlyExtensionsOfTheList() {
        QFETCH(QString, name);
        QFETCH(int, filter);
        QFETCH(QString, expected);
        const QList<FileFilter> filters = ParseFilterList(kOutput);
        QCOMPARE(NameForFilter(name, filters[filter], filters), expected);
    }
};

TUNEDEX_WINDOW_TEST(FileFiltersTest)
#include "FileFiltersTest.moc"
