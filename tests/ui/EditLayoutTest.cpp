#include "BrowserColour.h"
#include "ColourButton.h"
#include "DefaultSettings.h"
#include "HexColour.h"
#include "LayoutFixture.h"
#include "TestClasses.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tunedex::test {

class EditLayoutTest : public QObject {
    Q_OBJECT

  private slots:
    void OpeningShowsEverySetting();
    void OpeningWithOtherDocumentTypesShowsHtml();
    void OkStoresEveryControlAndCloses();
    void OkAndCancelWithoutEditsChangeNothing();
    void CancelAndEscapeDiscardEveryEdit();
    void OkWithABadNumberHasAlreadyStoredTheDocumentTypeAndNothingElse();
    void OkChecksTheNumbersInOrder_data();
    void OkChecksTheNumbersInOrder();
    void TypingANonNumberSelectsTheWholeText();
    void AUnitWithoutAnOptionIsKeptUntilOneIsChosen();
    void RunControlsAreTheSubstitutionAndTheDocumentType();
    void SizesBeyondOneToSevenAreKept();
    void TheChosenFontFamilyBecomesTheFirstOfTheList_data();
    void TheChosenFontFamilyBecomesTheFirstOfTheList();
    void CancellingAChooserChangesNothing();
    void AColourButtonShowsTheNumberAndWhatBrowsersShow_data();
    void AColourButtonShowsTheNumberAndWhatBrowsersShow();
    void AColourButtonFollowsHowThePageCarriesTheColour_data();
    void AColourButtonFollowsHowThePageCarriesTheColour();
    void APastedColourLosesItsSignAndTheBlanksAroundIt_data();
    void APastedColourLosesItsSignAndTheBlanksAroundIt();
    void AColourThatIsNotSixDigitsIsMarkedWithAHint();
    void BrowsersFindAColourInEveryAttribute_data();
    void BrowsersFindAColourInEveryAttribute();
    void TypedColoursAreKeptInUpperCase();
    void LoadedColoursAreUnchanged();
    void TheColourChooserStartsAtTheShownColourAndWritesSixDigitsRedFirst();
    void TextsAndToolTipsAreAsPrescribed();
    void PagesHaveTheirTabs();
};

namespace {
const TestClass<EditLayoutTest> kEditLayoutTestRegistered("EditLayoutTest");

// Settings that differ from the defaults in every control of the editor.
Settings OtherSettings() {
    Settings settings = DefaultSettings();
    settings.DocumentType = "XHTML";
    settings.ActiveColumns = "Title|Artist|Foo";
    settings.InactiveColumns = "Year";
    settings.Merge = 1;
    settings.MoveTheArtists = false;
    settings.Font[0] = {"A", "1", false, true};
    settings.Font[1] = {"B, C", "4", false, true};
    settings.Font[2] = {"", "7", true, true};
    settings.FontCSS = false;
    settings.FontHTML = true;
    for (std::size_t i = 0; i < kColourCount; ++i) {
        settings.Colour.at(i) = "0" + std::to_string(i) + "ABCD";
    }
    settings.AltRows = false;
    settings.ColourCSS = false;
    settings.ColourHTML = true;
    settings.TableWidthUnit = 0;
    settings.TableWidth = 640;
    settings.TablePadding = 7;
    settings.TableBorder = 3;
    return settings;
}

QString N(const char* name, std::size_t index) {
    return u"%1(%2)"_s.arg(QString::fromLatin1(name)).arg(index);
}

} // namespace

