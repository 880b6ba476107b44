// Modern tags and lists in the options dialog and in the layout editor.
#include "CodePages.h"
#include "ColumnList.h"
#include "LayoutFixture.h"
#include "ModernColumns.h"
#include "TestClasses.h"

#include <QAction>
#include <QGroupBox>

using namespace Qt::StringLiterals;

namespace tunedex::test {

class ModernOptionsTest : public QObject {
    Q_OBJECT

  private slots:
    void TheBoxShowsAndStoresTheSetting();
    void TheCodePagesAreEnabledWhileTheBoxIsTicked();
    void TheDefaultCodePageIsStoredAsNoName();
    void ACodePageIsShownAndKept_data();
    void ACodePageIsShownAndKept();
    void AChosenCodePageIsStored();
    void TheSortingNamesItsKeys();
    void CancelKeepsBothSettings();
    void SavedSettingsHoldBothOnlyWhenSet();
    void ColumnsAreOfferedAndRemoved_data();
    void ColumnsAreOfferedAndRemoved();
    void TheEditorOffersTheColumnsWhileTheBoxIsTicked_data();
    void TheEditorOffersTheColumnsWhileTheBoxIsTicked();
    void TheEditorFollowsTheBox();
    void SwitchingOffRemovesTheColumns_data();
    void SwitchingOffRemovesTheColumns();
    void AClassicListKeepsTheNamesOfItsFile();
    void DiscardingTheTickRemovesTheColumnsThatTheEditorStored();
    void ARunTakesTheBoxOfTheOpenDialog();
    void TheKeyboardReachesBoxAndCodePages();
};

namespace {

const TestClass<ModernOptionsTest> kModernOptionsTestRegistered("ModernOptionsTest");

constexpr const char* kShown = "Number|Artist|Album|Title|Duration";
constexpr const char* kHidden =
    "Bitrate|File Size|Frequency|Genre|Mode|MPEG Type|Year|Filename|Folder Path|Full Path";
const std::string kModernHidden = std::string(kHidden) + "|Track|Disc|Album Artist|Composer|Comment";

class ModernFixture : public LayoutFixture {
  public:
    explicit ModernFixture(bool modern = false) { settings.Modern = modern; }

    frmOptions& Options() {
        if (!options_) {
            options_ = std::make_unique<frmOptions>(application, ui);
            ui.options = options_.get();
        }
        return *options_;
    }
    QComboBox& CodePages() { return Find<QComboBox>(Options(), u"cmbTagCodePage"_s); }
    frmEditLayout& Edit() {
        Button(Options(), u"cmdEditLayout"_s).click();
        return *Options().Editor();
    }
    std::string HiddenColumns() {
        return Find<ColumnList>(*Options().Editor(), u"lstInactiveColumns"_s).Columns();
    }
    // Moves the column of the editor to the shown ones and presses OK.
    void ShowColumn(const QString& name) {
        auto& hidden = Find<ColumnList>(Edit(), u"lstInactiveColumns"_s);
        hidden.setCurrentItem(hidden.findItems(name, Qt::MatchExactly).value(0));
        Button(*Options().Editor(), u"cmdActive"_s).click();
        Button(*Options().Editor(), u"cmdOK"_s).click();
    }

