#include "ColumnList.h"
#include "LayoutFixture.h"
#include "PreviewPane.h"
#include "RichTextPage.h"
#include "TestClasses.h"

#include <QScrollBar>
#include <QTextBrowser>
#include <QTextCursor>

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace tunedex::test {

class PreviewTest : public QObject {
    Q_OBJECT

  private slots:
    void TheSampleTracksAreShownOnOpening();
    void FollowsTheColours_data();
    void FollowsTheColours();
    void FollowsThePageColours();
    void FollowsTheFonts_data();
    void FollowsTheFonts();
    void FollowsTheOrderOfTheColumns();
    void FollowsTheMerge();
    void FollowsTheSubstitution();
    void FollowsAlternatingRows();
    void FollowsTheTableSizes();
    void SaysThatBrowsersIgnoreTheStyleSheetOfXhtml();
    void NamesTheBoxesThatMakeTextReadable_data();
    void NamesTheBoxesThatMakeTextReadable();
    void FollowsTheUnsavedOptionsToo();
    void FollowsALoadedTheme();
    void EscapesWithTheEntityTable();
    void IgnoresNumbersThatAreBeingTyped();
    void SaysSoIfNoListingCanBeWritten();
    void IsUpdatedWhenShownAgain();
    void KeepsItsScrollPositionOnUpdates();
    void PagesAreConvertedToRichText_data();
    void PagesAreConvertedToRichText();
};

namespace {

const TestClass<PreviewTest> kPreviewTestRegistered("PreviewTest");

class Preview : public LayoutFixture {
  public:
    Preview() { settings.SortOrder = 1; }

    void Open() {
        editor = std::make_unique<frmEditLayout>(application, ui);
        editor->resize(1200, 700);
        Show(*editor);
        QTRY_VERIFY(!Shown().isEmpty());
    }

    QTextBrowser& Browser() const { return Find<QTextBrowser>(*editor, u"txtPreview"_s); }
    QString Shown() const { return Browser().toPlainText(); }
    int Pixels(const QColor& colour) const {
        const QImage image = Browser().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            const std::span row(reinterpret_cast<const QRgb*>(image.constScanLine(y)),
                                static_cast<std::size_t>(image.width()));
            count += static_cast<int>(std::ranges::count(row, colour.rgb()));
        }
        return count;
    }
    // The format of the first occurrence of the text.
    QTextCharFormat FormatOf(const QString& text) const {
        return Browser().document()->find(text, 0, QTextDocument::FindCaseSensitively).charFormat();
    }

    std::unique_ptr<frmEditLayout> editor;
};

constexpr int kManyPixels = 400;

} // namespace

void PreviewTest::TheSampleTracksAreShownOnOpening() {
    Preview with;
    with.settings.PageTitle = "My %C files";
    with.Open();
    const QString shown = with.Shown();
    QVERIFY2(shown.trimmed().startsWith(u"My 6 files"_s), qPrintable(shown.left(60)));
    for (const QString& text :
         {u"Artist (Album): Title"_s, u"Amber Lantern (Harbour Lights): First Ferry Home"_s,
          u"Marisol Ferreira (Caf\u00E9 Central): A Pequena Valsa"_s, u"3:41"_s,
          u"Created with Tunedex v1.1 by Orvando"_s, u"Created on 2026-11-21 at 14:05"_s,
          u"https://tunedex.example/"_s}) {
        QVERIFY2(shown.contains(text), qPrintable(text));
    }
    for (const QString& markup : {u"{"_s, u"<"_s, u"DOCTYPE"_s, u"&amp;"_s}) {
        QVERIFY2(!shown.contains(markup), qPrintable(markup));
    }
}