void EditLayoutTest::OpeningShowsEverySetting() {
    LayoutFixture with;
    with.settings = OtherSettings();
    const frmEditLayout editor(with.application, with.ui);
    QCOMPARE(Find<QComboBox>(editor, u"cmbDocumentType"_s).currentText(), u"XHTML 1.0"_s);
    QVERIFY(IsChecked(editor, u"chkArtistTitleMerge"_s));
    QVERIFY(!IsChecked(editor, u"chkAlbumMerge"_s));
    QVERIFY(!IsChecked(editor, u"chkTheSubstitution"_s));
    for (std::size_t i = 0; i < kFontCount; ++i) {
        const FontSetting& font = with.settings.Font.at(i);
        QCOMPARE(Text(editor, N("txtFontList", i)).toStdString(), font.face);
        QCOMPARE(Find<QComboBox>(editor, N("cmbFontSize", i)).currentText().toStdString(), font.size);
        QCOMPARE(IsChecked(editor, N("chkBold", i)), font.bold);
        QCOMPARE(IsChecked(editor, N("chkItalic", i)), font.italic);
    }
    QVERIFY(!IsChecked(editor, u"chkFontsCSS"_s));
    QVERIFY(IsChecked(editor, u"chkFontsFontTags"_s));
    for (std::size_t i = 0; i < kColourCount; ++i) {
        QCOMPARE(Text(editor, N("txtColour", i)).toStdString(), with.settings.Colour.at(i));
    }
    QVERIFY(!IsChecked(editor, u"chkAlternateTDColours"_s));
    QVERIFY(!IsChecked(editor, u"chkColoursCSS"_s));
    QVERIFY(IsChecked(editor, u"chkColoursFontTags"_s));
    QCOMPARE(Text(editor, u"txtTableWidth"_s), u"640"_s);
    QVERIFY(IsChecked(editor, u"optWidthPixels"_s));
    QVERIFY(!IsChecked(editor, u"optWidthPercent"_s));
    QCOMPARE(Text(editor, u"txtCellPadding"_s), u"7"_s);
    QCOMPARE(Text(editor, u"txtBorderSize"_s), u"3"_s);
}

void EditLayoutTest::OpeningWithOtherDocumentTypesShowsHtml() {
    for (const char* type : {"HTML", "", "xhtml", "XHTML 1.0"}) {
        LayoutFixture with;
        with.settings.DocumentType = type;
        const frmEditLayout editor(with.application, with.ui);
        const QComboBox& types = Find<QComboBox>(editor, u"cmbDocumentType"_s);
        QCOMPARE(types.count(), 3);
        QCOMPARE(types.itemText(1), u"XHTML 1.0"_s);
        QCOMPARE(types.currentText(), u"HTML 4.01"_s);
    }
}

void EditLayoutTest::OkStoresEveryControlAndCloses() {
    LayoutFixture with;
    with.settings.TableSpacing = 4;
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    const Settings wanted = OtherSettings();
    Find<QComboBox>(editor, u"cmbDocumentType"_s).setCurrentIndex(1);
    Set(editor, u"chkAlbumMerge"_s, false);
    Set(editor, u"chkTheSubstitution"_s, false);
    for (std::size_t i = 0; i < kFontCount; ++i) {
        const FontSetting& font = wanted.Font.at(i);
        Field(editor, N("txtFontList", i)).setText(QString::fromStdString(font.face));
        Find<QComboBox>(editor, N("cmbFontSize", i)).setCurrentText(QString::fromStdString(font.size));
        Set(editor, N("chkBold", i), font.bold);
        Set(editor, N("chkItalic", i), font.italic);
    }
    for (std::size_t i = 0; i < kColourCount; ++i) {
        Field(editor, N("txtColour", i)).setText(QString::fromStdString(wanted.Colour.at(i)));
    }
    for (const QString& name : {u"chkFontsCSS"_s, u"chkFontsFontTags"_s, u"chkAlternateTDColours"_s,
                                u"chkColoursCSS"_s, u"chkColoursFontTags"_s, u"optWidthPixels"_s}) {
        Button(editor, name).click();
    }
    Field(editor, u"txtTableWidth"_s).setText(u"640"_s);
    Field(editor, u"txtCellPadding"_s).setText(u" 7 "_s);
    Field(editor, u"txtBorderSize"_s).setText(u"2.6"_s);

    Settings expected = wanted;
    expected.ActiveColumns = with.settings.ActiveColumns;
    expected.InactiveColumns = with.settings.InactiveColumns;
    expected.TableSpacing = 4;
    Click(editor, u"cmdOK"_s);
    QVERIFY(with.Messages().empty());
    QVERIFY(!editor.isVisible());
    QVERIFY(with.settings == expected);
}

