#include "ColumnList.h"
#include "LayoutFixture.h"
#include "TestClasses.h"

#include <QDragEnterEvent>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace tunedex::test {

class ColumnsPageTest : public QObject {
    Q_OBJECT

  private slots:
    void ListsShowTheColumnsInOrder_data();
    void ListsShowTheColumnsInOrder();
    void CommandsMoveColumns_data();
    void CommandsMoveColumns();
    void WithoutASelectionMovesChangeNothing();
    void CommandsAreEnabledOnlyIfTheyHaveAnEffect_data();
    void CommandsAreEnabledOnlyIfTheyHaveAnEffect();
    void DoubleClicksMoveAColumnToTheOtherList();
    void AltWithAnArrowReordersTheShownColumns();
    void TheCommandsThatReorderAreBesideTheirList();
    void ADisabledCommandPassesTheFocusToItsList();
    void DroppedColumnsAreInsertedAtTheDropPosition_data();
    void DroppedColumnsAreInsertedAtTheDropPosition();
    void DraggingAColumnOverAListAndDroppingItMovesIt();
    void ColumnsOfOtherWindowsAndOtherDataAreRejected();
    void HidingEveryColumnStoresAnEmptyText();
    void MergeFollowsBothCheckBoxes_data();
    void MergeFollowsBothCheckBoxes();
    void MergeBoxesShowTheSetting_data();
    void MergeBoxesShowTheSetting();
    void MergeBoxesRequireArtistAndTitleAndKeepTheirValues();
};

namespace {

const TestClass<ColumnsPageTest> kColumnsPageTestRegistered("ColumnsPageTest");

// A layout editor with the given columns.
class Columns : public LayoutFixture {
  public:
    Columns(const QString& active, const QString& inactive) {
        settings.ActiveColumns = active.toStdString();
        settings.InactiveColumns = inactive.toStdString();
        editor = std::make_unique<frmEditLayout>(application, ui);
    }

    ColumnList& Active() const { return Find<ColumnList>(*editor, u"lstActiveColumns"_s); }
    ColumnList& Inactive() const { return Find<ColumnList>(*editor, u"lstInactiveColumns"_s); }
    ColumnList& List(const QString& name) const { return Find<ColumnList>(*editor, name); }

    // The columns shown, which must be those that OK stores, as "A|B C".
    QString Shown() const {
        Settings stored;
        editor->StoreControls(stored);
        const auto texts = [](const ColumnList& list) {
            QStringList names;
            for (int row = 0; row < list.count(); ++row) {
                names << list.item(row)->text();
            }
            return names.join(u'|');
        };
        if (stored.ActiveColumns != texts(Active()).toStdString() ||
            stored.InactiveColumns != texts(Inactive()).toStdString()) {
            return u"the lists show other columns than would be stored"_s;
        }
        return texts(Active()) + u' ' + texts(Inactive());
    }

