#include "LayoutFixture.h"
#include "RunTimeError.h"
#include "TestClasses.h"

#include <QAction>
#include <QDesktopServices>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace tunedex::test {

class OptionsTest : public QObject {
    Q_OBJECT

  private slots:
    void OpeningShowsEverySetting();
    void OpeningWithSpanningZeroUnchecksThePagesAndDisablesTheBox();
    void LoadingSpanningZeroKeepsTheTextOfTheBox();
    void NumbersWithoutAnOptionSelectNoneAndAreKept();
    void TypingANonNumberSelectsTheWholeTextAndUseRefusesIt();
    void UseStoresEveryControlAndCloses();
    void UseConvertsTheNumber_data();
    void UseConvertsTheNumber();
    void UseRefusesNumbers_data();
    void UseRefusesNumbers();
    void WithoutPagesAnyTextIsIgnored();
    void UncheckingLinksDisablesTheirControlsAndKeepsTheValues();
    void DisabledBoxesUseTheButtonColourAlsoAfterAPaletteChange();
    void CancelAndEscapeChangeNothing();
    void EnterPressesUse();
    void SaveStoresAllControlsAndWritesTheDefaultFile();
    void SaveRefusesWhatUseRefuses();
    void AFailedSaveShowsAMessageAndLeavesTheDialogOpen();
    void HelpOpensTheHelpFile();
    void HelpWithoutAFileShowsAMessage();
    void HelpInTheEditorHasAMnemonicAndTheHelpKey();
    void TheEditorDisablesTheDialogUntilItCloses();
    void StoringIncludesTheOpenEditorsDocumentTypeAndSubstitution();
    void StoringWithoutAnEditorMakesUnknownDocumentTypesHtml();
    void StoringABadNumberRaisesAnErrorAndStoresNothing();

  private:
    static void CheckRefused(const QString& text, const std::string& message);
};

namespace {
const TestClass<OptionsTest> kOptionsTestRegistered("OptionsTest");
}

void OptionsTest::OpeningShowsEverySetting() {
    LayoutFixture with;
    with.settings.Recurse = false;
    with.settings.Spanning = 250;
    with.settings.SizeType = 1;
    with.settings.SortOrder = 2;
    with.settings.ErrorWarnings = false;
    with.settings.ErrorLog = true;
    with.settings.ConfirmQuit = false;
    with.settings.DoLinks = true;
    with.settings.LinkType = 2;
    with.settings.LinkPrefix = "http://caf\u00E9/";
    const frmOptions options(with.application, with.ui);
    QVERIFY(!IsChecked(options, u"chkRecursive"_s));
    QVERIFY(IsChecked(options, u"chkSpan"_s));
    QCOMPARE(Text(options, u"txtFilesPerPage"_s), u"250"_s);
    QVERIFY(IsEnabled(options, u"txtFilesPerPage"_s));
    QVERIFY(!IsChecked(options, u"optBytes"_s));
    QVERIFY(IsChecked(options, u"optKilobytes"_s));
    QVERIFY(!IsChecked(options, u"optMegabytes"_s));
    QVERIFY(!IsChecked(options, u"optNoSort"_s));
    QVERIFY(!IsChecked(options, u"optAscSort"_s));
    QVERIFY(IsChecked(options, u"optDescSort"_s));
    QVERIFY(!IsChecked(options, u"chkErrorBoxes"_s));
    QVERIFY(IsChecked(options, u"chkErrorLog"_s));
    QVERIFY(!IsChecked(options, u"chkConfirmQuit"_s));
    QVERIFY(IsChecked(options, u"chkLinks"_s));
    QVERIFY(!IsChecked(options, u"optNormalLinks"_s));
    QVERIFY(!IsChecked(options, u"optUNIXLinks"_s));
    QVERIFY(IsChecked(options, u"optRelativeLinks"_s));
    QCOMPARE(Text(options, u"txtLinkPrefix"_s), u"http://caf\u00E9/"_s);
    QVERIFY(IsEnabled(options, u"txtLinkPrefix"_s));
}

void OptionsTest::OpeningWithSpanningZeroUnchecksThePagesAndDisablesTheBox() {
    LayoutFixture with;
    with.settings.Spanning = 0;
    const frmOptions options(with.application, with.ui);
    QVERIFY(!IsChecked(options, u"chkSpan"_s));
    QVERIFY(!IsEnabled(options, u"txtFilesPerPage"_s));
    QCOMPARE(Text(options, u"txtFilesPerPage"_s), QString());
}