void EditLayoutTest::OkAndCancelWithoutEditsChangeNothing() {
    for (const QString& command : {u"cmdOK"_s, u"cmdCancel"_s}) {
        LayoutFixture with;
        with.settings = OtherSettings();
        frmEditLayout editor(with.application, with.ui);
        Show(editor);
        Click(editor, command);
        QVERIFY(!editor.isVisible());
        QVERIFY(with.settings == OtherSettings());
    }
}

void EditLayoutTest::CancelAndEscapeDiscardEveryEdit() {
    for (const bool escape : {false, true}) {
        LayoutFixture with;
        const Settings before = with.settings;
        frmEditLayout editor(with.application, with.ui);
        Show(editor);
        Button(editor, u"cmdAllInactive"_s).click();
        Set(editor, u"chkFontsFontTags"_s, true);
        Field(editor, u"txtColour(0)"_s).setText(u"123456"_s);
        Field(editor, u"txtTableWidth"_s).setText(u"5"_s);
        Find<QComboBox>(editor, u"cmbDocumentType"_s).setCurrentIndex(1);
        if (escape) {
            QTest::keyClick(&editor, Qt::Key_Escape);
        } else {
            Click(editor, u"cmdCancel"_s);
        }
        QVERIFY(!editor.isVisible());
        QVERIFY(with.settings == before);
    }
}

