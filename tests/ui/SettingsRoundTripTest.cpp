#include "LayoutFixture.h"
#include "ModernColumns.h"
#include "TestClasses.h"

#include <array>
#include <random>

using namespace Qt::StringLiterals;

namespace tunedex::test {

class SettingsRoundTripTest : public QObject {
    Q_OBJECT

  private slots:
    void EveryFieldSurvivesTheWindowsAndTheFile();
    void FieldsWithoutAControlAreUnchanged();
};

namespace {

const TestClass<SettingsRoundTripTest> kSettingsRoundTripTestRegistered("SettingsRoundTripTest");

constexpr unsigned kSeeds = 120;

// Random settings that files and controls can hold, including unusual values.
class RandomSettings {
  public:
    explicit RandomSettings(unsigned seed) : random_(seed) {}

    Settings Make() {
        Settings settings;
        settings.Directory = Coin() ? "%MULT%" + Text() + "%||%" + Text() : Text();
        for (std::string* text : {&settings.OutputFile, &settings.WindowTitle, &settings.PageTitle,
                                  &settings.PageFooter, &settings.LinkPrefix}) {
            *text = Text();
        }
        for (bool* flag :
             {&settings.Recurse, &settings.ErrorWarnings, &settings.ErrorLog, &settings.ConfirmQuit,
              &settings.DoLinks, &settings.MoveTheArtists, &settings.FontCSS, &settings.FontHTML,
              &settings.AltRows, &settings.ColourCSS, &settings.ColourHTML, &settings.GroupByAlbum}) {
            *flag = Coin();
        }
        for (std::int16_t* number :
             {&settings.Spanning, &settings.SizeType, &settings.SortOrder, &settings.LinkType,
              &settings.TableWidth, &settings.TablePadding, &settings.TableBorder}) {
            *number = Number();
        }
        settings.Merge = static_cast<std::int16_t>(Below(3));
        settings.Modern = Coin();
        settings.TagCodePage = Coin() ? "" : "windows-1251";
        settings.TableWidthUnit = static_cast<std::int16_t>(Below(10)); // one digit in the file
        settings.DocumentType = std::array{"HTML", "XHTML", "HTML5"}.at(Below(3));
        settings.ActiveColumns = Columns();
        settings.InactiveColumns = Columns();
        for (FontSetting& font : settings.Font) {
            font = {Text(), Coin() ? std::to_string(Below(7) + 1) : Text(), Coin(), Coin()};
        }
        for (std::string& colour : settings.Colour) {
            colour = Text();
        }
        if (settings.Modern) {
            OfferModernColumns(settings); // as the editor stores them
        }
        return settings;
    }

  private:
    unsigned Below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }
    bool Coin() { return Below(2) == 0; }

    std::int16_t Number() {
        switch (Below(4)) {
        case 0:
            return 0;
        case 1:
            return static_cast<std::int16_t>(Below(4));
        default:
            return static_cast<std::int16_t>(static_cast<int>(Below(65536)) - 32768);
        }
    }

    // Any characters except line breaks, which a settings file cannot hold.
    std::string Text() {
        static const std::vector<std::string> pieces = {
            "a",           "B",        "7",      " ",      "=",
            "#",           "(",        ")",      "%",      "\"",
            "'",           "&",        "<",      "/",      "\\",
            "\t",          "\u00E9",   "\u20AC", "\u0081", "\u3042",
            "\U0001F3B5",  "\xC2\xA0", "-1",     "FF00FF", "Arial, sans-serif",
            "\u00C3\u00A9"};
        std::string text;
        for (unsigned i = Below(12); i > 0; --i) {
            text += pieces.at(Below(static_cast<unsigned>(pieces.size())));
        }
        // Without the two separators that have a meaning within values.
        return text.find("%|%") == std::string::npos && text.find("%||%") == std::string::npos ? text : "";
    }

    std::string Columns() {
        std::string columns;
        for (unsigned i = Below(8); i > 0; --i) {
            columns += (columns.empty() ? "" : "|") + Text();
        }
        return columns;
    }

    std::mt19937 random_;
};

void Open(LayoutFixture& with) {
    with.ui.fake.fields = {IsMultiFolder(with.settings.Directory),
                           with.settings.Directory,
                           with.settings.OutputFile,
                           with.settings.WindowTitle,
                           with.settings.PageTitle,
                           with.settings.PageFooter};
}

void AcceptLayout(frmOptions& options) {
    Button(options, u"cmdEditLayout"_s).click();
    Button(*options.Editor(), u"cmdOK"_s).click();
}

// Opens each window and accepts it without changes.
void Use(LayoutFixture& with) {
    frmOptions options(with.application, with.ui);
    AcceptLayout(options);
    Button(options, u"cmdUse"_s).click();
}

void Save(LayoutFixture& with) {
    frmOptions options(with.application, with.ui);
    with.ui.options = &options;
    AcceptLayout(options);
    Button(options, u"cmdSave"_s).click();
    with.ui.options = nullptr;
}

} // namespace

void SettingsRoundTripTest::EveryFieldSurvivesTheWindowsAndTheFile() {
    for (unsigned seed = 0; seed < kSeeds; ++seed) {
        LayoutFixture with;
        const Settings made = RandomSettings(seed).Make();
        with.settings = made;
        Open(with);
        Use(with);
        QVERIFY2(with.settings == made, qPrintable(u"seed %1: through the windows"_s.arg(seed)));
        Save(with);
        QVERIFY2(with.Messages().empty(), qPrintable(u"seed %1: a message"_s.arg(seed)));
        QVERIFY2(with.settings == made, qPrintable(u"seed %1: while it was saved"_s.arg(seed)));
        Settings loaded;
        std::ostringstream faults;
        QCOMPARE(LoadSettings(loaded, "", with.application.programFolder, {}, faults), LoadOutcome::Loaded);
        QCOMPARE(faults.str(), std::string());
        QVERIFY2(loaded == made, qPrintable(u"seed %1: through the file"_s.arg(seed)));

        // A second round trip through new windows must give the same bytes.
        const std::string bytes = ReadBytes(with.folder / "Tunedex.cfg");
        with.settings = loaded;
        Save(with);
        QVERIFY2(with.settings == made, qPrintable(u"seed %1: second round trip"_s.arg(seed)));
        QVERIFY2(ReadBytes(with.folder / "Tunedex.cfg") == bytes,
                 qPrintable(u"seed %1: other bytes"_s.arg(seed)));
    }
}

void SettingsRoundTripTest::FieldsWithoutAControlAreUnchanged() {
    LayoutFixture with;
    with.settings.TableSpacing = 5; // has no control and is not written to files
    with.settings.SizeType = 7;
    with.settings.SortOrder = 9;
    with.settings.LinkType = -3;
    with.settings.TableWidthUnit = 4;
    with.settings.Directory = "%MULT%/a%||%/b";
    Open(with);
    const Settings before = with.settings;
    Save(with);
    QVERIFY(with.settings == before);
    Settings loaded;
    std::ostringstream faults;
    LoadSettings(loaded, "", with.application.programFolder, {}, faults);
    loaded.TableSpacing = 5;
    QVERIFY(loaded == before);
}

} // namespace tunedex::test

#include "SettingsRoundTripTest.moc"