void PreviewTest::FollowsTheColours_data() {
    QTest::addColumn<bool>("css");
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("atLeast");
    for (const bool css : {true, false}) {
        const char* how = css ? "style sheet" : "font tags";
        QTest::addRow("header text, %s", how) << css << int(kHeaderText) << 30;
        QTest::addRow("header background, %s", how) << css << int(kHeaderBackground) << kManyPixels;
        QTest::addRow("cell text, %s", how) << css << int(kCellText) << 30;
        QTest::addRow("cell background, %s", how) << css << int(kCellBackground) << kManyPixels;
        QTest::addRow("alternate text, %s", how) << css << int(kAlternateText) << 30;
        QTest::addRow("alternate background, %s", how) << css << int(kAlternateBackground) << kManyPixels;
        QTest::addRow("page text, %s", how) << css << int(kPageText) << 30;
        QTest::addRow("page background, %s", how) << css << int(kPageBackground) << kManyPixels;
        QTest::addRow("links, %s", how) << css << int(kLinkText) << 30;
        QTest::addRow("border, %s", how) << css << int(kTableBorder) << kManyPixels;
    }
}

void PreviewTest::FollowsTheColours() {
    QFETCH(bool, css);
    QFETCH(int, index);
    QFETCH(int, atLeast);
    Preview with;
    with.settings.ColourCSS = css;
    with.settings.ColourHTML = !css;
    with.settings.DoLinks = true;
    for (FontSetting& font : with.settings.Font) {
        font.size = "5"; // large enough for pixels that are not antialiased
        font.bold = true;
    }
    with.settings.TableBorder = 3;
    with.Open();
    const QColor colour(0x1B, 0x9E, 0x77);
    QCOMPARE(with.Pixels(colour), 0);
    Field(*with.editor, u"txtColour(%1)"_s.arg(index)).setText(u"1B9E77"_s);
    QTRY_VERIFY(with.Pixels(colour) >= atLeast);
}

void PreviewTest::FollowsThePageColours() {
    Preview with;
    with.Open();
    Field(*with.editor, u"txtColour(1)"_s).setText(u"203040"_s);
    QTRY_COMPARE(with.Browser().viewport()->grab().toImage().pixelColor(1, 1), QColor(0x20, 0x30, 0x40));
    const QImage image = with.Browser().viewport()->grab().toImage();
    QCOMPARE(image.pixelColor(image.width() - 2, image.height() - 2), QColor(0x20, 0x30, 0x40));
}

void PreviewTest::FollowsTheFonts_data() {
    QTest::addColumn<bool>("css");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("text");
    for (const bool css : {true, false}) {
        QTest::addRow("page, %s", css ? "style sheet" : "font tags") << css << 0 << u"MP3 Listing"_s;
        QTest::addRow("headers, %s", css ? "style sheet" : "font tags") << css << 1 << u"Duration"_s;
        QTest::addRow("cells, %s", css ? "style sheet" : "font tags") << css << 2 << u"3:41"_s;
    }
}

void PreviewTest::FollowsTheFonts() {
    QFETCH(bool, css);
    QFETCH(int, index);
    QFETCH(QString, text);
    Preview with;
    with.settings.FontCSS = css;
    with.settings.FontHTML = !css;
    with.Open();
    const auto width = [&] { return QFontMetricsF(with.FormatOf(text).font()).horizontalAdvance(text); };
    Field(*with.editor, u"txtFontList(%1)"_s.arg(index)).setText(u"DejaVu Serif, serif"_s);
    Set(*with.editor, u"chkItalic(%1)"_s.arg(index), true);
    Find<QComboBox>(*with.editor, u"cmbFontSize(%1)"_s.arg(index)).setCurrentText(u"3"_s);
    QTRY_VERIFY(with.FormatOf(text).fontItalic());
    QVERIFY(with.FormatOf(text).fontFamilies().toStringList().join(u',').contains(u"DejaVu Serif"_s));
    const qreal usual = width();
    Find<QComboBox>(*with.editor, u"cmbFontSize(%1)"_s.arg(index)).setCurrentText(u"7"_s);
    QTRY_VERIFY(width() > usual * 1.5);
    Find<QComboBox>(*with.editor, u"cmbFontSize(%1)"_s.arg(index)).setCurrentText(u"1"_s);
    QTRY_VERIFY(width() < usual);
    Set(*with.editor, u"chkBold(%1)"_s.arg(index), true);
    QTRY_VERIFY(with.FormatOf(text).fontWeight() >= QFont::Bold);
}