void EditLayoutTest::OkWithABadNumberHasAlreadyStoredTheDocumentTypeAndNothingElse() {
    LayoutFixture with;
    Settings expected = with.settings;
    expected.DocumentType = "XHTML";
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    Find<QComboBox>(editor, u"cmbDocumentType"_s).setCurrentText(u"XHTML 1.0"_s);
    Field(editor, u"txtTableWidth"_s).setText(u"abc"_s);
    Field(editor, u"txtColour(0)"_s).setText(u"123456"_s);
    Button(editor, u"cmdAllInactive"_s).click();
    Click(editor, u"cmdOK"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QVERIFY((with.Messages()[0] ==
             LayoutFixture::Message{"The table width must be a numeric value.", 48, "Error"}));
    QVERIFY(editor.isVisible());
    QVERIFY(Field(editor, u"txtTableWidth"_s).hasFocus());
    QCOMPARE(Field(editor, u"txtTableWidth"_s).selectedText(), u"abc"_s);
    QVERIFY(with.settings == expected);
}

void EditLayoutTest::OkChecksTheNumbersInOrder_data() {
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("border");
    QTest::addColumn<QString>("padding");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("box");
    QTest::newRow("all three: the width")
        << u"a"_s << u"b"_s << u"c"_s << u"The table width must be a numeric value."_s << u"txtTableWidth"_s;
    QTest::newRow("border and padding: the border")
        << u"1"_s << u""_s << u"c"_s << u"The table border size must be a numeric value."_s
        << u"txtBorderSize"_s;
    QTest::newRow("padding") << u"1"_s << u"2"_s << u"3 px"_s
                             << u"The table cell padding must be a numeric value."_s << u"txtCellPadding"_s;
    QTest::newRow("non-numeric before out of range")
        << u"99999"_s << u"2"_s << u"c"_s << u"The table cell padding must be a numeric value."_s
        << u"txtCellPadding"_s;
    QTest::newRow("width too large") << u"32768"_s << u"40000"_s << u"3"_s
                                     << u"The table width must be between -32768 and 32767."_s
                                     << u"txtTableWidth"_s;
    QTest::newRow("border too small")
        << u"1"_s << u"-32769"_s << u"3"_s << u"The table border size must be between -32768 and 32767."_s
        << u"txtBorderSize"_s;
    QTest::newRow("padding too large")
        << u"1"_s << u"2"_s << u"1e9"_s << u"The table cell padding must be between -32768 and 32767."_s
        << u"txtCellPadding"_s;
}

void EditLayoutTest::OkChecksTheNumbersInOrder() {
    QFETCH(QString, width);
    QFETCH(QString, border);
    QFETCH(QString, padding);
    QFETCH(QString, message);
    QFETCH(QString, box);
    LayoutFixture with;
    const Settings before = with.settings;
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    Field(editor, u"txtTableWidth"_s).setText(width);
    Field(editor, u"txtBorderSize"_s).setText(border);
    Field(editor, u"txtCellPadding"_s).setText(padding);
    Click(editor, u"cmdOK"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QVERIFY((with.Messages()[0] == LayoutFixture::Message{message.toStdString(), 48, "Error"}));
    QVERIFY(editor.isVisible());
    QVERIFY(Field(editor, box).hasFocus()); // so its page is visible
    QCOMPARE(Field(editor, box).selectedText(), Text(editor, box));
    QVERIFY(with.settings == before);
}

void EditLayoutTest::TypingANonNumberSelectsTheWholeText() {
    LayoutFixture with;
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    for (const QString& name : {u"txtTableWidth"_s, u"txtBorderSize"_s, u"txtCellPadding"_s}) {
        Type(editor, name, u"12"_s);
        QVERIFY(!Field(editor, name).hasSelectedText());
        QTest::keyClicks(&Field(editor, name), u"a"_s);
        QCOMPARE(Field(editor, name).selectedText(), u"12a"_s);
    }
    QVERIFY(with.Messages().empty());
}

void EditLayoutTest::AUnitWithoutAnOptionIsKeptUntilOneIsChosen() {
    LayoutFixture with;
    with.settings.TableWidthUnit = 7;
    {
        frmEditLayout editor(with.application, with.ui);
        QVERIFY(!IsChecked(editor, u"optWidthPixels"_s));
        QVERIFY(!IsChecked(editor, u"optWidthPercent"_s));
        Button(editor, u"cmdOK"_s).click();
        QCOMPARE(static_cast<int>(with.settings.TableWidthUnit), 7);
    }
    frmEditLayout editor(with.application, with.ui);
    Set(editor, u"optWidthPercent"_s, true);
    Button(editor, u"cmdOK"_s).click();
    QCOMPARE(static_cast<int>(with.settings.TableWidthUnit), 1);
}

void EditLayoutTest::RunControlsAreTheSubstitutionAndTheDocumentType() {
    LayoutFixture with;
    with.settings.DocumentType = "other";
    frmEditLayout editor(with.application, with.ui);
    Set(editor, u"chkTheSubstitution"_s, false);
    Button(editor, u"cmdAllInactive"_s).click();
    Settings run = with.settings;
    editor.StoreRunControls(run);
    Settings expected = with.settings;
    expected.MoveTheArtists = false;
    expected.DocumentType = "HTML";
    QVERIFY(run == expected);
}

void EditLayoutTest::SizesBeyondOneToSevenAreKept() {
    LayoutFixture with;
    with.settings.Font[0].size = "9";
    with.settings.Font[1].size = "";
    with.settings.Font[2].size = "+1";
    const Settings before = with.settings;
    frmEditLayout editor(with.application, with.ui);
    QCOMPARE(Find<QComboBox>(editor, u"cmbFontSize(0)"_s).currentText(), u"9"_s);
    Button(editor, u"cmdOK"_s).click();
    QVERIFY(with.settings == before);
}

void EditLayoutTest::TheChosenFontFamilyBecomesTheFirstOfTheList_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("family");
    QTest::addColumn<double>("points");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("size");
    QTest::newRow("replaces the first face, keeps the others")
        << u"Tahoma, Arial, sans-serif"_s << u"Verdana"_s << 12.0 << u"Verdana, Arial, sans-serif"_s
        << u"3"_s;
    QTest::newRow("no duplicate face")
        << u"Tahoma, Arial, sans-serif"_s << u"Arial"_s << 10.0 << u"Arial, sans-serif"_s << u"2"_s;
    QTest::newRow("into an empty list") << u""_s << u"Noto Serif"_s << 8.0 << u"Noto Serif"_s << u"1"_s;
    QTest::newRow("before a single fallback")
        << u"serif"_s << u"Georgia"_s << 18.0 << u"Georgia, serif"_s << u"5"_s;
    QTest::newRow("quoted if CSS requires it")
        << u"Arial, serif"_s << u"3D Letters"_s << 100.0 << u"'3D Letters', serif"_s << u"7"_s;
    QTest::newRow("words are not quoted")
        << u"Arial, serif"_s << u"Times New Roman"_s << 24.0 << u"Times New Roman, serif"_s << u"6"_s;
}

void EditLayoutTest::TheChosenFontFamilyBecomesTheFirstOfTheList() {
    QFETCH(QString, before);
    QFETCH(QString, family);
    QFETCH(double, points);
    QFETCH(QString, after);
    QFETCH(QString, size);
    LayoutFixture with;
    with.settings.Font[1] = {before.toStdString(), "4", true, false};
    frmEditLayout editor(with.application, with.ui);
    QFont initial;
    Choosers choosers;
    choosers.font = [&](QWidget* parent, const QFont& font) {
        [parent, &editor] { QVERIFY(parent == &editor); }();
        initial = font;
        QFont chosen(family);
        chosen.setPointSizeF(points);
        chosen.setItalic(true);
        return std::optional(chosen);
    };
    editor.SetChoosers(choosers);
    Button(editor, u"cmdSelectFont(1)"_s).click();
    QVERIFY(initial.bold());
    QVERIFY(!initial.italic());
    QCOMPARE(Text(editor, u"txtFontList(1)"_s), after);
    QCOMPARE(Find<QComboBox>(editor, u"cmbFontSize(1)"_s).currentText(), size);
    QVERIFY(!IsChecked(editor, u"chkBold(1)"_s));
    QVERIFY(IsChecked(editor, u"chkItalic(1)"_s));
    QCOMPARE(Text(editor, u"txtFontList(0)"_s), u"Times New Roman, serif"_s);
}

void EditLayoutTest::CancellingAChooserChangesNothing() {
    LayoutFixture with;
    frmEditLayout editor(with.application, with.ui);
    int asked = 0;
    Choosers choosers;
    choosers.font = [&](QWidget*, const QFont&) {
        ++asked;
        return std::optional<QFont>();
    };
    choosers.colour = [&](QWidget*, const QColor&) {
        ++asked;
        return std::optional<QColor>();
    };
    editor.SetChoosers(choosers);
    const Settings before = with.settings;
    Button(editor, u"cmdSelectFont(0)"_s).click();
    Button(editor, u"cmdColourSelector(3)"_s).click();
    QCOMPARE(asked, 2);
    Button(editor, u"cmdOK"_s).click();
    QVERIFY(with.settings == before);
}

void EditLayoutTest::AColourButtonShowsTheNumberAndWhatBrowsersShow_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("number"); // invalid: none
    QTest::addColumn<QColor>("inBrowsers");
    const QColor none;
    QTest::newRow("six digits") << u"FF8000"_s << QColor(255, 128, 0) << QColor(255, 128, 0);
    QTest::newRow("lower case") << u"ff8000"_s << QColor(255, 128, 0) << QColor(255, 128, 0);
    QTest::newRow("three digits") << u"F80"_s << QColor(0, 15, 128) << QColor(255, 136, 0);
    QTest::newRow("fewer digits are a smaller number") << u"FF"_s << QColor(0, 0, 255) << none;
    QTest::newRow("leading zeros") << u"000FF00"_s << QColor(0, 255, 0) << none;
    QTest::newRow("no digits") << u"red"_s << none << none;
    QTest::newRow("a number above FFFFFF") << u"1000000"_s << none << none;
    QTest::newRow("a prefix") << u"0xFF"_s << none << none;
    QTest::newRow("a sign") << u"-1"_s << none << none;
    QTest::newRow("empty") << QString() << none << none;
}