void OptionsTest::LoadingSpanningZeroKeepsTheTextOfTheBox() {
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    with.settings.Spanning = 0;
    options.LoadControls();
    QVERIFY(!IsChecked(options, u"chkSpan"_s));
    QCOMPARE(Text(options, u"txtFilesPerPage"_s), u"100"_s);
}

void OptionsTest::NumbersWithoutAnOptionSelectNoneAndAreKept() {
    LayoutFixture with;
    with.settings.SizeType = 7;
    with.settings.SortOrder = -1;
    with.settings.LinkType = 3;
    frmOptions options(with.application, with.ui);
    for (const QAbstractButton* option :
         options.findChildren<QAbstractButton*>(QRegularExpression(u"^opt"_s))) {
        QVERIFY2(!option->isChecked(), qPrintable(option->objectName()));
    }
    Click(options, u"cmdUse"_s);
    QCOMPARE(with.settings.SizeType, 7);
    QCOMPARE(with.settings.SortOrder, -1);
    QCOMPARE(with.settings.LinkType, 3);
}

void OptionsTest::TypingANonNumberSelectsTheWholeTextAndUseRefusesIt() {
    LayoutFixture with;
    const Settings before = with.settings;
    frmOptions options(with.application, with.ui);
    Show(options);
    QLineEdit& box = Field(options, u"txtFilesPerPage"_s);
    Type(options, u"txtFilesPerPage"_s, u"12"_s);
    QVERIFY(!box.hasSelectedText());
    QTest::keyClicks(&box, u"a"_s);
    QCOMPARE(box.text(), u"12a"_s);
    QCOMPARE(box.selectedText(), u"12a"_s);
    QVERIFY(with.Messages().empty());

    Button(options, u"chkRecursive"_s).click();
    box.deselect();
    Button(options, u"cmdUse"_s).setFocus();
    Click(options, u"cmdUse"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QVERIFY((with.Messages()[0] ==
             LayoutFixture::Message{"Files per page must be a numeric value.", 48, "Error"}));
    QVERIFY(options.isVisible());
    QVERIFY(box.hasFocus());
    QCOMPARE(box.selectedText(), u"12a"_s);
    QVERIFY(with.settings == before);
}

void OptionsTest::UseStoresEveryControlAndCloses() {
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    Show(options);
    Set(options, u"chkRecursive"_s, false);
    Type(options, u"txtFilesPerPage"_s, u"75"_s);
    Set(options, u"optBytes"_s, true);
    Set(options, u"optNoSort"_s, true);
    Set(options, u"chkErrorBoxes"_s, false);
    Set(options, u"chkErrorLog"_s, true);
    Set(options, u"chkConfirmQuit"_s, false);
    Set(options, u"chkLinks"_s, true);
    Set(options, u"optUNIXLinks"_s, true);
    Type(options, u"txtLinkPrefix"_s, u"http://music/"_s);

    Settings expected = with.settings;
    expected.Recurse = false;
    expected.Spanning = 75;
    expected.SizeType = 0;
    expected.SortOrder = 0;
    expected.ErrorWarnings = false;
    expected.ErrorLog = true;
    expected.ConfirmQuit = false;
    expected.DoLinks = true;
    expected.LinkType = 1;
    expected.LinkPrefix = "http://music/";
    Click(options, u"cmdUse"_s);
    QVERIFY(!options.isVisible());
    QVERIFY(with.settings == expected);
    QVERIFY(with.Messages().empty());
}

void OptionsTest::UseConvertsTheNumber_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("blanks around it") << u" 12 "_s << 12;
    QTest::newRow("2.5 rounds down to even") << u"2.5"_s << 2;
    QTest::newRow("3.5 rounds up to even") << u"3.5"_s << 4;
    QTest::newRow("an exponent") << u"1e2"_s << 100;
    QTest::newRow("negative") << u"-7"_s << -7;
    QTest::newRow("zero") << u"0"_s << 0;
    QTest::newRow("the largest") << u"32767"_s << 32767;
    QTest::newRow("the smallest") << u"-32768"_s << -32768;
}