    std::unique_ptr<frmEditLayout> editor;
};

QPoint PlaceAbove(const ColumnList& list, int row) {
    return list.visualItemRect(list.item(row)).center() - QPoint(0, 3);
}

// Drags the data to a position in the list and drops it. Returns whether the list accepted it.
bool DragTo(ColumnList& list, QPoint place, const QMimeData& data) {
    QDragEnterEvent enter(place, Qt::MoveAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(list.viewport(), &enter);
    QDragMoveEvent move(place, Qt::MoveAction, &data, Qt::LeftButton, {});
    move.ignore();
    QApplication::sendEvent(list.viewport(), &move);
    QDropEvent drop(place, Qt::MoveAction, &data, Qt::LeftButton, {});
    drop.ignore();
    QApplication::sendEvent(list.viewport(), &drop);
    return enter.isAccepted() && move.isAccepted() && drop.isAccepted();
}

} // namespace

void ColumnsPageTest::ListsShowTheColumnsInOrder_data() {
    QTest::addColumn<QString>("active");
    QTest::addColumn<QString>("inactive");
    QTest::newRow("both filled") << u"A|B|C"_s << u"D|E"_s;
    QTest::newRow("none shown") << u""_s << u"D|E"_s;
    QTest::newRow("none hidden") << u"A"_s << u""_s;
    QTest::newRow("empty names") << u"A||B|"_s << u"|"_s;
}

void ColumnsPageTest::ListsShowTheColumnsInOrder() {
    QFETCH(QString, active);
    QFETCH(QString, inactive);
    const Columns with(active, inactive);
    QCOMPARE(with.Shown(), active + u' ' + inactive);
    QCOMPARE(with.Active().count(), active.isEmpty() ? 0 : active.count(u'|') + 1);
}

void ColumnsPageTest::CommandsMoveColumns_data() {
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("after"); // of A|B|C and D|E|F
    QTest::addColumn<int>("selected");  // row in the same list; -1 for none
    const QString active = u"lstActiveColumns"_s;
    const QString inactive = u"lstInactiveColumns"_s;
    QTest::newRow("hide the first") << active << 0 << u"cmdInactive"_s << u"B|C D|E|F|A"_s << 0;
    QTest::newRow("hide the middle column") << active << 1 << u"cmdInactive"_s << u"A|C D|E|F|B"_s << 1;
    QTest::newRow("hide the last") << active << 2 << u"cmdInactive"_s << u"A|B D|E|F|C"_s << 1;
    QTest::newRow("show the first") << inactive << 0 << u"cmdActive"_s << u"A|B|C|D E|F"_s << 0;
    QTest::newRow("show the last") << inactive << 2 << u"cmdActive"_s << u"A|B|C|F D|E"_s << 1;
    QTest::newRow("show all") << inactive << 0 << u"cmdAllActive"_s << u"A|B|C|D|E|F "_s << -1;
    QTest::newRow("hide all") << active << 0 << u"cmdAllInactive"_s << u" D|E|F|A|B|C"_s << -1;
    QTest::newRow("top") << active << 2 << u"cmdTop"_s << u"C|A|B D|E|F"_s << 0;
    QTest::newRow("middle column to the top") << active << 1 << u"cmdTop"_s << u"B|A|C D|E|F"_s << 0;
    QTest::newRow("up") << active << 2 << u"cmdUp"_s << u"A|C|B D|E|F"_s << 1;
    QTest::newRow("down") << active << 0 << u"cmdDown"_s << u"B|A|C D|E|F"_s << 1;
    QTest::newRow("bottom") << active << 0 << u"cmdBottom"_s << u"B|C|A D|E|F"_s << 2;
    QTest::newRow("middle column to the bottom") << active << 1 << u"cmdBottom"_s << u"A|C|B D|E|F"_s << 2;
    QTest::newRow("up from the first row") << active << 0 << u"cmdUp"_s << u"A|B|C D|E|F"_s << 0;
    QTest::newRow("down from the last row") << active << 2 << u"cmdDown"_s << u"A|B|C D|E|F"_s << 2;
}

void ColumnsPageTest::CommandsMoveColumns() {
    QFETCH(QString, list);
    QFETCH(int, row);
    QFETCH(QString, command);
    QFETCH(QString, after);
    QFETCH(int, selected);
    const Columns with(u"A|B|C"_s, u"D|E|F"_s);
    with.List(list).SelectRow(row);
    Button(*with.editor, command).click();
    QCOMPARE(with.Shown(), after);
    QCOMPARE(with.List(list).SelectedRow(), selected);
}

void ColumnsPageTest::WithoutASelectionMovesChangeNothing() {
    const Columns with(u"A|B|C"_s, u"D|E|F"_s);
    Show(*with.editor);
    with.Active().setFocus(); // sets a current row but selects nothing
    with.Inactive().setFocus();
    QCOMPARE(with.Active().SelectedRow(), -1);
    for (const QString& name :
         {u"cmdActive"_s, u"cmdInactive"_s, u"cmdTop"_s, u"cmdUp"_s, u"cmdDown"_s, u"cmdBottom"_s}) {
        QAbstractButton& command = Button(*with.editor, name);
        QVERIFY2(!command.isEnabled(), qPrintable(name));
        emit command.clicked(); // bypasses the disabled state
        QCOMPARE(with.Shown(), u"A|B|C D|E|F"_s);
    }
}

void ColumnsPageTest::CommandsAreEnabledOnlyIfTheyHaveAnEffect_data() {
    QTest::addColumn<QString>("active");
    QTest::addColumn<int>("activeRow");
    QTest::addColumn<QString>("inactive");
    QTest::addColumn<int>("inactiveRow");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("nothing selected") << u"A|B"_s << -1 << u"C"_s << -1 << u"cmdAllActive cmdAllInactive"_s;
    QTest::newRow("first shown selected")
        << u"A|B"_s << 0 << u"C"_s << -1 << u"cmdInactive cmdAllActive cmdAllInactive cmdDown cmdBottom"_s;
    QTest::newRow("last shown selected")
        << u"A|B"_s << 1 << u"C"_s << -1 << u"cmdInactive cmdAllActive cmdAllInactive cmdTop cmdUp"_s;
    QTest::newRow("middle column selected")
        << u"A|B|C"_s << 1 << u""_s << -1 << u"cmdInactive cmdAllInactive cmdTop cmdUp cmdDown cmdBottom"_s;
    QTest::newRow("the only column selected")
        << u"A"_s << 0 << u""_s << -1 << u"cmdInactive cmdAllInactive"_s;
    QTest::newRow("hidden column selected") << u""_s << -1 << u"A|B"_s << 1 << u"cmdActive cmdAllActive"_s;
    QTest::newRow("no columns") << u""_s << -1 << u""_s << -1 << u""_s;
}

void ColumnsPageTest::CommandsAreEnabledOnlyIfTheyHaveAnEffect() {
    QFETCH(QString, active);
    QFETCH(int, activeRow);
    QFETCH(QString, inactive);
    QFETCH(int, inactiveRow);
    QFETCH(QString, enabled);
    const Columns with(active, inactive);
    with.Active().SelectRow(activeRow);
    with.Inactive().SelectRow(inactiveRow);
    QStringList found;
    for (const QString& name : {u"cmdActive"_s, u"cmdInactive"_s, u"cmdAllActive"_s, u"cmdAllInactive"_s,
                                u"cmdTop"_s, u"cmdUp"_s, u"cmdDown"_s, u"cmdBottom"_s}) {
        if (IsEnabled(*with.editor, name)) {
            found << name;
        }
    }
    QCOMPARE(found.join(u' '), enabled);
}

void ColumnsPageTest::DoubleClicksMoveAColumnToTheOtherList() {
    const Columns with(u"A|B|C"_s, u"D|E|F"_s);
    Show(*with.editor);
    const auto doubleClick = [](ColumnList& list, int row) {
        const QPoint place = list.visualItemRect(list.item(row)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    };
    doubleClick(with.Active(), 1);
    QCOMPARE(with.Shown(), u"A|C D|E|F|B"_s);
    doubleClick(with.Inactive(), 0);
    QCOMPARE(with.Shown(), u"A|C|D E|F|B"_s);
}

void ColumnsPageTest::AltWithAnArrowReordersTheShownColumns() {
    const Columns with(u"A|B|C"_s, u"D"_s);
    Show(*with.editor);
    with.Active().setFocus();
    with.Active().SelectRow(2);
    QTest::keyClick(&with.Active(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(with.Shown(), u"A|C|B D"_s);
    QTest::keyClick(&with.Active(), Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(&with.Active(), Qt::Key_Up, Qt::AltModifier);
    QCOMPARE(with.Shown(), u"C|A|B D"_s);
    QTest::keyClick(&with.Active(), Qt::Key_Down, Qt::AltModifier);
    QCOMPARE(with.Shown(), u"A|C|B D"_s);
    QCOMPARE(with.Active().SelectedRow(), 1);
}

void ColumnsPageTest::TheCommandsThatReorderAreBesideTheirList() {
    Columns with(u"Artist|Title"_s, u"Year"_s);
    Show(*with.editor);
    const auto left = [&](const QString& name) {
        return Find<QWidget>(*with.editor, name).mapTo(with.editor.get(), QPoint()).x();
    };
    for (const QString& name : {u"cmdTop"_s, u"cmdUp"_s, u"cmdDown"_s, u"cmdBottom"_s}) {
        QVERIFY2(left(name) > left(u"lstActiveColumns"_s), qPrintable(name));
    }
    for (const QString& name : {u"cmdActive"_s, u"cmdInactive"_s, u"cmdAllActive"_s, u"cmdAllInactive"_s}) {
        QVERIFY2(left(name) < left(u"lstActiveColumns"_s), qPrintable(name));
        QVERIFY2(left(name) > left(u"lstInactiveColumns"_s), qPrintable(name));
    }
}

void ColumnsPageTest::ADisabledCommandPassesTheFocusToItsList() {
    const Columns with(u"A|B|C"_s, u"D"_s);
    Show(*with.editor);
    with.Active().SelectRow(2);
    QAbstractButton& up = Button(*with.editor, u"cmdUp"_s);
    up.setFocus();
    QTest::keyClick(&up, Qt::Key_Space);
    QVERIFY(up.hasFocus());
    QTest::keyClick(&up, Qt::Key_Space);
    QCOMPARE(with.Shown(), u"C|A|B D"_s);
    QVERIFY(with.Active().hasFocus());
}

void ColumnsPageTest::DroppedColumnsAreInsertedAtTheDropPosition_data() {
    QTest::addColumn<QString>("source");
    QTest::addColumn<int>("sourceRow");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("after");
    QTest::addColumn<int>("selected"); // in the target
    const QString active = u"lstActiveColumns"_s;
    const QString inactive = u"lstInactiveColumns"_s;
    QTest::newRow("down in one list") << active << 0 << active << 2 << u"B|A|C D|E"_s << 1;
    QTest::newRow("to its end") << active << 0 << active << 3 << u"B|C|A D|E"_s << 2;
    QTest::newRow("up in one list") << active << 2 << active << 0 << u"C|A|B D|E"_s << 0;
    QTest::newRow("onto itself") << active << 1 << active << 1 << u"A|B|C D|E"_s << 1;
    QTest::newRow("after itself") << active << 1 << active << 2 << u"A|B|C D|E"_s << 1;
    QTest::newRow("shown between others") << inactive << 1 << active << 1 << u"A|E|B|C D"_s << 1;
    QTest::newRow("hidden at the end") << active << 0 << inactive << 2 << u"B|C D|E|A"_s << 2;
    QTest::newRow("hidden columns have an order too")
        << inactive << 0 << inactive << 2 << u"A|B|C E|D"_s << 1;
}

void ColumnsPageTest::DroppedColumnsAreInsertedAtTheDropPosition() {
    QFETCH(QString, source);
    QFETCH(int, sourceRow);
    QFETCH(QString, target);
    QFETCH(int, row);
    QFETCH(QString, after);
    QFETCH(int, selected);
    const Columns with(u"A|B|C"_s, u"D|E"_s);
    emit with.List(target).ColumnDropped(&with.List(source), sourceRow, row);
    QCOMPARE(with.Shown(), after);
    QCOMPARE(with.List(target).SelectedRow(), selected);
}

void ColumnsPageTest::DraggingAColumnOverAListAndDroppingItMovesIt() {
    const Columns with(u"A|B|C"_s, u"D|E"_s);
    Show(*with.editor);
    QVERIFY(DragTo(with.Active(), PlaceAbove(with.Active(), 0), *with.Inactive().DragData(1)));
    QCOMPARE(with.Shown(), u"E|A|B|C D"_s);
    QVERIFY(with.Active().hasFocus());
    QVERIFY(DragTo(with.Active(), PlaceAbove(with.Active(), 3) + QPoint(0, 200), *with.Active().DragData(1)));
    QCOMPARE(with.Shown(), u"E|B|C|A D"_s);
}

void ColumnsPageTest::ColumnsOfOtherWindowsAndOtherDataAreRejected() {
    const Columns with(u"A|B|C"_s, u"D|E"_s);
    const Columns other(u"A|B|C"_s, u"D|E"_s);
    Show(*with.editor);
    const QPoint place = PlaceAbove(with.Active(), 0);
    QVERIFY(!DragTo(with.Active(), place, *other.Inactive().DragData(1)));
    QMimeData text;
    text.setText(u"Genre"_s);
    QVERIFY(!DragTo(with.Active(), place, text));
    // The MIME type of all Qt item views.
    const std::unique_ptr<QMimeData> copy = with.Inactive().DragData(0);
    QMimeData foreign;
    foreign.setData(copy->formats().front(), copy->data(copy->formats().front()));
    QVERIFY(!DragTo(with.Active(), place, foreign));
    QCOMPARE(with.Shown(), u"A|B|C D|E"_s);
    QCOMPARE(other.Shown(), u"A|B|C D|E"_s);
}

void ColumnsPageTest::HidingEveryColumnStoresAnEmptyText() {
    Columns with(u"A|B"_s, u"C"_s);
    Button(*with.editor, u"cmdAllInactive"_s).click();
    Button(*with.editor, u"cmdOK"_s).click();
    QCOMPARE(with.settings.ActiveColumns, std::string());
    QCOMPARE(with.settings.InactiveColumns, std::string("C|A|B"));
}

void ColumnsPageTest::MergeFollowsBothCheckBoxes_data() {
    QTest::addColumn<bool>("artistTitle");
    QTest::addColumn<bool>("album");
    QTest::addColumn<int>("merge");
    QTest::newRow("neither") << false << false << 0;
    QTest::newRow("album only") << false << true << 0;
    QTest::newRow("artist and title") << true << false << 1;
    QTest::newRow("both") << true << true << 2;
}

void ColumnsPageTest::MergeFollowsBothCheckBoxes() {
    QFETCH(bool, artistTitle);
    QFETCH(bool, album);
    QFETCH(int, merge);
    for (const std::int16_t before : {0, 1, 2}) {
        LayoutFixture with;
        with.settings.Merge = before;
        frmEditLayout editor(with.application, with.ui);
        Set(editor, u"chkArtistTitleMerge"_s, artistTitle);
        Set(editor, u"chkAlbumMerge"_s, album);
        Button(editor, u"cmdOK"_s).click();
        QCOMPARE(static_cast<int>(with.settings.Merge), merge);
    }
}

void ColumnsPageTest::MergeBoxesShowTheSetting_data() {
    QTest::addColumn<int>("merge");
    QTest::addColumn<bool>("artistTitle");
    QTest::addColumn<bool>("album");
    QTest::newRow("none") << 0 << false << false;
    QTest::newRow("artist and title") << 1 << true << false;
    QTest::newRow("album too") << 2 << true << true;
    QTest::newRow("unknown") << 3 << false << false;
}

void ColumnsPageTest::MergeBoxesShowTheSetting() {
    QFETCH(int, merge);
    QFETCH(bool, artistTitle);
    QFETCH(bool, album);
    LayoutFixture with;
    with.settings.Merge = static_cast<std::int16_t>(merge);
    const frmEditLayout editor(with.application, with.ui);
    QCOMPARE(IsChecked(editor, u"chkArtistTitleMerge"_s), artistTitle);
    QCOMPARE(IsChecked(editor, u"chkAlbumMerge"_s), album);
}

void ColumnsPageTest::MergeBoxesRequireArtistAndTitleAndKeepTheirValues() {
    Columns with(u"Number|Artist|Title"_s, u"Album"_s);
    const auto enabled = [&] {
        return IsEnabled(*with.editor, u"chkArtistTitleMerge"_s) &&
               IsEnabled(*with.editor, u"chkAlbumMerge"_s);
    };
    const auto disabled = [&] {
        return !IsEnabled(*with.editor, u"chkArtistTitleMerge"_s) &&
               !IsEnabled(*with.editor, u"chkAlbumMerge"_s);
    };
    QVERIFY(enabled());
    with.Active().SelectRow(1);
    Button(*with.editor, u"cmdInactive"_s).click();
    QVERIFY(disabled());
    Button(*with.editor, u"cmdAllActive"_s).click();
    QVERIFY(enabled());
    Button(*with.editor, u"cmdAllInactive"_s).click();
    QVERIFY(disabled());
    QVERIFY(IsChecked(*with.editor, u"chkArtistTitleMerge"_s));
    QVERIFY(IsChecked(*with.editor, u"chkAlbumMerge"_s));
    Button(*with.editor, u"cmdOK"_s).click();
    QCOMPARE(static_cast<int>(with.settings.Merge), 2);
    QVERIFY(Columns(u"ARTIST|title"_s, u""_s).editor->findChild<QWidget*>(u"chkAlbumMerge"_s)->isEnabled());
}

} // namespace tunedex::test

#include "ColumnsPageTest.moc"