void EditLayoutTest::AColourButtonShowsTheNumberAndWhatBrowsersShow() {
    QFETCH(QString, text);
    QFETCH(QColor, number);
    QFETCH(QColor, inBrowsers);
    LayoutFixture with;
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    Find<QTabWidget>(editor, u"TabStrip"_s).setCurrentIndex(2);
    Type(editor, u"txtColour(4)"_s, text);
    QAbstractButton& preview = Button(editor, u"cmdColourSelector(4)"_s);
    const QImage image = preview.grab().toImage();
    const QColor left = image.pixelColor(image.width() / 4, image.height() / 2);
    const QColor right = image.pixelColor(image.width() * 3 / 4, image.height() / 2);
    const QColor base = editor.palette().color(QPalette::Base);
    QCOMPARE(left, number.isValid() ? number : base);
    QCOMPARE(right, inBrowsers.isValid() ? inBrowsers : base);
    if (number != inBrowsers) {
        return;
    }
    // The field is crossed out only if there is no colour.
    const int inset = image.width() / 4;
    int otherPixels = 0;
    for (int x = inset; x < image.width() - inset; ++x) {
        for (int y = image.height() / 3; y < image.height() * 2 / 3; ++y) {
            otherPixels += image.pixelColor(x, y) == left ? 0 : 1;
        }
    }
    QCOMPARE(otherPixels == 0, number.isValid());
}