void OptionsTest::UseConvertsTheNumber() {
    QFETCH(QString, text);
    QFETCH(int, number);
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    Field(options, u"txtFilesPerPage"_s).setText(text);
    Button(options, u"cmdUse"_s).click();
    QCOMPARE(static_cast<int>(with.settings.Spanning), number);
    QVERIFY(with.Messages().empty());
}

void OptionsTest::UseRefusesNumbers_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    const QString notNumeric = u"Files per page must be a numeric value."_s;
    const QString outOfRange = u"Files per page must be between -32768 and 32767."_s;
    QTest::newRow("nothing") << QString() << notNumeric;
    QTest::newRow("blanks") << u"  "_s << notNumeric;
    QTest::newRow("a trailing letter") << u"12a"_s << notNumeric;
    QTest::newRow("two numbers") << u"1 2"_s << notNumeric;
    QTest::newRow("too large") << u"32768"_s << outOfRange;
    QTest::newRow("too small") << u"-32769"_s << outOfRange;
    QTest::newRow("too large after rounding") << u"32767.5"_s << outOfRange;
    QTest::newRow("huge") << u"1e300"_s << outOfRange;
}

void OptionsTest::CheckRefused(const QString& text, const std::string& message) {
    LayoutFixture with;
    const Settings before = with.settings;
    frmOptions options(with.application, with.ui);
    Show(options);
    Set(options, u"chkRecursive"_s, false);
    Field(options, u"txtFilesPerPage"_s).setText(text);
    Button(options, u"cmdUse"_s).click();
    QCOMPARE(with.Messages().size(), 1U);
    QVERIFY((with.Messages()[0] == LayoutFixture::Message{message, 48, "Error"}));
    QVERIFY(options.isVisible());
    QVERIFY(Field(options, u"txtFilesPerPage"_s).hasFocus());
    QCOMPARE(Field(options, u"txtFilesPerPage"_s).selectedText(), text);
    QVERIFY(with.settings == before);
}

void OptionsTest::UseRefusesNumbers() {
    QFETCH(QString, text);
    QFETCH(QString, message);
    CheckRefused(text, message.toStdString());
}

void OptionsTest::WithoutPagesAnyTextIsIgnored() {
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    Field(options, u"txtFilesPerPage"_s).setText(u"nonsense"_s);
    Set(options, u"chkSpan"_s, false);
    Button(options, u"cmdUse"_s).click();
    QVERIFY(with.Messages().empty());
    QCOMPARE(static_cast<int>(with.settings.Spanning), 0);
}

void OptionsTest::UncheckingLinksDisablesTheirControlsAndKeepsTheValues() {
    LayoutFixture with;
    with.settings.DoLinks = true;
    with.settings.LinkType = 2;
    with.settings.LinkPrefix = "http://music/";
    frmOptions options(with.application, with.ui);
    Set(options, u"chkLinks"_s, false);
    for (const QString& name :
         {u"txtLinkPrefix"_s, u"optNormalLinks"_s, u"optUNIXLinks"_s, u"optRelativeLinks"_s}) {
        QVERIFY2(!IsEnabled(options, name), qPrintable(name));
    }
    QVERIFY(IsChecked(options, u"optRelativeLinks"_s));
    QCOMPARE(Text(options, u"txtLinkPrefix"_s), u"http://music/"_s);
    Click(options, u"cmdUse"_s);
    QVERIFY(!with.settings.DoLinks);
    QCOMPARE(static_cast<int>(with.settings.LinkType), 2);
    QCOMPARE(with.settings.LinkPrefix, std::string("http://music/"));
}

void OptionsTest::DisabledBoxesUseTheButtonColourAlsoAfterAPaletteChange() {
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    const auto background = [&](const QString& name) {
        const QLineEdit& field = Field(options, name);
        return field.palette().color(field.isEnabled() ? QPalette::Active : QPalette::Disabled,
                                     QPalette::Base);
    };
    QPalette dark(QColor(40, 40, 40), QColor(50, 50, 50));
    for (const QPalette& palette : {QGuiApplication::palette(), dark}) {
        options.setPalette(palette);
        for (const auto& [box, name] :
             {std::pair(u"chkSpan"_s, u"txtFilesPerPage"_s), std::pair(u"chkLinks"_s, u"txtLinkPrefix"_s)}) {
            Set(options, box, true);
            QCOMPARE(background(name), options.palette().color(QPalette::Active, QPalette::Base));
            Set(options, box, false);
            QCOMPARE(background(name), options.palette().color(QPalette::Disabled, QPalette::Button));
        }
    }
}