void PreviewTest::FollowsTheOrderOfTheColumns() {
    Preview with;
    with.settings.Merge = 0;
    with.settings.ActiveColumns = "Artist|Title|Year";
    with.Open();
    const auto order = [&](const QString& first, const QString& second) {
        const qsizetype a = with.Shown().indexOf(first);
        return a >= 0 && a < with.Shown().indexOf(second);
    };
    QVERIFY(order(u"Artist"_s, u"Title"_s));
    QVERIFY(order(u"Amber Lantern"_s, u"First Ferry Home"_s));
    Find<ColumnList>(*with.editor, u"lstActiveColumns"_s).SelectRow(0);
    Button(*with.editor, u"cmdBottom"_s).click();
    QTRY_VERIFY(order(u"Title"_s, u"Year"_s) && order(u"Year"_s, u"Artist"_s));
    QVERIFY(order(u"First Ferry Home"_s, u"Amber Lantern"_s));
    Button(*with.editor, u"cmdInactive"_s).click();
    QTRY_VERIFY(!with.Shown().contains(u"Amber Lantern"_s));
}

void PreviewTest::FollowsTheMerge() {
    Preview with;
    with.settings.Merge = 0;
    with.Open();
    QVERIFY(!with.Shown().contains(u"Artist: Title"_s));
    Set(*with.editor, u"chkArtistTitleMerge"_s, true);
    QTRY_VERIFY(with.Shown().contains(u"Artist: Title"_s));
    QVERIFY(with.Shown().contains(u"Amber Lantern: First Ferry Home"_s));
    Set(*with.editor, u"chkAlbumMerge"_s, true);
    QTRY_VERIFY(with.Shown().contains(u"Artist (Album): Title"_s));
    QVERIFY(with.Shown().contains(u"Amber Lantern (Harbour Lights): First Ferry Home"_s));
}

void PreviewTest::FollowsTheSubstitution() {
    Preview with;
    with.Open();
    QVERIFY(with.Shown().contains(u"Clockmakers, The"_s));
    Set(*with.editor, u"chkTheSubstitution"_s, false);
    QTRY_VERIFY(with.Shown().contains(u"The Clockmakers"_s));
}

void PreviewTest::FollowsAlternatingRows() {
    Preview with;
    with.settings.Colour[kAlternateBackground] = "AA77BB";
    with.Open();
    const QColor alternate(0xAA, 0x77, 0xBB);
    QVERIFY(with.Pixels(alternate) > kManyPixels);
    Set(*with.editor, u"chkAlternateTDColours"_s, false);
    QTRY_COMPARE(with.Pixels(alternate), 0);
}

void PreviewTest::FollowsTheTableSizes() {
    Preview with;
    with.settings.Colour[kTableBorder] = "AA77BB";
    with.Open();
    const QColor border(0xAA, 0x77, 0xBB);
    const int thin = with.Pixels(border);
    Field(*with.editor, u"txtBorderSize"_s).setText(u"6"_s);
    QTRY_VERIFY(with.Pixels(border) > thin * 3);
    Set(*with.editor, u"optWidthPixels"_s, true);
    Field(*with.editor, u"txtTableWidth"_s).setText(u"200"_s);
    const auto widest = [&] {
        const QImage image = with.Browser().viewport()->grab().toImage();
        int widest = 0;
        for (int y = 0; y < image.height(); ++y) {
            int count = 0;
            for (int x = 0; x < image.width(); ++x) {
                count += image.pixelColor(x, y) == border ? 1 : 0;
            }
            widest = std::max(widest, count);
        }
        return widest;
    };
    QTRY_VERIFY(widest() < 260);
}