void EditLayoutTest::AColourButtonFollowsHowThePageCarriesTheColour_data() {
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("css");
    QTest::addColumn<bool>("fontTags");
    QTest::addColumn<QString>("colour"); // empty: none
    const auto row = [](const char* name, ColourIndex index, const char* text, const char* type, bool css,
                        bool fontTags, const char* colour) {
        QTest::newRow(name) << int(index) << QString::fromLatin1(text) << QString::fromLatin1(type) << css
                            << fontTags << QString::fromLatin1(colour);
    };
    row("an attribute takes any text", kPageBackground, "red", "HTML", true, false, "000E0D");
    row("the style sheet overrides it", kPageBackground, "11223344", "HTML", true, false, "44112233");
    row("without a style sheet", kPageBackground, "11223344", "HTML", false, false, "112344");
    row("browsers ignore that of XHTML", kPageBackground, "11223344", "XHTML", true, false, "112344");
    row("the border is an attribute", kTableBorder, "11223344", "HTML", true, false, "112344");
    row("cells take the style sheet", kCellText, "red", "HTML", true, false, "");
    row("FONT tags are attributes", kCellText, "red", "HTML", true, true, "000E0D");
    row("HTML5 takes three digits", kPageBackground, "F80", "HTML5", true, false, "FF8800");
    row("HTML5 takes no other text", kPageBackground, "FF80", "HTML5", true, false, "");
}

void EditLayoutTest::AColourButtonFollowsHowThePageCarriesTheColour() {
    QFETCH(int, index);
    QFETCH(QString, text);
    QFETCH(QString, type);
    QFETCH(bool, css);
    QFETCH(bool, fontTags);
    QFETCH(QString, colour);
    LayoutFixture with;
    frmEditLayout editor(with.application, with.ui);
    const std::array<QString, 3> types = {u"HTML"_s, u"XHTML"_s, u"HTML5"_s};
    Find<QComboBox>(editor, u"cmbDocumentType"_s)
        .setCurrentIndex(static_cast<int>(std::ranges::find(types, type) - types.begin()));
    Set(editor, u"chkColoursCSS"_s, css);
    Set(editor, u"chkColoursFontTags"_s, fontTags);
    Field(editor, N("txtColour", static_cast<std::size_t>(index))).setText(text);
    const auto& shown =
        Find<ColourButton>(editor, N("cmdColourSelector", static_cast<std::size_t>(index))).ShownByBrowsers();
    const bool opaque = !shown || shown->alpha() == 0xFF;
    const QString name =
        shown ? shown->name(opaque ? QColor::HexRgb : QColor::HexArgb).mid(1).toUpper() : QString();
    QCOMPARE(name, colour);
}

void EditLayoutTest::APastedColourLosesItsSignAndTheBlanksAroundIt_data() {
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("text");
    QTest::newRow("a sign") << u"#FF8000"_s << u"FF8000"_s;
    QTest::newRow("lower case") << u"#ff8000"_s << u"FF8000"_s;
    QTest::newRow("blanks") << u"  FF8000\t"_s << u"FF8000"_s;
    QTest::newRow("both") << u" # FF8000 "_s << u"FF8000"_s;
    QTest::newRow("no colour") << u" #red "_s << u"red"_s;
    QTest::newRow("a sign within") << u"FF#800"_s << u"FF#800"_s;
}