void OptionsTest::CancelAndEscapeChangeNothing() {
    for (const bool escape : {false, true}) {
        LayoutFixture with;
        const Settings before = with.settings;
        frmOptions options(with.application, with.ui);
        Show(options);
        Set(options, u"chkRecursive"_s, false);
        Type(options, u"txtFilesPerPage"_s, u"1"_s);
        if (escape) {
            QTest::keyClick(&options, Qt::Key_Escape);
        } else {
            Click(options, u"cmdCancel"_s);
        }
        QVERIFY(!options.isVisible());
        QVERIFY(with.settings == before);
    }
}

void OptionsTest::EnterPressesUse() {
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    Show(options);
    Type(options, u"txtFilesPerPage"_s, u"33"_s);
    QTest::keyClick(&Field(options, u"txtFilesPerPage"_s), Qt::Key_Return);
    QVERIFY(!options.isVisible());
    QCOMPARE(static_cast<int>(with.settings.Spanning), 33);
}

void OptionsTest::SaveStoresAllControlsAndWritesTheDefaultFile() {
    LayoutFixture with;
    with.ui.fake.fields = {false, "/music", "/out/list.htm", "Window", "Page", "Footer"};
    frmOptions options(with.application, with.ui);
    with.ui.options = &options;
    Show(options);
    Type(options, u"txtFilesPerPage"_s, u"60"_s);
    Settings expected = with.settings;
    expected.OutputFile = "/out/list.htm";
    expected.WindowTitle = "Window";
    expected.PageTitle = "Page";
    expected.PageFooter = "Footer";
    expected.Spanning = 60;
    Click(options, u"cmdSave"_s);
    QVERIFY(!options.isVisible());
    QVERIFY(with.Messages().empty());
    QVERIFY(with.settings == expected);
    Settings saved;
    std::ostringstream faults;
    QCOMPARE(LoadSettings(saved, with.folder / "Tunedex.cfg", "", {}, faults), LoadOutcome::Loaded);
    QVERIFY(saved == expected);
}