void PreviewTest::SaysThatBrowsersIgnoreTheStyleSheetOfXhtml() {
    Preview with;
    with.Open();
    const QString text = with.Shown();
    const QLabel& caption = Find<QLabel>(*with.editor, u"lblPreview"_s);
    QCOMPARE(caption.text(), u"Preview with sample tracks"_s);
    QVERIFY(with.FormatOf(u"MP3 Listing"_s).fontWeight() >= QFont::Bold);
    Find<QComboBox>(*with.editor, u"cmbDocumentType"_s).setCurrentText(u"XHTML 1.0"_s);
    QTRY_VERIFY(with.FormatOf(u"MP3 Listing"_s).fontWeight() < QFont::Bold);
    QVERIFY(caption.text().contains(u"style sheet"_s));
    QCOMPARE(with.Shown(), text);
    Set(*with.editor, u"chkFontsFontTags"_s, true);
    Set(*with.editor, u"chkFontsCSS"_s, false);
    Set(*with.editor, u"chkColoursFontTags"_s, true);
    Set(*with.editor, u"chkColoursCSS"_s, false);
    QTRY_VERIFY(with.FormatOf(u"MP3 Listing"_s).fontWeight() >= QFont::Bold);
    QCOMPARE(with.FormatOf(u"Duration"_s).foreground().color(), QColor(0xFF, 0xFF, 0));
    QCOMPARE(caption.text(), u"Preview with sample tracks"_s);
    QCOMPARE(with.Shown(), text);
}

void PreviewTest::NamesTheBoxesThatMakeTextReadable_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("dark");
    QTest::addColumn<bool>("css");
    QTest::addColumn<bool>("fontTags");
    QTest::addColumn<QStringList>("boxes"); // none: the text is readable
    const QString rule = u"\u201CUse CSS for text colours.\u201D"_s;
    const QString font = u"\u201CUse FONT tags for text colours.\u201D"_s;
    QTest::newRow("XHTML, dark cells") << u"XHTML 1.0"_s << true << true << false << QStringList{font};
    QTest::newRow("XHTML, FONT tags") << u"XHTML 1.0"_s << true << true << true << QStringList();
    QTest::newRow("XHTML, light cells") << u"XHTML 1.0"_s << false << true << false << QStringList();
    QTest::newRow("HTML, style sheet") << u"HTML 4.01"_s << true << true << false << QStringList();
    QTest::newRow("HTML, neither") << u"HTML 4.01"_s << true << false << false << QStringList{rule, font};
    QTest::newRow("HTML5") << u"HTML5"_s << true << false << false << QStringList();
}

void PreviewTest::NamesTheBoxesThatMakeTextReadable() {
    QFETCH(QString, type);
    QFETCH(bool, dark);
    QFETCH(bool, css);
    QFETCH(bool, fontTags);
    QFETCH(QStringList, boxes);
    Preview with;
    with.settings.Colour[kHeaderText] = "000000";
    with.settings.Colour[kHeaderBackground] = "FFFFFF";
    with.settings.Colour[kCellText] = dark ? "EEEEEE" : "000000";
    with.settings.Colour[kCellBackground] = dark ? "202020" : "FFFFFF";
    with.Open();
    Find<QComboBox>(*with.editor, u"cmbDocumentType"_s).setCurrentText(type);
    Set(*with.editor, u"chkColoursCSS"_s, css);
    Set(*with.editor, u"chkColoursFontTags"_s, fontTags);
    Find<PreviewPane>(*with.editor, u"PreviewPane"_s).ShowNow();
    const QString caption = Find<QLabel>(*with.editor, u"lblPreview"_s).text();
    QCOMPARE(caption.contains(u"hard to read"_s), !boxes.isEmpty());
    for (const QString& box : boxes) {
        QVERIFY2(caption.contains(box), qPrintable(caption));
    }
}