void EditLayoutTest::APastedColourLosesItsSignAndTheBlanksAroundIt() {
    QFETCH(QString, pasted);
    QFETCH(QString, text);
    LayoutFixture with;
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    QLineEdit& field = Field(editor, u"txtColour(0)"_s);
    field.selectAll();
    QGuiApplication::clipboard()->setText(pasted);
    field.paste();
    QCOMPARE(field.text(), text);
    Button(editor, u"cmdOK"_s).click();
    QCOMPARE(with.settings.Colour[0], text.toStdString()); // stored as the box shows it
}

void EditLayoutTest::AColourThatIsNotSixDigitsIsMarkedWithAHint() {
    LayoutFixture with;
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    Find<QTabWidget>(editor, u"TabStrip"_s).setCurrentIndex(2);
    QLineEdit& field = Field(editor, u"txtColour(1)"_s);
    const QAction& mark = *field.findChild<QAction*>(u"imgColourMark(1)"_s);
    const QLabel& hint = Find<QLabel>(editor, u"lblColourHint"_s);
    QVERIFY(!mark.isVisible());
    QVERIFY(!hint.isVisible());
    const int height = editor.minimumSizeHint().height();
    for (const QString& text : {u"FF800"_s, u"FF80000"_s, u"GG8000"_s, QString()}) {
        field.setText(text);
        QVERIFY2(mark.isVisible(), qPrintable(text));
        QVERIFY(hint.isVisible());
        QVERIFY(mark.toolTip().contains(u"six hexadecimal digits"_s));
        QVERIFY(field.accessibleDescription().endsWith(mark.toolTip()));
        QCOMPARE(field.toolTip(), u"The background colour of the page"_s);
    }
    QVERIFY(mark.toolTip().contains(u"000000"_s)); // what an empty attribute gives
    QCOMPARE(editor.minimumSizeHint().height(), height);
    field.setText(u"ff8000"_s);
    QVERIFY(!mark.isVisible());
    QVERIFY(!hint.isVisible());
    QCOMPARE(field.accessibleDescription(), field.toolTip());
}

void EditLayoutTest::BrowsersFindAColourInEveryAttribute_data() {
    QTest::addColumn<QString>("text"); // behind the "#"
    QTest::addColumn<QString>("colour");
    const auto row = [](const QString& text, const char* colour) {
        QTest::newRow(qPrintable(text.left(20))) << text << QString::fromLatin1(colour);
    };
    row(u"FF8000"_s, "FF8000");
    row(u"f80"_s, "FF8800");
    row(u"F80 "_s, "FF8800"); // blanks at the end go first
    row(QString(), "000000");
    row(u"F"_s, "0F0000");
    row(u"FF"_s, "0F0F00");
    row(u"F80A"_s, "F80A00");
    row(u"12345"_s, "123450");
    row(u"red"_s, "000E0D");
    row(u"#FF8000"_s, "0F8000"); // the second sign counts as a digit 0
    row(u"0000FF00"_s, "00FF00");
    row(u"112233FF"_s, "1123FF");
    row(u"0xFF"_s, "00FF00");
    row(u"chucknorris"_s, "C00000");
    row(u"sick"_s, "00C000");
    row(u"\u3042\u3042\u3042"_s, "000000");
    row(u"a"_s + QString::fromUcs4(U"\U0001F600") + u"bbb"_s, "A00BBB");
    row(QString(200, u'A'), "AAAAAA");
    row(u"0000000012"_s + QString(10, u'0') + u"34"_s + QString(10, u'0') + u"5678"_s, "123456");
}

void EditLayoutTest::BrowsersFindAColourInEveryAttribute() {
    QFETCH(QString, text);
    QFETCH(QString, colour);
    QCOMPARE(TextOfColour(AttributeColour(text)), colour);
}

void EditLayoutTest::TypedColoursAreKeptInUpperCase() {
    LayoutFixture with;
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    Type(editor, u"txtColour(0)"_s, u"c0ffee"_s);
    QCOMPARE(Text(editor, u"txtColour(0)"_s), u"C0FFEE"_s);
    QTest::keyClick(&Field(editor, u"txtColour(0)"_s), Qt::Key_Home);
    QTest::keyClick(&Field(editor, u"txtColour(0)"_s), Qt::Key_Delete);
    QTest::keyClicks(&Field(editor, u"txtColour(0)"_s), u"a"_s);
    QCOMPARE(Text(editor, u"txtColour(0)"_s), u"A0FFEE"_s);
    QCOMPARE(Field(editor, u"txtColour(0)"_s).cursorPosition(), 1);
}