void OptionsTest::SaveRefusesWhatUseRefuses() {
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    with.ui.options = &options;
    Show(options);
    Field(options, u"txtFilesPerPage"_s).setText(u"many"_s);
    Click(options, u"cmdSave"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QVERIFY(options.isVisible());
    QVERIFY(!with.folder.Exists("Tunedex.cfg"));
}

void OptionsTest::AFailedSaveShowsAMessageAndLeavesTheDialogOpen() {
    LayoutFixture with;
    with.application.programFolder = with.folder / "gone/";
    frmOptions options(with.application, with.ui);
    with.ui.options = &options;
    Show(options);
    Click(options, u"cmdSave"_s);
    QCOMPARE(with.Messages().size(), 1U);
    QCOMPARE(with.Messages()[0].buttons, 48);
    QCOMPARE(with.Messages()[0].title, std::string("Error"));
    QVERIFY(with.Messages()[0].text.ends_with("Error number 76 - Path not found"));
    QVERIFY(options.isVisible());
}

// Takes the addresses that the desktop would be asked to open.
class UrlCatcher : public QObject {
    Q_OBJECT

  public:
    UrlCatcher() { QDesktopServices::setUrlHandler(u"file"_s, this, "Take"); }
    ~UrlCatcher() override { QDesktopServices::unsetUrlHandler(u"file"_s); }
    QList<QUrl> taken;

  public slots:
    void Take(const QUrl& url) { taken << url; }
};

void OptionsTest::HelpOpensTheHelpFile() {
    LayoutFixture with;
    with.application.helpFile = with.folder.Write("Help.html", "<html></html>");
    UrlCatcher desktop;
    frmOptions options(with.application, with.ui);
    frmEditLayout editor(with.application, with.ui);
    Find<QAction>(options, u"itmHelpTopics"_s).trigger();
    Button(editor, u"cmdHelp"_s).click();
    QCOMPARE(desktop.taken.size(), 2);
    QCOMPARE(desktop.taken[0].toLocalFile().toStdString(), with.application.helpFile);
    QCOMPARE(desktop.taken[1].toLocalFile().toStdString(), with.application.helpFile);
    QVERIFY(with.Messages().empty());
}

void OptionsTest::HelpWithoutAFileShowsAMessage() {
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    frmEditLayout editor(with.application, with.ui);
    Show(options);
    QTest::keyClick(&options, Qt::Key_F1);
    Button(editor, u"cmdHelp"_s).click();
    QCOMPARE(with.Messages().size(), 2U);
    const LayoutFixture::Message expected{"The help file could not be found!", 48, "Error!"};
    QVERIFY(with.Messages()[0] == expected);
    QVERIFY(with.Messages()[1] == expected);
}

void OptionsTest::HelpInTheEditorHasAMnemonicAndTheHelpKey() {
    LayoutFixture with;
    frmEditLayout editor(with.application, with.ui);
    Show(editor);
    QTest::keyClick(&editor, Qt::Key_F1);
    QTRY_COMPARE(with.Messages().size(), 1U);
    QTest::keyClick(&editor, Qt::Key_H, Qt::AltModifier);
    QTRY_COMPARE(with.Messages().size(), 2U);
}

void OptionsTest::TheEditorDisablesTheDialogUntilItCloses() {
    for (const QString& way : {u"cmdOK"_s, u"cmdCancel"_s, u"close"_s}) {
        LayoutFixture with;
        frmOptions options(with.application, with.ui);
        Show(options);
        QVERIFY(options.Editor() == nullptr);
        Click(options, u"cmdEditLayout"_s);
        frmEditLayout* editor = options.Editor();
        QVERIFY(editor != nullptr);
        QVERIFY(editor->isVisible());
        QVERIFY(editor->isEnabled());
        QVERIFY(Button(*editor, u"cmdOK"_s).isEnabled());
        QVERIFY(!options.isEnabled());
        if (way == u"close"_s) {
            editor->close();
        } else {
            Click(*editor, way);
        }
        QVERIFY(!editor->isVisible());
        QVERIFY(options.isEnabled());
        QVERIFY(options.isVisible());
        QVERIFY(options.Editor() == nullptr);
        QVERIFY(options.focusWidget() == &Button(options, u"cmdEditLayout"_s));
        Click(options, u"cmdEditLayout"_s); // and once more
        QVERIFY(options.Editor() != nullptr);
    }
}

void OptionsTest::StoringIncludesTheOpenEditorsDocumentTypeAndSubstitution() {
    LayoutFixture with;
    frmOptions options(with.application, with.ui);
    Show(options);
    Click(options, u"cmdEditLayout"_s);
    Find<QComboBox>(*options.Editor(), u"cmbDocumentType"_s).setCurrentText(u"XHTML 1.0"_s);
    Set(*options.Editor(), u"chkTheSubstitution"_s, false);
    Set(*options.Editor(), u"chkFontsCSS"_s, false);
    Settings run = with.settings;
    options.StoreControls(run);
    Settings expected = with.settings;
    expected.DocumentType = "XHTML";
    expected.MoveTheArtists = false;
    QVERIFY(run == expected);
}

void OptionsTest::StoringWithoutAnEditorMakesUnknownDocumentTypesHtml() {
    for (const auto& [before, after] :
         {std::pair("XHTML", "XHTML"), std::pair("HTML", "HTML"), std::pair("HTML5", "HTML5"),
          std::pair("html5", "HTML"), std::pair("xhtml", "HTML"), std::pair("", "HTML")}) {
        LayoutFixture with;
        with.settings.DocumentType = before;
        const frmOptions options(with.application, with.ui);
        options.StoreControls(with.settings);
        QCOMPARE(with.settings.DocumentType, std::string(after));
    }
}

void OptionsTest::StoringABadNumberRaisesAnErrorAndStoresNothing() {
    for (const auto& [text, number] : {std::pair(u"many"_s, 13), std::pair(u"99999"_s, 6)}) {
        LayoutFixture with;
        frmOptions options(with.application, with.ui);
        Set(options, u"chkRecursive"_s, false);
        Field(options, u"txtFilesPerPage"_s).setText(text);
        Settings run = with.settings;
        int raised = 0;
        try {
            options.StoreControls(run);
        } catch (const RunTimeError& error) {
            raised = error.Number();
        }
        QCOMPARE(raised, number);
        QVERIFY(run == with.settings);
    }
}

} // namespace tunedex::test

#include "OptionsTest.moc"