void PreviewTest::FollowsTheUnsavedOptionsToo() {
    LayoutFixture with;
    with.settings.ActiveColumns = "Title|File Size";
    frmOptions options(with.application, with.ui);
    Show(options);
    Set(options, u"chkLinks"_s, true);
    Set(options, u"optBytes"_s, true);
    Field(options, u"txtFilesPerPage"_s).setText(u"1"_s);
    Click(options, u"cmdEditLayout"_s);
    const QTextBrowser& browser = Find<QTextBrowser>(*options.Editor(), u"txtPreview"_s);
    QTRY_VERIFY(!browser.toPlainText().isEmpty());
    const QString shown = browser.toPlainText();
    QVERIFY(shown.contains(u"5,306,412 b."_s));
    QVERIFY(shown.contains(u"Link"_s));
    QVERIFY(shown.contains(u"Long Wave"_s)); // all tracks are on one page
    QVERIFY(!shown.contains(u"Next Page"_s));
}

void PreviewTest::FollowsALoadedTheme() {
    Preview with;
    with.folder.Write("Themes/Blue.thm", "Colour(1)=0000AA\r\n");
    with.Open();
    Button(*with.editor, u"cmdLoadTheme"_s).click();
    QTRY_COMPARE(with.Browser().viewport()->grab().toImage().pixelColor(1, 1), QColor(0, 0, 0xAA));
}

void PreviewTest::EscapesWithTheEntityTable() {
    for (const auto& [file, expected] :
         {std::pair("", u"Salt & Rope"_s), std::pair("38\t&amp;\r\n", u"Salt & Rope"_s),
          std::pair("38\t[and]\r\n", u"Salt [and] Rope"_s)}) {
        Preview with;
        if (*file != '\0') {
            with.folder.Write("html_entities.lst", std::string(file) + "97\ta\r\n");
        }
        with.Open();
        QVERIFY2(with.Shown().contains(expected), qPrintable(with.Shown()));
    }
}

void PreviewTest::IgnoresNumbersThatAreBeingTyped() {
    Preview with;
    with.settings.TableBorder = 4;
    with.settings.Colour[kTableBorder] = "AA77BB";
    with.Open();
    const int before = with.Pixels(QColor(0xAA, 0x77, 0xBB));
    Field(*with.editor, u"txtBorderSize"_s).setText(u"-"_s);
    Field(*with.editor, u"txtTableWidth"_s).setText(u"1e9"_s);
    Set(*with.editor, u"chkTheSubstitution"_s, false);
    QTRY_VERIFY(with.Shown().contains(u"The Clockmakers"_s));
    QVERIFY(with.Pixels(QColor(0xAA, 0x77, 0xBB)) > before / 2);
}

void PreviewTest::SaysSoIfNoListingCanBeWritten() {
    Preview with;
    with.settings.ActiveColumns = "Album|Artist|Title";
    with.settings.Merge = 2;
    with.Open();
    QVERIFY(with.Shown().startsWith(u"There is no preview"_s));
    QVERIFY(with.Shown().contains(u"Invalid procedure call or argument"_s));
    QVERIFY(with.Shown().contains(u"Album"_s));
    QVERIFY(with.Messages().empty());
    Set(*with.editor, u"chkAlbumMerge"_s, false);
    QTRY_VERIFY(with.Shown().contains(u"Amber Lantern: First Ferry Home"_s));
}

void PreviewTest::IsUpdatedWhenShownAgain() {
    Preview with;
    with.Open();
    Set(*with.editor, u"chkPreview"_s, false);
    QVERIFY(!with.Browser().isVisible());
    Set(*with.editor, u"chkTheSubstitution"_s, false);
    QTest::qWait(300);
    QVERIFY(with.Shown().contains(u"Clockmakers, The"_s)); // a hidden preview is not updated
    Set(*with.editor, u"chkPreview"_s, true);
    QVERIFY(with.Browser().isVisible());
    QTRY_VERIFY(with.Shown().contains(u"The Clockmakers"_s));
}

void PreviewTest::KeepsItsScrollPositionOnUpdates() {
    Preview with;
    with.settings.TablePadding = 50;
    with.Open();
    QScrollBar* bar = with.Browser().verticalScrollBar();
    QVERIFY(bar->maximum() > 50);
    bar->setValue(50);
    Field(*with.editor, u"txtColour(1)"_s).setText(u"203040"_s);
    QTRY_COMPARE(with.Browser().palette().color(QPalette::Base), QColor(0x20, 0x30, 0x40));
    QCOMPARE(bar->value(), 50);
}