void EditLayoutTest::LoadedColoursAreUnchanged() {
    LayoutFixture with;
    with.settings.Colour[0] = "c0ffee";
    with.settings.Colour[1] = "papayawhip";
    with.settings.Colour[2] = "";
    const Settings before = with.settings;
    frmEditLayout editor(with.application, with.ui);
    Button(editor, u"cmdOK"_s).click();
    QVERIFY(with.settings == before);
}

void EditLayoutTest::TheColourChooserStartsAtTheShownColourAndWritesSixDigitsRedFirst() {
    LayoutFixture with;
    frmEditLayout editor(with.application, with.ui);
    QColor initial;
    Choosers choosers;
    choosers.colour = [&](QWidget*, const QColor& colour) {
        initial = colour;
        return std::optional(QColor(1, 32, 255));
    };
    editor.SetChoosers(choosers);
    for (std::size_t i = 0; i < kColourCount; ++i) {
        const QColor shown(QString::fromStdString("#" + with.settings.Colour.at(i)));
        Button(editor, N("cmdColourSelector", i)).click();
        QCOMPARE(initial, shown);
        QCOMPARE(Text(editor, N("txtColour", i)), u"0120FF"_s);
    }
}

void EditLayoutTest::TextsAndToolTipsAreAsPrescribed() {
    LayoutFixture with;
    const frmEditLayout editor(with.application, with.ui);
    const std::array toolTips = {
        "The colour of the page header/footers",   "The background colour of the page",
        "The colour of the table headers",         "The background colour of the table headers",
        "The colour of the table cells",           "The background colour of the table cells",
        "The colour of the alternate table cells", "The background colour of the alternate cells",
        "The colour of generated links",           "The colour the main table's border"};
    for (std::size_t i = 0; i < toolTips.size(); ++i) {
        QCOMPARE(Field(editor, N("txtColour", i)).toolTip(), QString::fromLatin1(toolTips.at(i)));
        QCOMPARE(Button(editor, N("cmdColourSelector", i)).toolTip(), u"Select a colour from the palette"_s);
    }
    const auto text = [&](const QString& name) { return Button(editor, name).text().remove(u'&'); };
    QCOMPARE(text(u"chkAlternateTDColours"_s), u"Table cells use alternating text/background colours"_s);
    QCOMPARE(Button(editor, u"chkAlternateTDColours"_s).toolTip(),
             u"Alternate between the two colours below for table cells. Aids readability."_s);
    QCOMPARE(text(u"chkColoursFontTags"_s), u"Use FONT tags for text colours."_s);
    QCOMPARE(text(u"chkColoursCSS"_s), u"Use CSS for text colours."_s);
    QCOMPARE(
        Find<QLabel>(editor, u"lblAboutThemes"_s).text(),
        u"Themes are preset colour, font, and table settings that you can import into your own settings.\n\n"
        "You can also export your own settings as a theme."_s);
}

void EditLayoutTest::PagesHaveTheirTabs() {
    LayoutFixture with;
    const frmEditLayout editor(with.application, with.ui);
    const QTabWidget& tabs = Find<QTabWidget>(editor, u"TabStrip"_s);
    const QStringList titles = {u"Columns"_s, u"Fonts"_s, u"Colours"_s, u"Table"_s, u"Document and themes"_s};
    QCOMPARE(tabs.count(), titles.size());
    QCOMPARE(tabs.currentIndex(), 0);
    for (int i = 0; i < tabs.count(); ++i) {
        QCOMPARE(tabs.tabText(i).remove(u'&'), titles[i]);
        QVERIFY(tabs.widget(i)->isAncestorOf(&Find<QFrame>(editor, u"Frames(%1)"_s.arg(i))));
    }
}

} // namespace tunedex::test

#include "EditLayoutTest.moc"
