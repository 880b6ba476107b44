// HTML5 pages in the layout editor.
#include "ColourScheme.h"
#include "LayoutFixture.h"
#include "TestClasses.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace tunedex::test {

class Html5LayoutTest : public QObject {
    Q_OBJECT

  public slots:
    void Open(const QUrl& url) { opened_ << url; }

  private slots:
    void cleanup();

    void TheDocumentTypeIsShownAndStored();
    void GroupingIsOfferedForHtml5Only();
    void GroupingIsKeptWhileAnotherTypeDisablesIt();
    void CancelDiscardsTheTypeAndTheGrouping();
    void ARunTakesTheTypeButNotTheGroupingOfAnOpenEditor();
    void ThemesLeaveTheGroupingAlone();
    void ThePreviewSaysWhatItCannotShow();
    void ThePreviewHasColoursAndFontsWhateverTheFlags();
    void ThePreviewShowsColoursThatAreNoneAsThePageDoes();
    void TheButtonOpensTheSampleWithTheLayoutShown();
    void TheButtonHasAShortcut();
    void TheSampleOutlivesTheEditorAndIsReplacedByTheNext();
    void TheSampleIsRemovedWithTheApplication();
    void ASampleThatCannotBeOpenedShowsAMessage();
    void ASampleThatCannotBeWrittenShowsAMessage();

  private:
    void CatchAddresses() { QDesktopServices::setUrlHandler(u"file"_s, this, "Open"); }
    QString OpenedPath() const { return opened_.isEmpty() ? QString() : opened_.last().toLocalFile(); }

    QList<QUrl> opened_;
};

namespace {

const TestClass<Html5LayoutTest> kHtml5LayoutTestRegistered("Html5LayoutTest");

class Html5Fixture : public LayoutFixture {
  public:
    explicit Html5Fixture(const char* type = "HTML5") { settings.DocumentType = type; }

    frmEditLayout& Editor() {
        if (!editor_) {
            editor_ = std::make_unique<frmEditLayout>(application, ui);
            Show(*editor_);
        }
        return *editor_;
    }
    void Close() { editor_.reset(); }
    void Choose(const QString& type) { Find<QComboBox>(Editor(), u"cmbDocumentType"_s).setCurrentText(type); }
    QTextBrowser& Preview() { return Find<QTextBrowser>(Editor(), u"txtPreview"_s); }
    QString Caption() { return Find<QLabel>(Editor(), u"lblPreview"_s).text(); }
    void OpenSample() { Button(Editor(), u"cmdOpenSample"_s).click(); }