void PreviewTest::PagesAreConvertedToRichText_data() {
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<QString>("html");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("link");
    const QString body = u"<body bgcolor=\"#010203\" text=\"#040506\" link=\"#070809\">x</body>"_s;
    QTest::newRow("no style sheet") << body << QString() << body << QColor(4, 5, 6) << QColor(1, 2, 3)
                                    << QColor(7, 8, 9);
    QTest::newRow("rules override the body tag")
        << u"<style type=\"text/css\">\n\t<!--\n\tbody {color: #AA0000; background-color: #00AA00; "
           u"font-size: small;}\n"
           "\ttd {font-size: xx-large;}\n\ta {color: #0000AA;}\n\t//-->\n</style>"_s +
               body
        << u"body {color: #AA0000; background-color: #00AA00; font-size: 13px;}\ntd {font-size: 32px;}\n"
           "a {color: #0000AA;}\n"_s
        << body << QColor(0xAA, 0, 0) << QColor(0, 0xAA, 0) << QColor(0, 0, 0xAA);
    QTest::newRow("a rule after empty ones is skipped")
        << u"<style type=\"text/css\">\n<!--\nbody {font-size: x-small;}\ntr }\ntr.r2 }\nth {font-size: "
           u"large;}\n"
           "td {font-size: medium;}\n//-->\n</style>"_s +
               body
        << u"body {font-size: 10px;}\ntd {font-size: 16px;}\n"_s << body << QColor(4, 5, 6) << QColor(1, 2, 3)
        << QColor(7, 8, 9);
    QTest::newRow("colours only: the rule for links follows an empty one")
        << u"<style>\n<!--\nbody {color: #AA0000;}\ntr.r2 {color: #111111;}\ntd }\na {color: #0000AA;}\n//-->\n</style>"_s +
               body
        << u"body {color: #AA0000;}\ntr.r2 {color: #111111;}\n"_s << body << QColor(0xAA, 0, 0)
        << QColor(1, 2, 3) << QColor(7, 8, 9);
    QTest::newRow("rules in a CDATA section are ignored")
        << u"<style type=\"text/css\">\n<![CDATA[\nbody {font-size: x-small;}\ntd {color: #111111;}\n]]>\n</style>"_s +
               body
        << QString() << body << QColor(4, 5, 6) << QColor(1, 2, 3) << QColor(7, 8, 9);
    QTest::newRow("an empty page") << u"hello"_s << QString() << u"hello"_s << QColor() << QColor()
                                   << QColor();
    QTest::newRow("other colours than six digits are those of browsers")
        << u"<style>\n<!--\nth {color: #F00; background-color: #red;}\ntd {color: #;}\n//-->\n</style>"
           "<body bgcolor=\"#red\" text=\"#\" link=\"#12345\"><font color=\"#abc\">"_s
        << u"th {color: #FF0000; }\ntd {}\n"_s
        << u"<body bgcolor=\"#000E0D\" text=\"#000000\" link=\"#123450\"><font color=\"#AABBCC\">"_s
        << QColor(0, 0, 0) << QColor(0, 0x0E, 0x0D) << QColor(0x12, 0x34, 0x50);
}

void PreviewTest::PagesAreConvertedToRichText() {
    QFETCH(QString, page);
    QFETCH(QString, styleSheet);
    QFETCH(QString, html);
    QFETCH(QColor, text);
    QFETCH(QColor, background);
    QFETCH(QColor, link);
    const RichTextPage prepared = PrepareRichText(page);
    QCOMPARE(prepared.styleSheet, styleSheet);
    QCOMPARE(prepared.html, html);
    QCOMPARE(prepared.styleSheetIgnored, page.contains(u"CDATA"_s));
    QCOMPARE(prepared.text.value_or(QColor()), text);
    QCOMPARE(prepared.background.value_or(QColor()), background);
    QCOMPARE(prepared.link.value_or(QColor()), link);
}

} // namespace tunedex::test

#include "PreviewTest.moc"
