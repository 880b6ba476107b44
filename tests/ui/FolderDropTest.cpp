#include "FolderDrop.h"

#include "WindowTest.h"
#include "frmDirSelection.h"

#include <QDropEvent>
#include <QGroupBox>
#include <QMimeData>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

QUrl UrlOf(const std::string& path) {
    return QUrl::fromEncoded("file://" + QByteArray::fromStdString(path).toPercentEncoding("/"));
}

// Sends drag and drop events as the window system does. Returns whether the drop was accepted.
bool Drop(QWidget& target, const std::vector<std::string>& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const std::string& path : paths) {
        urls.append(UrlOf(path));
    }
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QApplication::sendEvent(&target, &enter);
    if (!enter.isAccepted()) {
        return false;
    }
    QDropEvent drop(QPointF(2, 2), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&target, &drop);
    return drop.isAccepted() && drop.dropAction() == Qt::CopyAction;
}

// The widget that receives a drag over the folder field: its nearest ancestor that accepts drops.
QWidget& TargetUnder(QWidget& widget) {
    QWidget* target = &widget;
    while (!target->acceptDrops()) {
        target = target->parentWidget();
    }
    return *target;
}

} // namespace

class FolderDropTest : public QObject {
    Q_OBJECT

  private slots:
    void OnlyFoldersAreAcceptedAndTheirBytesKept() {
        const TestFolder folder;
        const std::string music = folder.Make("M\xC3\xBCsik 100% #1");
        const std::string old = folder.Make("old\xFC");
        const std::string file = folder.Write("a.mp3", "");
        QMimeData data;
        data.setUrls({UrlOf(music), UrlOf(file), UrlOf(old + "/"), UrlOf(folder / "missing"),
                      QUrl(u"https://tunedex.example/"_s)});
        const std::vector<std::string> expected{music, old};
        QVERIFY(FoldersIn(data) == expected);
    }

    void AFolderDroppedOnTheFieldSetsItsText() {
        Desk desk;
        desk.Show();
        const std::string music = desk.folder.Make("Music");
        QVERIFY(Drop(TargetUnder(Find<QWidget>(desk.Main(), "txtInputDir")), {music}));
        QCOMPARE(TextOf(desk.Main(), "txtInputDir"), music);
        QCOMPARE(desk.TheSettings().Directory, music);
    }

    void SeveralFoldersDroppedOnTheFieldBecomeAList() {
        Desk desk;
        desk.Show();
        const std::string one = desk.folder.Make("One");
        const std::string two = desk.folder.Make("Two");
        QVERIFY(Drop(TargetUnder(Find<QWidget>(desk.Main(), "txtInputDir")), {one, two, one}));
        QCOMPARE(desk.TheSettings().Directory, "%MULT%" + one + "%||%" + two);
        QVERIFY(desk.frontEnd.Fields().multipleFolders);
        QCOMPARE(TextOf(desk.Main(), "lblFolderCount"), std::string("2 folders chosen"));
    }

    void AFolderDroppedInMultiFolderModeIsAddedToTheList() {
        Desk desk;
        desk.Show();
        const std::string one = desk.folder.Make("One");
        desk.TheSettings().Directory = "%MULT%/first";
        MainFields fields;
        fields.multipleFolders = true;
        desk.frontEnd.FillFields(fields);
        QVERIFY(Drop(TargetUnder(Find<QWidget>(desk.Main(), "txtInputDir")), {one}));
        QCOMPARE(desk.TheSettings().Directory, "%MULT%/first%||%" + one);
    }

    void ADroppedFileIsRejected() {
        Desk desk;
        desk.Show();
        const std::string file = desk.folder.Write("a.mp3", "");
        QVERIFY(!Drop(TargetUnder(Find<QWidget>(desk.Main(), "txtInputDir")), {file}));
        QCOMPARE(TextOf(desk.Main(), "txtInputDir"), std::string());
    }

    void FoldersDroppedOntoTheListAreAppended() {
        Desk desk;
        const std::string one = desk.folder.Make("One");
        const std::string two = desk.folder.Make("Two");
        frmDirSelection window(desk.fake.application, desk.frontEnd, desk.dialogs, nullptr);
        auto& list = Find<QTreeWidget>(window, "lvwDirs");
        QVERIFY(list.viewport()->acceptDrops());
        QVERIFY(Drop(*list.viewport(), {two, one, two}));
        QCOMPARE(list.topLevelItemCount(), 2);
        window.OKPressed_MakeDirs();
        QCOMPARE(desk.TheSettings().Directory, "%MULT%" + two + "%||%" + one);
    }
};

TUNEDEX_WINDOW_TEST(FolderDropTest)
#include "FolderDropTest.moc"