  private:
    std::unique_ptr<frmEditLayout> editor_;
};

QByteArray Content(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void Html5LayoutTest::cleanup() {
    QDesktopServices::unsetUrlHandler(u"file"_s);
    opened_.clear();
}

void Html5LayoutTest::TheDocumentTypeIsShownAndStored() {
    struct Row {
        const char* stored;
        const char* shown;
    };
    for (const Row& row : {Row{"HTML", "HTML 4.01"}, Row{"XHTML", "XHTML 1.0"}, Row{"HTML5", "HTML5"},
                           Row{"html5", "HTML 4.01"}, Row{"HTML5 ", "HTML 4.01"}, Row{"", "HTML 4.01"}}) {
        Html5Fixture with(row.stored);
        const QComboBox& types = Find<QComboBox>(with.Editor(), u"cmbDocumentType"_s);
        QCOMPARE(types.currentText(), QString::fromLatin1(row.shown));
        QCOMPARE(types.accessibleName(), u"Document type"_s);
    }
    Html5Fixture with("HTML");
    Settings expected = with.settings;
    expected.DocumentType = "HTML5";
    expected.GroupByAlbum = true;
    with.Choose(u"HTML5"_s);
    Set(with.Editor(), u"chkGroupByAlbum"_s, true);
    Click(with.Editor(), u"cmdOK"_s);
    QVERIFY(with.settings == expected);
}

void Html5LayoutTest::GroupingIsOfferedForHtml5Only() {
    Html5Fixture with("HTML");
    QVERIFY(!IsEnabled(with.Editor(), u"chkGroupByAlbum"_s));
    with.Choose(u"HTML5"_s);
    QVERIFY(IsEnabled(with.Editor(), u"chkGroupByAlbum"_s));
    with.Choose(u"XHTML 1.0"_s);
    QVERIFY(!IsEnabled(with.Editor(), u"chkGroupByAlbum"_s));
    Html5Fixture opened;
    QVERIFY(IsEnabled(opened.Editor(), u"chkGroupByAlbum"_s));
    QVERIFY(!IsChecked(opened.Editor(), u"chkGroupByAlbum"_s));
    QCOMPARE(Button(opened.Editor(), u"chkGroupByAlbum"_s).accessibleName(), u"Group by album"_s);
}

void Html5LayoutTest::GroupingIsKeptWhileAnotherTypeDisablesIt() {
    Html5Fixture with;
    with.settings.GroupByAlbum = true;
    QVERIFY(IsChecked(with.Editor(), u"chkGroupByAlbum"_s));
    with.Choose(u"HTML 4.01"_s);
    Click(with.Editor(), u"cmdOK"_s);
    QCOMPARE(with.settings.DocumentType, std::string("HTML"));
    QVERIFY(with.settings.GroupByAlbum);
}

void Html5LayoutTest::CancelDiscardsTheTypeAndTheGrouping() {
    Html5Fixture with("XHTML");
    const Settings before = with.settings;
    with.Choose(u"HTML5"_s);
    Set(with.Editor(), u"chkGroupByAlbum"_s, true);
    Click(with.Editor(), u"cmdCancel"_s);
    QVERIFY(with.settings == before);
}

void Html5LayoutTest::ARunTakesTheTypeButNotTheGroupingOfAnOpenEditor() {
    Html5Fixture with("HTML");
    with.Choose(u"HTML5"_s);
    Set(with.Editor(), u"chkGroupByAlbum"_s, true);
    Settings run = with.settings;
    with.Editor().StoreRunControls(run);
    Settings expected = with.settings;
    expected.DocumentType = "HTML5";
    QVERIFY(run == expected);
}

void Html5LayoutTest::ThemesLeaveTheGroupingAlone() {
    Html5Fixture with;
    with.settings.GroupByAlbum = true;
    with.folder.Write("Themes/Blue.thm", "GroupByAlbum=0\r\nColour(1)=0000AA\r\n");
    Button(with.Editor(), u"cmdLoadTheme"_s).click();
    QCOMPARE(with.settings.Colour[kPageBackground], std::string("0000AA"));
    QVERIFY(IsChecked(with.Editor(), u"chkGroupByAlbum"_s));
}

void Html5LayoutTest::ThePreviewSaysWhatItCannotShow() {
    Html5Fixture with("HTML");
    QCOMPARE(with.Caption(), u"Preview with sample tracks"_s);
    QVERIFY(!Button(with.Editor(), u"cmdOpenSample"_s).isVisible());
    with.Choose(u"HTML5"_s);
    QTRY_VERIFY(Button(with.Editor(), u"cmdOpenSample"_s).isVisible());
    for (const QString& missing : {u"search"_s, u"sorting"_s, u"headings"_s, u"dark"_s}) {
        QVERIFY2(with.Caption().contains(missing), qPrintable(with.Caption()));
    }
    QVERIFY(with.Preview().toPlainText().contains(u"Amber Lantern (Harbour Lights): First Ferry Home"_s));
    for (const QString& markup : {u"{"_s, u"<"_s, u"DOCTYPE"_s, u"&amp;"_s}) {
        QVERIFY2(!with.Preview().toPlainText().contains(markup), qPrintable(markup));
    }
    with.Choose(u"HTML 4.01"_s);
    QTRY_COMPARE(with.Caption(), u"Preview with sample tracks"_s);
    QVERIFY(!Button(with.Editor(), u"cmdOpenSample"_s).isVisible());
}

void Html5LayoutTest::ThePreviewHasColoursAndFontsWhateverTheFlags() {
    Html5Fixture with;
    with.settings.FontCSS = with.settings.ColourCSS = false;
    with.settings.Colour[kPageBackground] = "203040";
    with.settings.Colour[kHeaderText] = "11CC88";
    with.settings.Font[kCellFont].italic = true;
    with.Editor();
    QTRY_COMPARE(with.Preview().palette().color(QPalette::Base), QColor(0x20, 0x30, 0x40));
    const auto format = [&](const QString& text) {
        return with.Preview().document()->find(text, 0, QTextDocument::FindCaseSensitively).charFormat();
    };
    QCOMPARE(format(u"Duration"_s).foreground().color(), QColor(0x11, 0xCC, 0x88));
    QVERIFY(format(u"3:41"_s).fontItalic());
}

void Html5LayoutTest::ThePreviewShowsColoursThatAreNoneAsThePageDoes() {
    Html5Fixture with;
    with.settings.Colour[kHeaderText] = "FC0";
    with.settings.Colour[kPageBackground] = "none";
    with.Editor();
    QTRY_VERIFY(!with.Preview().toPlainText().isEmpty());
    const QTextCharFormat header = with.Preview().document()->find(u"Duration"_s).charFormat();
    QCOMPARE(header.foreground().color(), QColor(0xFF, 0xCC, 0x00));
    QCOMPARE(with.Preview().palette().color(QPalette::Base), QColor(Qt::white));
}

void Html5LayoutTest::TheButtonOpensTheSampleWithTheLayoutShown() {
    CatchAddresses();
    Html5Fixture with;
    with.settings.Spanning = 2; // ignored: one page
    Field(with.Editor(), u"txtColour(1)"_s).setText(u"1B9E77"_s);
    with.OpenSample();
    QCOMPARE(opened_.size(), 1);
    QVERIFY2(OpenedPath().endsWith(u".htm"_s), qPrintable(OpenedPath()));
    const QByteArray page = Content(OpenedPath());
    QVERIFY2(page.startsWith("<!DOCTYPE html>"), page.left(40).constData());
    QVERIFY(page.contains("First Ferry Home"));
    QVERIFY(page.contains("Caf\u00E9 Central"));
    QVERIFY(page.contains("Long Wave"));
    QVERIFY(page.toUpper().contains("#1B9E77"));
    QCOMPARE(QFileInfo(OpenedPath()).dir().entryList(QDir::Files).size(), 1);
    QVERIFY(with.Messages().empty());
    QVERIFY(with.settings.Colour[kPageBackground] != "1B9E77");
}

void Html5LayoutTest::TheButtonHasAShortcut() {
    CatchAddresses();
    Html5Fixture with;
    QTRY_VERIFY(Button(with.Editor(), u"cmdOpenSample"_s).isVisible());
    QTest::keyClick(&with.Editor(), Qt::Key_B, Qt::ControlModifier);
    QTRY_COMPARE(opened_.size(), 1);
    QVERIFY(Button(with.Editor(), u"cmdOpenSample"_s).toolTip().contains(u"Ctrl+B"_s));
}

void Html5LayoutTest::TheSampleOutlivesTheEditorAndIsReplacedByTheNext() {
    CatchAddresses();
    Html5Fixture with;
    with.OpenSample();
    with.Close();
    QVERIFY(QFileInfo::exists(OpenedPath()));
    Html5Fixture again;
    again.settings.PageTitle = "The second sample";
    again.OpenSample();
    QCOMPARE(opened_.size(), 2);
    QCOMPARE(opened_[0], opened_[1]);
    QVERIFY(Content(OpenedPath()).contains("The second sample"));
}

void Html5LayoutTest::TheSampleIsRemovedWithTheApplication() {
    CatchAddresses();
    Html5Fixture with;
    with.OpenSample();
    const QString folder = QFileInfo(OpenedPath()).path();
    QVERIFY(QFileInfo::exists(folder));
    delete qApp->findChild<QObject*>(u"SampleFolder"_s); // as the application does with its children
    QVERIFY(!QFileInfo::exists(folder));
    with.OpenSample();
    QVERIFY(QFileInfo::exists(OpenedPath()));
}

void Html5LayoutTest::ASampleThatCannotBeOpenedShowsAMessage() {
    Html5Fixture with;
    with.OpenSample();
    QCOMPARE(with.Messages().size(), std::size_t(1));
    QVERIFY2(with.Messages()[0].text.starts_with("No program could be found to open\r\nfile://"),
             with.Messages()[0].text.c_str());
}

void Html5LayoutTest::ASampleThatCannotBeWrittenShowsAMessage() {
    CatchAddresses();
    Html5Fixture with;
    with.settings.ActiveColumns = "Album|Artist|Title";
    with.settings.Merge = 2;
    with.OpenSample();
    QCOMPARE(with.Messages().size(), std::size_t(1));
    QVERIFY2(with.Messages()[0].text.find("Invalid procedure call") != std::string::npos,
             with.Messages()[0].text.c_str());
    QVERIFY(opened_.isEmpty());
}

} // namespace tunedex::test

#include "Html5LayoutTest.moc"
