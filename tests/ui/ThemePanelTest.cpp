#include "LayoutFixture.h"
#include "TestClasses.h"
#include "Themes.h"
#include "Version.h"

#include <QListWidget>
#include <QTextBrowser>
#include <QWheelEvent>

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace tunedex::test {

class ThemePanelTest : public QObject {
    Q_OBJECT

  private slots:
    void TheListShowsThemesByNameWithTheFirstSelected();
    void ASelectedThemeIsPreviewedAndNothingElseChanges();
    void ThePreviewOfAThemeShowsWhatLoadingItGives();
    void AnotherActionEndsThePreviewOfATheme_data();
    void AnotherActionEndsThePreviewOfATheme();
    void AThemeThatCannotBeReadIsNotPreviewed();
    void KeysAndWheelBrowseThroughAllThemes();
    void EnterLoadsAndLeavesTheEditorOpen();
    void WhatALoadWouldDiscardIsSaidBeforeIt();
    void TheNextActionClearsTheStatus_data();
    void TheNextActionClearsTheStatus();
    void ASavedThemeIsSelectedAndNotPreviewed();
    void WithoutThemesOnlySavingIsEnabled();
    void LoadingAppliesTheThemeToTheSettingsAtOnceAndToTheControls();
    void ALoadedThemeSurvivesCancelAndOtherEditsDoNot();
    void LoadingAThemeLeavesTheFourSwitchesUnchanged();
    void AThemeMayHoldSettingsOfOtherWindows();
    void LoadingADeletedThemeChangesNothing();
    void ADoubleClickLoads();
    void AThemeWithAnotherCaseOfItsExtensionIsLoadedAndDeleted();
    void AThemeThatCannotBeReadShowsAMessage();
    void FaultyLinesAreReportedAndTheRestIsApplied();
    void SavingAsksForANameAndWritesTheEditorsControls();
    void SavingWritesTextsUnconvertedAndAltRowsFromTheSettings();
    void SavingCreatesAMissingFolder();
    void ABlankOrNoNameWritesNothing();
    void BlanksAroundANameAreKept();
    void BadNamesGetAMessageAndWriteNothing_data();
    void BadNamesGetAMessageAndWriteNothing();
    void SavingOverAThemeAsksFirst();
    void DecliningToOverwriteKeepsTheFileAndTheStatusStillSaysSaved();
    void AFailedSaveShowsAMessageAndKeepsTheStatus();
    void DeletingAsksFirst();
    void AfterDeletingTheFocusStaysInThePanel();
    void DecliningToDeleteKeepsTheTheme();
    void DeletingADeletedThemeShowsAMessageAndUpdatesTheList();
    void EveryShippedThemeLoads();
};

namespace {

const TestClass<ThemePanelTest> kThemePanelTestRegistered("ThemePanelTest");

constexpr const char* kBlue = "Font(0)=Blue Face%|%5%|%0%|%1\r\n"
                              "Colour(1)=0000AA\r\n"
                              "AltRows=0\r\n"
                              "TableWidth=0/640\r\n"
                              "TablePadding=9\r\n"
                              "TableBorder=8\r\n";

class Panel : public LayoutFixture {
  public:
    frmEditLayout& Open() {
        editor = std::make_unique<frmEditLayout>(application, ui);
        editor->SetChoosers(choosers);
        Show(*editor);
        return *editor;
    }

    // Opens the page of the themes.
    frmEditLayout& OpenThemes() {
        Open();
        Find<QTabWidget>(*editor, u"TabStrip"_s).setCurrentIndex(4);
        return *editor;
    }
    // Three themes that differ in the background of the page.
    void AddThemes() {
        folder.Write("Themes/Blue.thm", "Colour(1)=0000AA\r\n");
        folder.Write("Themes/Green.thm", "Colour(1)=00AA00\r\n");
        folder.Write("Themes/Red.thm", "Colour(1)=AA0000\r\n");
    }
    QColor PageColour() const {
        return Find<QTextBrowser>(*editor, u"txtPreview"_s).palette().color(QPalette::Base);
    }

    // The answer to the prompt for a name; no value cancels.
    void AnswerName(const std::optional<QString>& name) {
        choosers.text = [this, name](QWidget*, const QString& title, const QString& prompt) {
            questions << title + u": "_s + prompt;
            return name;
        };
    }

    QListWidget& List() const { return Find<QListWidget>(*editor, u"lvwThemes"_s); }
    QStringList Names() const {
        QStringList names;
        for (int row = 0; row < List().count(); ++row) {
            names << List().item(row)->text();
        }
        return names;
    }
    QString Status() const { return Find<QLabel>(*editor, u"lblThemeStatus"_s).text(); }
    void Press(const QString& command) const { Button(*editor, command).click(); }

    Choosers choosers;
    QStringList questions;
    std::unique_ptr<frmEditLayout> editor;
};

Settings WithBlue(Settings settings) {
    settings.Font[kPageFont] = {"Blue Face", "5", false, true};
    settings.Colour[kPageBackground] = "0000AA";
    settings.AltRows = false;
    settings.TableWidthUnit = 0;
    settings.TableWidth = 640;
    settings.TablePadding = 9;
    settings.TableBorder = 8;
    return settings;
}

} // namespace

void ThemePanelTest::TheListShowsThemesByNameWithTheFirstSelected() {
    Panel with;
    for (const char* name : {"Zebra.thm", "Dark.THM", "  Sky.thm", "alpha.thm", "bad\xFF.thm", "dark.thm"}) {
        with.folder.Write(std::string("Themes/") + name, kBlue);
    }
    with.folder.Write("Themes/readme.txt", "");
    with.folder.Make("Themes/x.thm");
    with.Open();
    const QString notUtf8 = u"bad"_s + QChar(0xDCFF);
    const QStringList expected{u"  Sky"_s, u"alpha"_s, notUtf8, u"Dark"_s, u"dark"_s, u"Zebra"_s};
    QCOMPARE(with.Names(), expected);
    QCOMPARE(with.List().currentRow(), 0);
    QVERIFY(with.List().item(0)->isSelected());
    for (const QString& command : {u"cmdLoadTheme"_s, u"cmdSaveTheme"_s, u"cmdDeleteTheme"_s}) {
        QVERIFY(IsEnabled(*with.editor, command));
    }
    QCOMPARE(with.Status(), QString());
}

void ThemePanelTest::ASelectedThemeIsPreviewedAndNothingElseChanges() {
    Panel with;
    with.AddThemes();
    frmEditLayout& editor = with.OpenThemes();
    const Settings before = with.settings;
    QTRY_COMPARE(with.PageColour(), QColor(Qt::white));
    for (const auto& [row, colour] : {std::pair(1, QColor(0, 0xAA, 0)), std::pair(2, QColor(0xAA, 0, 0)),
                                      std::pair(0, QColor(0, 0, 0xAA))}) {
        with.List().setCurrentRow(row);
        QTRY_COMPARE(with.PageColour(), colour);
        const QString caption = Find<QLabel>(editor, u"lblPreview"_s).text();
        QVERIFY2(caption.contains(with.List().item(row)->text()), qPrintable(caption));
    }
    QVERIFY(with.settings == before);
    Settings stored = with.settings;
    editor.StoreControls(stored);
    QVERIFY(stored == before);
    QCOMPARE(Text(editor, u"txtColour(1)"_s), u"FFFFFF"_s);
}

void ThemePanelTest::ThePreviewOfAThemeShowsWhatLoadingItGives() {
    Panel with;
    with.settings.ActiveColumns = "Title|Year";
    with.settings.Merge = 0;
    with.AddThemes();
    frmEditLayout& editor = with.OpenThemes();
    QTextBrowser& preview = Find<QTextBrowser>(editor, u"txtPreview"_s);
    Button(editor, u"cmdAllInactive"_s).click(); // loading discards it
    QTRY_VERIFY(!preview.toPlainText().contains(u"Year"_s));
    with.List().setCurrentRow(1);
    QTRY_VERIFY(preview.toPlainText().contains(u"Year"_s));
    const QString previewed = preview.toHtml();
    with.Press(u"cmdLoadTheme"_s);
    QTest::qWait(200);
    QCOMPARE(preview.toHtml(), previewed);
    QCOMPARE(Find<QLabel>(editor, u"lblPreview"_s).text(), u"Preview with sample tracks"_s);
}

void ThemePanelTest::AnotherActionEndsThePreviewOfATheme_data() {
    QTest::addColumn<QString>("action");
    for (const QString& action : {u"edit"_s, u"page"_s, u"save"_s, u"delete"_s}) {
        QTest::newRow(qPrintable(action)) << action;
    }
}

void ThemePanelTest::AnotherActionEndsThePreviewOfATheme() {
    QFETCH(QString, action);
    Panel with;
    with.AddThemes();
    with.AnswerName(std::nullopt);
    with.ui.fake.answers = {kAnswerYes};
    frmEditLayout& editor = with.OpenThemes();
    with.List().setCurrentRow(1);
    QTRY_COMPARE(with.PageColour(), QColor(0, 0xAA, 0));
    if (action == u"edit"_s) {
        Find<QComboBox>(editor, u"cmbDocumentType"_s).setCurrentIndex(1);
    } else if (action == u"page"_s) {
        Find<QTabWidget>(editor, u"TabStrip"_s).setCurrentIndex(2);
    } else {
        with.Press(action == u"save"_s ? u"cmdSaveTheme"_s : u"cmdDeleteTheme"_s);
    }
    QTRY_COMPARE(with.PageColour(), QColor(Qt::white));
}

void ThemePanelTest::AThemeThatCannotBeReadIsNotPreviewed() {
    Panel with;
    with.AddThemes();
    with.OpenThemes();
    QCOMPARE(unlink((with.folder / "Themes/Green.thm").c_str()), 0);
    QCOMPARE(symlink("Green.thm", (with.folder / "Themes/Green.thm").c_str()), 0);
    with.List().setCurrentRow(2);
    QTRY_COMPARE(with.PageColour(), QColor(0xAA, 0, 0));
    with.List().setCurrentRow(1);
    QTRY_COMPARE(with.PageColour(), QColor(Qt::white));
    QVERIFY(with.Messages().empty());
}

void ThemePanelTest::KeysAndWheelBrowseThroughAllThemes() {
    Panel with;
    with.AddThemes();
    with.OpenThemes();
    with.List().setFocus(Qt::TabFocusReason);
    QTRY_COMPARE(with.PageColour(), QColor(0, 0, 0xAA)); // the theme that was selected already
    QTest::keyClick(&with.List(), Qt::Key_Down);
    QTRY_COMPARE(with.PageColour(), QColor(0, 0xAA, 0));
    const auto turn = [&](int angle) {
        QWheelEvent event(QPointF(5, 5), with.List().viewport()->mapToGlobal(QPointF(5, 5)), {}, {0, angle},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(with.List().viewport(), &event);
    };
    turn(-120);
    QTRY_COMPARE(with.PageColour(), QColor(0xAA, 0, 0));
    turn(-120); // the last stays
    QCOMPARE(with.List().currentRow(), 2);
    turn(60);
    QCOMPARE(with.List().currentRow(), 2);
    turn(60); // half steps of a fine wheel add up
    QCOMPARE(with.List().currentRow(), 1);
    turn(240);
    QCOMPARE(with.List().currentRow(), 0);
}

void ThemePanelTest::EnterLoadsAndLeavesTheEditorOpen() {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        Panel with;
        with.AddThemes();
        frmEditLayout& editor = with.OpenThemes();
        with.List().setFocus();
        QTest::keyClick(&with.List(), Qt::Key_Down);
        QTest::keyClick(&with.List(), key);
        QVERIFY(editor.isVisible());
        QCOMPARE(with.Status(), u"Theme loaded successfully."_s);
        QCOMPARE(with.settings.Colour[kPageBackground], std::string("00AA00"));
        QVERIFY(with.List().hasFocus());
    }
}

void ThemePanelTest::WhatALoadWouldDiscardIsSaidBeforeIt() {
    Panel with;
    with.AddThemes();
    frmEditLayout& editor = with.OpenThemes();
    const QLabel& loss = Find<QLabel>(editor, u"lblThemeLoss"_s);
    const auto description = [&](const QString& name) {
        return Find<QWidget>(editor, name).accessibleDescription();
    };
    const auto says = [&](const QString& text) {
        return loss.isVisible() == !text.isEmpty() && loss.text() == text &&
               description(u"cmdLoadTheme"_s).endsWith(text) && description(u"lvwThemes"_s).endsWith(text);
    };
    const QString layout = u"Loading a theme discards your changes to the layout."_s;
    QVERIFY(says(QString()));
    Field(editor, u"txtColour(1)"_s).setText(u"123456"_s);
    QVERIFY(says(layout));
    Field(editor, u"txtColour(1)"_s).setText(u"FFFFFF"_s); // back again
    QVERIFY(says(QString()));
    Field(editor, u"txtTableWidth"_s).setText(u"wide"_s);
    QVERIFY(says(layout));
    with.Press(u"cmdLoadTheme"_s);
    QVERIFY(says(QString()));
    editor.OfferModernColumns(true); // the options do it
    QVERIFY(says(QString()));
    Settings options = with.settings;
    options.DoLinks = true;
    editor.SetPreviewBase([&] { return options; });
    QVERIFY(says(u"Loading a theme discards your changes in the options."_s));
    Set(editor, u"chkTheSubstitution"_s, false);
    QVERIFY(says(u"Loading a theme discards your changes here and in the options."_s));
}

void ThemePanelTest::TheNextActionClearsTheStatus_data() {
    QTest::addColumn<QString>("action");
    for (const QString& action : {u"edit"_s, u"select"_s, u"page"_s, u"save"_s, u"delete"_s}) {
        QTest::newRow(qPrintable(action)) << action;
    }
}

void ThemePanelTest::TheNextActionClearsTheStatus() {
    QFETCH(QString, action);
    Panel with;
    with.AddThemes();
    with.AnswerName(std::nullopt);
    with.ui.fake.answers = {kAnswerNo};
    frmEditLayout& editor = with.OpenThemes();
    with.Press(u"cmdLoadTheme"_s);
    QCOMPARE(with.Status(), u"Theme loaded successfully."_s);
    if (action == u"edit"_s) {
        Set(editor, u"chkTheSubstitution"_s, false);
    } else if (action == u"select"_s) {
        with.List().setCurrentRow(1);
    } else if (action == u"page"_s) {
        Find<QTabWidget>(editor, u"TabStrip"_s).setCurrentIndex(2);
    } else {
        with.Press(action == u"save"_s ? u"cmdSaveTheme"_s : u"cmdDeleteTheme"_s);
    }
    QCOMPARE(with.Status(), QString());
}

void ThemePanelTest::ASavedThemeIsSelectedAndNotPreviewed() {
    Panel with;
    with.AddThemes();
    with.AnswerName(u"cyan"_s);
    frmEditLayout& editor = with.OpenThemes();
    with.List().setCurrentRow(2);
    Field(editor, u"txtColour(1)"_s).setText(u"00FFFF"_s);
    with.Press(u"cmdSaveTheme"_s);
    QCOMPARE(with.Names().join(u' '), u"Blue cyan Green Red"_s);
    QCOMPARE(with.List().currentRow(), 1);
    QCOMPARE(with.Status(), u"Theme saved successfully."_s);
    QTRY_COMPARE(with.PageColour(), QColor(0, 0xFF, 0xFF));
    QVERIFY(Find<QLabel>(editor, u"lblThemeLoss"_s).isVisible()); // saving a theme does not store the layout
}

void ThemePanelTest::WithoutThemesOnlySavingIsEnabled() {
    Panel with;
    with.Open();
    QVERIFY(with.Names().isEmpty());
    QVERIFY(!IsEnabled(*with.editor, u"cmdLoadTheme"_s));
    QVERIFY(!IsEnabled(*with.editor, u"cmdDeleteTheme"_s));
    QVERIFY(IsEnabled(*with.editor, u"cmdSaveTheme"_s));
    QVERIFY(!with.folder.Exists("Themes"));
}

void ThemePanelTest::LoadingAppliesTheThemeToTheSettingsAtOnceAndToTheControls() {
    Panel with;
    with.folder.Write("Themes/Blue.thm", kBlue);
    const Settings expected = WithBlue(with.settings);
    frmEditLayout& editor = with.Open();
    with.Press(u"cmdLoadTheme"_s);
    QVERIFY(with.settings == expected);
    QCOMPARE(with.Status(), u"Theme loaded successfully."_s);
    QCOMPARE(Text(editor, u"txtColour(1)"_s), u"0000AA"_s);
    QCOMPARE(Text(editor, u"txtFontList(0)"_s), u"Blue Face"_s);
    QCOMPARE(Text(editor, u"txtTableWidth"_s), u"640"_s);
    QVERIFY(IsChecked(editor, u"optWidthPixels"_s));
    QVERIFY(!IsChecked(editor, u"chkAlternateTDColours"_s));
    QVERIFY(editor.isVisible());
    Settings stored = with.settings;
    editor.StoreControls(stored);
    QVERIFY(stored == expected);
}

void ThemePanelTest::ALoadedThemeSurvivesCancelAndOtherEditsDoNot() {
    Panel with;
    with.folder.Write("Themes/Blue.thm", kBlue);
    const Settings expected = WithBlue(with.settings);
    frmEditLayout& editor = with.Open();
    with.Press(u"cmdAllInactive"_s);
    with.Press(u"cmdLoadTheme"_s);
    Field(editor, u"txtColour(0)"_s).setText(u"123456"_s);
    Set(editor, u"chkFontsFontTags"_s, true);
    with.Press(u"cmdCancel"_s);
    QVERIFY(!editor.isVisible());
    QVERIFY(with.settings == expected);
}

void ThemePanelTest::LoadingAThemeLeavesTheFourSwitchesUnchanged() {
    for (const bool on : {false, true}) {
        Panel with;
        with.folder.Write("Themes/Blue.thm", kBlue);
        with.settings.FontCSS = with.settings.ColourCSS = on;
        with.settings.FontHTML = with.settings.ColourHTML = !on;
        with.Open();
        with.Press(u"cmdLoadTheme"_s);
        QCOMPARE(with.settings.FontCSS, on);
        QCOMPARE(with.settings.ColourCSS, on);
        QCOMPARE(with.settings.FontHTML, !on);
        QCOMPARE(with.settings.ColourHTML, !on);
    }
}

void ThemePanelTest::AThemeMayHoldSettingsOfOtherWindows() {
    Panel with;
    with.folder.Write("Themes/All.thm", "PageTitle=From the theme\r\nSpanning=12\r\nLinkPrefix=theme:\r\n"
                                        "ActiveColumns=Title\r\nDocumentType=XHTML\r\nTableSpacing=3\r\n");
    frmOptions options(with.application, with.ui);
    with.ui.options = &options;
    Show(options);
    Click(options, u"cmdEditLayout"_s);
    Button(*options.Editor(), u"cmdLoadTheme"_s).click();
    QCOMPARE(Text(options, u"txtFilesPerPage"_s), u"12"_s);
    QCOMPARE(Text(options, u"txtLinkPrefix"_s), u"theme:"_s);
    QVERIFY(!options.isEnabled());
    QCOMPARE(with.ui.fake.fields.pageTitle, std::string("From the theme"));
    QCOMPARE(Find<QListWidget>(*options.Editor(), u"lstActiveColumns"_s).count(), 1);
    QCOMPARE(Find<QComboBox>(*options.Editor(), u"cmbDocumentType"_s).currentText(), u"XHTML 1.0"_s);
    QCOMPARE(static_cast<int>(with.settings.TableSpacing), 3);
}

void ThemePanelTest::LoadingADeletedThemeChangesNothing() {
    Panel with;
    const std::string path = with.folder.Write("Themes/Blue.thm", kBlue);
    const Settings before = with.settings;
    with.Open();
    QCOMPARE(unlink(path.c_str()), 0);
    with.Press(u"cmdLoadTheme"_s);
    QVERIFY(with.settings == before);
    QVERIFY(with.Messages().empty());
    QCOMPARE(with.Status(), QString());
}

void ThemePanelTest::ADoubleClickLoads() {
    Panel with;
    with.folder.Write("Themes/Blue.thm", kBlue);
    frmEditLayout& editor = with.Open();
    Find<QTabWidget>(editor, u"TabStrip"_s).setCurrentIndex(4);
    const QPoint place = with.List().visualItemRect(with.List().item(0)).center();
    QTest::mouseClick(with.List().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(with.List().viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(with.Status(), u"Theme loaded successfully."_s);
}

void ThemePanelTest::AThemeWithAnotherCaseOfItsExtensionIsLoadedAndDeleted() {
    Panel with;
    with.folder.Write("Themes/Blue.THM", kBlue);
    with.Open();
    QCOMPARE(with.Names(), QStringList{u"Blue"_s});
    with.Press(u"cmdLoadTheme"_s);
    QCOMPARE(with.settings.Colour[kPageBackground], std::string("0000AA"));
    with.ui.fake.answers = {kAnswerYes};
    with.Press(u"cmdDeleteTheme"_s);
    QVERIFY(!with.folder.Exists("Themes/Blue.THM"));
    QVERIFY(with.Names().isEmpty());
}

void ThemePanelTest::AThemeThatCannotBeReadShowsAMessage() {
    Panel with;
    const Settings before = with.settings;
    with.folder.Write("Themes/Blue.thm", kBlue);
    with.Open();
    // A symbolic link to itself: opening it fails even for root.
    QCOMPARE(unlink((with.folder / "Themes/Blue.thm").c_str()), 0);
    QCOMPARE(symlink("Blue.thm", (with.folder / "Themes/Blue.thm").c_str()), 0);
    with.Press(u"cmdLoadTheme"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QCOMPARE(with.Messages()[0].buttons, 48);
    QCOMPARE(with.Messages()[0].title, std::string("Error"));
    QVERIFY(with.settings == before);
    QCOMPARE(with.Status(), QString());
}

void ThemePanelTest::FaultyLinesAreReportedAndTheRestIsApplied() {
    Panel with;
    const std::string path =
        with.folder.Write("Themes/Blue.thm", std::string("nonsense\r\n") + kBlue + "# the end\r\n");
    const Settings expected = WithBlue(with.settings);
    with.Open();
    with.Press(u"cmdLoadTheme"_s);
    QVERIFY(with.settings == expected);
    QVERIFY(with.fake.faults.str().starts_with(path + ":1: line skipped: "));
    QCOMPARE(std::ranges::count(with.fake.faults.str(), '\n'), 1);
}

void ThemePanelTest::SavingAsksForANameAndWritesTheEditorsControls() {
    Panel with;
    with.AnswerName(u"Mine"_s);
    const Settings before = with.settings;
    frmEditLayout& editor = with.Open();
    Field(editor, u"txtColour(1)"_s).setText(u"ABCDEF"_s);
    Field(editor, u"txtFontList(2)"_s).setText(u"Caf\u00E9 \u3042"_s);
    Set(editor, u"chkItalic(2)"_s, true);
    Set(editor, u"optWidthPixels"_s, true);
    with.Press(u"cmdSaveTheme"_s);
    QCOMPARE(with.questions, QStringList{u"Save Theme: Please enter a name for your theme:"_s});
    QCOMPARE(with.Status(), u"Theme saved successfully."_s);
    QCOMPARE(with.Names(), QStringList{u"Mine"_s});
    QVERIFY(IsEnabled(editor, u"cmdLoadTheme"_s));
    QVERIFY(with.settings == before);
    QVERIFY(with.Messages().empty());
    QCOMPARE(ReadBytes(with.folder / "Themes/Mine.thm"),
             std::string("#-------------------------------------------------\r\n"
                         "#  Tunedex (Win32) Theme Definition File\r\n"
                         "#  Generated by program version: " +
                         std::string(kVersionText) +
                         "\r\n"
                         "#  Generation date/time: 2026-11-21 - 14:05\r\n"
                         "#-------------------------------------------------\r\n"
                         "\r\n"
                         "# FONT SETTINGS\r\n"
                         "Font(0)=Times New Roman, serif%|%3%|%1%|%0\r\n"
                         "Font(1)=Tahoma, Arial, sans-serif%|%2%|%1%|%0\r\n"
                         "Font(2)=Caf\u00E9 \u3042%|%1%|%0%|%1\r\n"
                         "\r\n"
                         "# COLOUR SETTINGS\r\n"
                         "Colour(0)=000000\r\n"
                         "Colour(1)=ABCDEF\r\n"
                         "Colour(2)=FFFF00\r\n"
                         "Colour(3)=000066\r\n"
                         "Colour(4)=000000\r\n"
                         "Colour(5)=CECECE\r\n"
                         "Colour(6)=000000\r\n"
                         "Colour(7)=DEDEDE\r\n"
                         "Colour(8)=0000FF\r\n"
                         "Colour(9)=000000\r\n"
                         "AltRows=1\r\n"
                         "\r\n"
                         "# TABLE SETTINGS\r\n"
                         "TableWidth=0/99\r\n"
                         "TablePadding=2\r\n"
                         "TableBorder=1\r\n"));
}

void ThemePanelTest::SavingWritesTextsUnconvertedAndAltRowsFromTheSettings() {
    Panel with;
    with.settings.AltRows = false;
    with.settings.TableWidthUnit = 7; // neither option
    with.AnswerName(u"Odd"_s);
    frmEditLayout& editor = with.Open();
    Set(editor, u"chkAlternateTDColours"_s, true);
    Field(editor, u"txtTableWidth"_s).setText(u"75.5 "_s);
    Field(editor, u"txtCellPadding"_s).setText(u"wide"_s);
    Field(editor, u"txtBorderSize"_s).setText(QString());
    with.Press(u"cmdSaveTheme"_s);
    const std::string bytes = ReadBytes(with.folder / "Themes/Odd.thm");
    QVERIFY(bytes.find("\r\nAltRows=0\r\n") != std::string::npos);
    QVERIFY(bytes.ends_with("\r\nTableWidth=0/75.5 \r\nTablePadding=wide\r\nTableBorder=\r\n"));
}

void ThemePanelTest::SavingCreatesAMissingFolder() {
    Panel with;
    with.AnswerName(u"First"_s);
    with.Open();
    QVERIFY(!with.folder.Exists("Themes"));
    with.Press(u"cmdSaveTheme"_s);
    QVERIFY(with.folder.Exists("Themes/First.thm"));
}

void ThemePanelTest::ABlankOrNoNameWritesNothing() {
    for (const std::optional<QString>& name :
         {std::optional<QString>(), std::optional(QString()), std::optional(u"   "_s)}) {
        Panel with;
        with.AnswerName(name);
        with.Open();
        with.Press(u"cmdSaveTheme"_s);
        QCOMPARE(with.questions.size(), 1);
        QVERIFY(!with.folder.Exists("Themes"));
        QVERIFY(with.Messages().empty());
        QCOMPARE(with.Status(), QString());
    }
}

void ThemePanelTest::BlanksAroundANameAreKept() {
    Panel with;
    with.AnswerName(u"  Blue"_s);
    with.Open();
    with.Press(u"cmdSaveTheme"_s);
    QVERIFY(with.folder.Exists("Themes/  Blue.thm"));
    QCOMPARE(with.Names(), QStringList{u"  Blue"_s});
}

void ThemePanelTest::BadNamesGetAMessageAndWriteNothing_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("a separator") << u"a/b"_s;
    QTest::newRow("a parent folder") << u"../escaped"_s;
    QTest::newRow("an absolute path") << u"/tmp/escaped"_s;
    QTest::newRow("the current folder") << u"."_s;
    QTest::newRow("the parent folder itself") << u".."_s;
    QTest::newRow("a NUL") << u"a"_s + QChar(0) + u'b';
    QTest::newRow("too long for a file") << QString(300, u'x');
}

void ThemePanelTest::BadNamesGetAMessageAndWriteNothing() {
    QFETCH(QString, name);
    Panel with;
    with.folder.Make("Themes/a");
    with.AnswerName(name);
    with.Open();
    with.Press(u"cmdSaveTheme"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QCOMPARE(with.Messages()[0].buttons, 48);
    QCOMPARE(with.Messages()[0].title, std::string("Error"));
    QVERIFY(with.Messages()[0].text.starts_with("This cannot be the name of a theme."));
    QVERIFY(!with.folder.Exists("Themes/a/b.thm"));
    QVERIFY(!with.folder.Exists("escaped.thm"));
    QVERIFY(ListThemes(with.folder.Path()).empty());
    QCOMPARE(with.Status(), QString());
}

void ThemePanelTest::SavingOverAThemeAsksFirst() {
    Panel with;
    with.folder.Write("Themes/Mine.thm", "old");
    with.AnswerName(u"Mine"_s);
    with.ui.fake.answers = {kAnswerYes};
    with.Open();
    with.Press(u"cmdSaveTheme"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QVERIFY((with.Messages()[0] ==
             LayoutFixture::Message{"This theme already exists!\r\n\r\nOverwrite?", 36, "Save Theme"}));
    QVERIFY(ReadBytes(with.folder / "Themes/Mine.thm").starts_with("#---"));
    QCOMPARE(with.Status(), u"Theme saved successfully."_s);
}

void ThemePanelTest::DecliningToOverwriteKeepsTheFileAndTheStatusStillSaysSaved() {
    Panel with;
    with.folder.Write("Themes/Mine.thm", "old");
    with.AnswerName(u"Mine"_s);
    with.ui.fake.answers = {kAnswerNo};
    with.Open();
    with.Press(u"cmdSaveTheme"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QCOMPARE(ReadBytes(with.folder / "Themes/Mine.thm"), std::string("old"));
    QCOMPARE(with.Status(), u"Theme saved successfully."_s);
}

void ThemePanelTest::AFailedSaveShowsAMessageAndKeepsTheStatus() {
    Panel with;
    with.application.programFolder = with.folder / "gone/";
    with.AnswerName(u"Mine"_s);
    with.Open();
    with.Press(u"cmdSaveTheme"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QVERIFY(with.Messages()[0].text.ends_with("Error number 76 - Path not found"));
    QCOMPARE(with.Messages()[0].title, std::string("Error"));
    QCOMPARE(with.Status(), QString());
}

void ThemePanelTest::DeletingAsksFirst() {
    Panel with;
    with.folder.Write("Themes/Blue.thm", kBlue);
    with.ui.fake.answers = {kAnswerYes};
    with.Open();
    with.Press(u"cmdDeleteTheme"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QVERIFY((with.Messages()[0] ==
             LayoutFixture::Message{"Are you sure you want to delete\r\nthe Blue theme?\r\n\r\n"
                                    "You cannot recover it afterwards!",
                                    52, "Delete Theme"}));
    QVERIFY(!with.folder.Exists("Themes/Blue.thm"));
    QVERIFY(with.Names().isEmpty());
    QVERIFY(!IsEnabled(*with.editor, u"cmdLoadTheme"_s));
    QVERIFY(!IsEnabled(*with.editor, u"cmdDeleteTheme"_s));
}

void ThemePanelTest::AfterDeletingTheFocusStaysInThePanel() {
    Panel with;
    with.folder.Write("Themes/Blue.thm", kBlue);
    with.folder.Write("Themes/Green.thm", kBlue);
    with.ui.fake.answers = {kAnswerYes, kAnswerYes};
    frmEditLayout& editor = with.Open();
    QAbstractButton& remove = Button(editor, u"cmdDeleteTheme"_s);
    Find<QTabWidget>(editor, u"TabStrip"_s).setCurrentIndex(4);
    remove.setFocus();
    QTest::keyClick(&remove, Qt::Key_Space);
    QCOMPARE(with.Names().size(), 1);
    QVERIFY(remove.hasFocus()); // there is another theme to delete
    QTest::keyClick(&remove, Qt::Key_Space);
    QVERIFY(with.Names().isEmpty());
    QVERIFY(with.List().hasFocus());
}

void ThemePanelTest::DecliningToDeleteKeepsTheTheme() {
    Panel with;
    with.folder.Write("Themes/Blue.thm", kBlue);
    with.ui.fake.answers = {kAnswerNo};
    with.Open();
    with.Press(u"cmdDeleteTheme"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QVERIFY(with.folder.Exists("Themes/Blue.thm"));
    QCOMPARE(with.Names(), QStringList{u"Blue"_s});
}

void ThemePanelTest::DeletingADeletedThemeShowsAMessageAndUpdatesTheList() {
    Panel with;
    const std::string path = with.folder.Write("Themes/Blue.thm", kBlue);
    with.ui.fake.answers = {kAnswerYes};
    with.Open();
    QCOMPARE(unlink(path.c_str()), 0);
    with.Press(u"cmdDeleteTheme"_s);
    QCOMPARE(with.Messages().size(), 2U);
    QVERIFY(with.Messages()[1].text.ends_with("Error number 53 - File not found"));
    QVERIFY(with.Names().isEmpty());
}

void ThemePanelTest::EveryShippedThemeLoads() {
    Panel with;
    const std::string shipped = std::string(TUNEDEX_SOURCE_DIR) + "/data/";
    const std::vector<std::string> names = ListThemes(shipped);
    QVERIFY(names.size() >= 8);
    for (const std::string& name : names) {
        with.folder.Write("Themes/" + name + ".thm", ReadBytes(ThemePath(shipped, name)));
    }
    frmEditLayout& editor = with.Open();
    QCOMPARE(static_cast<std::size_t>(with.List().count()), names.size());
    for (int row = 0; row < with.List().count(); ++row) {
        with.List().setCurrentRow(row);
        with.Press(u"cmdLoadTheme"_s);
        Settings theme = with.settings;
        std::ostringstream faults;
        LoadSettings(theme, ThemePath(shipped, with.List().item(row)->text().toStdString()), "", {}, faults);
        QVERIFY(with.settings == theme);
        Settings shown = with.settings;
        editor.StoreControls(shown);
        QVERIFY(shown == theme);
    }
    QCOMPARE(with.fake.faults.str(), std::string());
}

} // namespace tunedex::test

#include "ThemePanelTest.moc"