  private:
    std::unique_ptr<frmOptions> options_;
};

} // namespace

void ModernOptionsTest::TheBoxShowsAndStoresTheSetting() {
    for (const bool modern : {false, true}) {
        ModernFixture with(modern);
        QAbstractButton& box = Button(with.Options(), u"chkModern"_s);
        QCOMPARE(box.isChecked(), modern);
        QCOMPARE(box.accessibleName(), u"Modern tags and lists"_s);
        box.click();
        QCOMPARE(with.settings.Modern, modern);
        Button(with.Options(), u"cmdUse"_s).click();
        QCOMPARE(with.settings.Modern, !modern);
    }
}

void ModernOptionsTest::TheCodePagesAreEnabledWhileTheBoxIsTicked() {
    ModernFixture with;
    QVERIFY(!with.CodePages().isEnabled());
    Set(with.Options(), u"chkModern"_s, true);
    QVERIFY(with.CodePages().isEnabled());
    with.Options().LoadControls();
    QVERIFY(!with.CodePages().isEnabled());
    with.Options().SwitchModernOn();
    QVERIFY(with.CodePages().isEnabled());
    QVERIFY(!with.settings.Modern);
}

void ModernOptionsTest::TheDefaultCodePageIsStoredAsNoName() {
    ModernFixture with(true);
    QCOMPARE(with.CodePages().count(), static_cast<int>(kCodePages.size()));
    QCOMPARE(with.CodePages().count(), 16);
    QCOMPARE(with.CodePages().currentText(), u"Western (windows-1252)"_s);
    QCOMPARE(with.CodePages().itemText(3), u"Cyrillic (KOI8-R)"_s);
    QCOMPARE(with.CodePages().itemText(15), u"UTF-8"_s);
    Button(with.Options(), u"cmdUse"_s).click();
    QCOMPARE(with.settings.TagCodePage, std::string());
}

void ModernOptionsTest::ACodePageIsShownAndKept_data() {
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("row");
    QTest::addColumn<int>("rows");
    QTest::newRow("none") << QByteArray() << u"Western (windows-1252)"_s << 16;
    QTest::newRow("the default by name") << QByteArray("windows-1252") << u"Western (windows-1252)"_s << 16;
    QTest::newRow("a listed one") << QByteArray("CP932") << u"Japanese (CP932)"_s << 16;
    QTest::newRow("a listed one in lower case") << QByteArray("koi8-r") << u"Cyrillic (KOI8-R)"_s << 16;
    QTest::newRow("another one") << QByteArray("ISO-8859-5") << u"ISO-8859-5"_s << 17;
}

void ModernOptionsTest::ACodePageIsShownAndKept() {
    QFETCH(QByteArray, name);
    QFETCH(QString, row);
    QFETCH(int, rows);
    for (const bool modern : {false, true}) {
        ModernFixture with(modern);
        with.settings.TagCodePage = name.toStdString();
        QCOMPARE(with.CodePages().currentText(), row);
        QCOMPARE(with.CodePages().count(), rows);
        with.CodePages().setCurrentIndex(4);
        with.CodePages().setCurrentText(row);
        Button(with.Options(), u"cmdUse"_s).click();
        QCOMPARE(with.settings.TagCodePage, name.toStdString());
    }
}

void ModernOptionsTest::AChosenCodePageIsStored() {
    for (const CodePageName& page : kCodePages) {
        ModernFixture with(true);
        with.settings.TagCodePage = "ISO-8859-5";
        with.CodePages().setCurrentIndex(static_cast<int>(&page - kCodePages.data()));
        Button(with.Options(), u"cmdUse"_s).click();
        QCOMPARE(with.settings.TagCodePage, std::string(&page == kCodePages.data() ? "" : page.name));
        QVERIFY(IsCodePage(page.name));
    }
}

void ModernOptionsTest::TheSortingNamesItsKeys() {
    ModernFixture with;
    const auto& group = Find<QGroupBox>(with.Options(), u"fraSortOrder"_s);
    QCOMPARE(group.title(), u"Sort by artist, album and title"_s);
    Set(with.Options(), u"chkModern"_s, true);
    QCOMPARE(group.title(), u"Sort by artist, album, disc and track"_s);
}

void ModernOptionsTest::CancelKeepsBothSettings() {
    ModernFixture with;
    const Settings before = with.settings;
    Set(with.Options(), u"chkModern"_s, true);
    with.CodePages().setCurrentIndex(2);
    Button(with.Options(), u"cmdCancel"_s).click();
    QVERIFY(with.settings == before);
}

void ModernOptionsTest::SavedSettingsHoldBothOnlyWhenSet() {
    ModernFixture with;
    const auto save = [&with] {
        with.Options().show();
        Button(with.Options(), u"cmdSave"_s).click();
        return ReadBytes(with.folder / "Tunedex.cfg");
    };
    const std::string before = save();
    QVERIFY(before.ends_with("\r\nTableBorder=1\r\n"));
    Set(with.Options(), u"chkModern"_s, true);
    with.CodePages().setCurrentIndex(2);
    with.ShowColumn(u"Track"_s);
    const std::string on = save();
    QVERIFY(on.ends_with("\r\nTableBorder=1\r\nTagCodePage=windows-1251\r\nModern=1\r\n"));
    QVERIFY(on.find("|Duration|Track\r\n") != std::string::npos);
    with.CodePages().setCurrentIndex(0);
    Set(with.Options(), u"chkModern"_s, false);
    QCOMPARE(save(), before);
}

void ModernOptionsTest::ColumnsAreOfferedAndRemoved_data() {
    QTest::addColumn<QByteArray>("shown");
    QTest::addColumn<QByteArray>("hidden");
    QTest::addColumn<QByteArray>("offered");
    QTest::addColumn<QByteArray>("shownAfter");
    QTest::addColumn<QByteArray>("hiddenAfter");
    QTest::newRow("none yet") << QByteArray("A|B") << QByteArray("C")
                              << QByteArray("C|Track|Disc|Album Artist|Composer|Comment") << QByteArray("A|B")
                              << QByteArray("C");
    QTest::newRow("some in any case")
        << QByteArray("DISC|A") << QByteArray("B|album artist|C")
        << QByteArray("B|album artist|C|Track|Composer|Comment") << QByteArray("A") << QByteArray("B|C");
    QTest::newRow("nothing hidden") << QByteArray("Comment|Composer|Album Artist|Disc|A||B|") << QByteArray()
                                    << QByteArray("Track") << QByteArray("A||B|") << QByteArray();
    QTest::newRow("empty lists") << QByteArray() << QByteArray()
                                 << QByteArray("Track|Disc|Album Artist|Composer|Comment") << QByteArray()
                                 << QByteArray();
    QTest::newRow("only modern ones shown")
        << QByteArray("Track|Disc") << QByteArray("A") << QByteArray("A|Album Artist|Composer|Comment")
        << QByteArray() << QByteArray("A");
}

void ModernOptionsTest::ColumnsAreOfferedAndRemoved() {
    QFETCH(QByteArray, shown);
    QFETCH(QByteArray, hidden);
    QFETCH(QByteArray, offered);
    QFETCH(QByteArray, shownAfter);
    QFETCH(QByteArray, hiddenAfter);
    Settings settings;
    settings.ActiveColumns = shown.toStdString();
    settings.InactiveColumns = hidden.toStdString();
    OfferModernColumns(settings);
    QCOMPARE(settings.ActiveColumns, shown.toStdString());
    QCOMPARE(settings.InactiveColumns, offered.toStdString());
    RemoveModernColumns(settings);
    QCOMPARE(settings.ActiveColumns, shownAfter.toStdString());
    QCOMPARE(settings.InactiveColumns, hiddenAfter.toStdString());
}

void ModernOptionsTest::TheEditorOffersTheColumnsWhileTheBoxIsTicked_data() {
    QTest::addColumn<bool>("setting");
    QTest::addColumn<bool>("box");
    QTest::newRow("off") << false << false;
    QTest::newRow("on") << true << true;
    QTest::newRow("ticked, not used yet") << false << true;
    QTest::newRow("cleared, not used yet") << true << false;
}

void ModernOptionsTest::TheEditorOffersTheColumnsWhileTheBoxIsTicked() {
    QFETCH(bool, setting);
    QFETCH(bool, box);
    ModernFixture with(setting);
    if (setting) {
        with.settings.ActiveColumns = std::string(kShown) + "|Track"; // shown before
    }
    Set(with.Options(), u"chkModern"_s, box);
    frmEditLayout& editor = with.Edit();
    const std::string shown = Find<ColumnList>(editor, u"lstActiveColumns"_s).Columns();
    QCOMPARE(shown, std::string(kShown) + (setting && box ? "|Track" : ""));
    QCOMPARE(with.HiddenColumns().find("|Disc|Album Artist|Composer|Comment") != std::string::npos, box);
    QCOMPARE(with.HiddenColumns().find("|Track|Disc") != std::string::npos, box && !setting);
}

void ModernOptionsTest::TheEditorFollowsTheBox() {
    ModernFixture with;
    frmEditLayout& editor = with.Edit();
    QCOMPARE(with.HiddenColumns(), std::string(kHidden));
    auto& shown = Find<ColumnList>(editor, u"lstActiveColumns"_s);
    shown.SelectRow(1);
    with.Options().SwitchModernOn(); // by the button of the main window
    QCOMPARE(with.HiddenColumns(), kModernHidden);
    QCOMPARE(shown.SelectedRow(), 1);
    with.Options().LoadControls(); // an opened settings file
    QCOMPARE(with.HiddenColumns(), std::string(kHidden));
}

void ModernOptionsTest::SwitchingOffRemovesTheColumns_data() {
    QTest::addColumn<QString>("button");
    QTest::newRow("use") << u"cmdUse"_s;
    QTest::newRow("save") << u"cmdSave"_s;
}

void ModernOptionsTest::SwitchingOffRemovesTheColumns() {
    QFETCH(QString, button);
    for (const bool usedBefore : {true, false}) {
        ModernFixture with(usedBefore);
        Set(with.Options(), u"chkModern"_s, true);
        with.ShowColumn(u"Composer"_s);
        QCOMPARE(with.settings.ActiveColumns, std::string(kShown) + "|Composer");
        Set(with.Options(), u"chkModern"_s, false);
        Button(with.Options(), button).click();
        QVERIFY(!with.settings.Modern);
        QCOMPARE(with.settings.ActiveColumns, std::string(kShown));
        QCOMPARE(with.settings.InactiveColumns, std::string(kHidden));
    }
}

void ModernOptionsTest::AClassicListKeepsTheNamesOfItsFile() {
    for (const QString& button : {u"cmdUse"_s, u"cmdSave"_s, u"cmdCancel"_s}) {
        ModernFixture with;
        with.settings.ActiveColumns = "Artist|Track|No Such Column";
        with.settings.InactiveColumns = "comment";
        const Settings before = with.settings;
        Button(with.Edit(), u"cmdOK"_s).click();
        Set(with.Options(), u"chkModern"_s, true);
        Set(with.Options(), u"chkModern"_s, false);
        Button(with.Options(), button).click();
        QCOMPARE(with.settings.ActiveColumns, before.ActiveColumns);
        QCOMPARE(with.settings.InactiveColumns, before.InactiveColumns);
    }
}

void ModernOptionsTest::DiscardingTheTickRemovesTheColumnsThatTheEditorStored() {
    ModernFixture with;
    Set(with.Options(), u"chkModern"_s, true);
    with.ShowColumn(u"Disc"_s);
    Button(with.Options(), u"cmdCancel"_s).click();
    QVERIFY(!with.settings.Modern);
    QCOMPARE(with.settings.ActiveColumns, std::string(kShown));
    QCOMPARE(with.settings.InactiveColumns, std::string(kHidden));
}

void ModernOptionsTest::ARunTakesTheBoxOfTheOpenDialog() {
    ModernFixture with;
    Set(with.Options(), u"chkModern"_s, true);
    with.ShowColumn(u"Disc"_s);
    with.ui.TakeControls(with.settings);
    QVERIFY(with.settings.Modern);
    Button(with.Options(), u"cmdCancel"_s).click();
    QCOMPARE(with.settings.ActiveColumns, std::string(kShown) + "|Disc");
}

void ModernOptionsTest::TheKeyboardReachesBoxAndCodePages() {
    ModernFixture with;
    Show(with.Options());
    QTest::keyClick(&with.Options(), Qt::Key_T, Qt::AltModifier);
    QTRY_VERIFY(IsChecked(with.Options(), u"chkModern"_s));
    QCOMPARE(with.Options().focusWidget()->objectName(), u"chkModern"_s);
    QTest::keyClick(with.Options().focusWidget(), Qt::Key_Tab);
    QCOMPARE(with.Options().focusWidget(), &with.CodePages());
    QTest::keyClick(&with.CodePages(), Qt::Key_Down);
    QCOMPARE(with.CodePages().currentText(), u"Central European (windows-1250)"_s);
    QTest::keyClick(with.Options().focusWidget(), Qt::Key_Tab);
    QCOMPARE(with.Options().focusWidget()->objectName(), u"cmdEditLayout"_s);
    Field(with.Options(), u"txtFilesPerPage"_s).setFocus();
    QTest::keyClick(&with.Options(), Qt::Key_G, Qt::AltModifier);
    QCOMPARE(with.Options().focusWidget(), &with.CodePages());
}

} // namespace tunedex::test

#include "ModernOptionsTest.moc"
