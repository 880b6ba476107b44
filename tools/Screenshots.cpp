// Writes a screenshot of each window with sample content, in light and dark colours, and of each theme's
// preview to FOLDER. DATA is the folder of the shipped files.
//
// usage: screenshots FOLDER DATA       (run by tools/screenshots on an X server of its own)

#include "CoreText.h"
#include "DefaultSettings.h"
#include "Dialogs.h"
#include "Languages.h"
#include "Palettes.h"
#include "ProgramIcon.h"
#include "Registry.h"
#include "Startup.h"
#include "Statistics.h"
#include "UserInterface.h"
#include "WindowsFrontEnd.h"
#include "frmAbout.h"
#include "frmDirSelection.h"
#include "frmEditLayout.h"
#include "frmOptions.h"
#include "frmProgress.h"
#include "frmTip.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPalette>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <iostream>

using namespace Qt::StringLiterals;
using namespace tunedex;

namespace {

class SampleRegistry final : public Registry {
  public:
    explicit SampleRegistry(std::string tipsFile) : tipsFile_(std::move(tipsFile)) {}
    std::string Read(std::string_view name) const override {
        return name == "TipsFile" ? tipsFile_ : name == "TipsOnStartup" ? "1" : "";
    }
    void Write(std::string_view /*name*/, std::string_view /*text*/) override {}

  private:
    std::string tipsFile_;
};

// A fixed time, so that screenshots are reproducible.
class SampleClock final : public Clock {
  public:
    std::tm LocalTime() const override {
        std::tm time{};
        time.tm_year = 126;
        time.tm_mon = 10;
        time.tm_mday = 21;
        time.tm_hour = 14;
        time.tm_min = 5;
        return time;
    }
    void Sleep(std::chrono::milliseconds /*duration*/) override {}
};

void FillSample(Application& application) {
    application.settings = DefaultSettings();
    application.settings.Directory = "/home/lea/Music";
    application.settings.OutputFile = "/home/lea/Documents/music.htm";
    application.statistics = {"2026-03-14", 41, 27, 18230};
}

class Pictures {
  public:
    explicit Pictures(QString folder) : folder_(std::move(folder)) {}

    // Appends the suffix to the names of all later pictures.
    void SetSuffix(const QString& suffix) { suffix_ = suffix; }

    void Take(QWidget& window, const QString& name) {
        window.show();
        QTest::qWait(50); // for the window system and the layout
        const QString path = QDir(folder_).filePath(name + suffix_ + u".png"_s);
        if (!window.grab().save(path)) {
            std::cerr << "cannot write " << path.toStdString() << '\n';
            failed_ = true;
        }
    }
    void TakeSmallest(QWidget& window, const QString& name) {
        window.resize(window.minimumSizeHint());
        Take(window, name + u"-smallest"_s);
    }
    // Takes a picture of the modal window that opens next, and closes it.
    void TakeModal(const QString& name) {
        QTimer::singleShot(300, qApp, [this, name] {
            QWidget* window = QApplication::activeModalWidget();
            Take(*window, name);
            window->close();
        });
    }
    bool Failed() const { return failed_; }

  private:
    QString folder_;
    QString suffix_;
    bool failed_ = false;
};

void TakeMessages(Pictures& pictures, WindowsFrontEnd& frontEnd, Dialogs& dialogs) {
    pictures.TakeModal(u"message"_s);
    frontEnd.ShowMessage("The output directory does not exist!\r\n\r\nDo you want to create it?",
                         kYesNoExclamation, "Error!");
    pictures.TakeModal(u"report"_s);
    dialogs.ShowReport(
        &frontEnd.MainWindow(),
        ShownText(
            "An error occurred decoding the headers of: \r\n\r\n/home/lea/Music/Unsorted/a broken file.mp3"),
        ShownText("Error!"));
    pictures.TakeModal(u"browse"_s);
    dialogs.ChooseFolder(
        &frontEnd.MainWindow(), frmMain::tr("Select a Directory"),
        frmMain::tr("Select the folder that you would like Tunedex to scan for MP3 files, and click OK."),
        QDir::rootPath().toStdString());
}

// The main window, its dialogs and the progress window.
void TakeMain(Pictures& pictures, Application& application) {
    FillSample(application);
    Dialogs dialogs;
    WindowsFrontEnd frontEnd(application, dialogs);
    frontEnd.FillFields(FieldsFor(application.settings));
    frmMain& window = frontEnd.MainWindow();
    pictures.Take(window, u"main"_s);

    window.findChild<QPushButton*>(u"cmdPageTitlePlaceHolders"_s)->click();
    pictures.Take(*window.findChild<QMenu*>(u"mnuPlaceholders"_s), u"placeholders"_s);
    window.findChild<QMenu*>(u"mnuPlaceholders"_s)->close();

    application.settings.Directory = "%MULT%/home/lea/Music%||%/home/lea/Audio books%||%/media/archive/mp3";
    frontEnd.FillFields(FieldsFor(application.settings));
    pictures.Take(window, u"main-folders"_s);
    pictures.TakeSmallest(window, u"main"_s);
    {
        frmDirSelection folders(application, frontEnd, dialogs, &window);
        pictures.Take(folders, u"folders"_s);
        pictures.TakeSmallest(folders, u"folders"_s);
    }
    {
        frmTip tip(application, frontEnd, &window);
        pictures.Take(tip, u"tip"_s);
        pictures.TakeSmallest(tip, u"tip"_s);
    }
    {
        frmAbout about(application, frontEnd, &window);
        pictures.Take(about, u"about"_s);
    }
    {
        frmProgress progress(window);
        progress.Display(
            {.status = ShownStatus("Retrieving MPEG/ID3 information (", 812, 1250, ")..."),
             .details =
                 ProgressMonitor::tr("%1 files a second, %2 left", nullptr, 416).arg(416).arg(u"0:01"_s),
             .maximum = 1250,
             .position = 812});
        pictures.Take(progress, u"progress"_s);
        progress.Display({.status = ShownText("Searching for MP3 files..."),
                          .details = ProgressMonitor::tr("%1 files found", nullptr, 812).arg(812),
                          .busy = true});
        pictures.Take(progress, u"progress-search"_s);
        progress.ShowOver();
        pictures.Take(progress, u"progress-over"_s);
    }
    TakeMessages(pictures, frontEnd, dialogs);
    window.hide();
}

// The main window after a run, with everything that it can say.
void TakeResult(Pictures& pictures, Application& application) {
    FillSample(application);
    Dialogs dialogs;
    WindowsFrontEnd frontEnd(application, dialogs);
    frontEnd.FillFields(FieldsFor(application.settings));
    frmMain& window = frontEnd.MainWindow();
    RunOutcome outcome;
    outcome.end = RunEnd::Written;
    outcome.file = "/home/lea/Documents/music.001.htm";
    outcome.tracks = 1250;
    outcome.pages = 13;
    outcome.modernTags = 812;
    window.ShowResult(outcome);
    pictures.Take(window, u"main-result"_s);
    outcome.unreadFolders = 2;
    outcome.unreadFiles = 1;
    outcome.file = "/home/lea/Documents/" + std::string(100, 'w') + ".001.htm";
    window.ShowResult(outcome);
    pictures.TakeSmallest(window, u"main-result"_s);
    application.settings.Modern = true;
    window.FollowSettings();
    pictures.Take(window, u"main-result-on"_s);
}

void TakeEveryPage(Pictures& pictures, frmEditLayout& editor, const QString& name) {
    auto* tabs = editor.findChild<QTabWidget*>(u"TabStrip"_s);
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        pictures.Take(editor, u"%1-%2"_s.arg(name).arg(page + 1));
    }
}

// What the layout editor says: a theme that is looked at while there are edits, colours that are none, text
// that is hard to read.
void TakeHints(Pictures& pictures, Application& application, WindowsFrontEnd& frontEnd) {
    FillSample(application);
    frmEditLayout editor(application, frontEnd);
    auto* tabs = editor.findChild<QTabWidget*>(u"TabStrip"_s);
    tabs->setCurrentIndex(2);
    editor.show();
    editor.findChild<QLineEdit*>(u"txtColour(1)"_s)->setText(u"red"_s);
    editor.findChild<QLineEdit*>(u"txtColour(4)"_s)->setText(u"#12"_s);
    QTest::qWait(200); // for the preview
    pictures.Take(editor, u"layout-marks"_s);
    tabs->setCurrentIndex(4);
    auto* themes = editor.findChild<QListWidget*>(u"lvwThemes"_s);
    for (const QString& name : {u"Midnight"_s, u"Ocean"_s}) {
        themes->setCurrentItem(themes->findItems(name, Qt::MatchExactly).constFirst());
        QTest::qWait(200);
        pictures.Take(editor, u"layout-preview-"_s + name);
    }
    editor.findChild<QAbstractButton*>(u"cmdLoadTheme"_s)->click();
    editor.findChild<QComboBox*>(u"cmbDocumentType"_s)->setCurrentIndex(1);
    QTest::qWait(200);
    pictures.Take(editor, u"layout-hard-to-read"_s);
    pictures.TakeSmallest(editor, u"layout-hard-to-read"_s);
    FillSample(application);
}

// The options dialog and every page of the layout editor.
void TakeOptions(Pictures& pictures, Application& application) {
    FillSample(application);
    Dialogs dialogs;
    WindowsFrontEnd frontEnd(application, dialogs);
    {
        frmOptions options(application, frontEnd);
        pictures.Take(options, u"options"_s);
        options.findChild<QAbstractButton*>(u"chkLinks"_s)->click();
        options.SwitchModernOn();
        pictures.TakeSmallest(options, u"options"_s);
    }
    application.settings.Modern = true;
    {
        frmEditLayout editor(application, frontEnd);
        pictures.Take(editor, u"layout-modern"_s);
    }
    application.settings.Modern = false;
    application.settings.DocumentType = "HTML5";
    {
        frmEditLayout editor(application, frontEnd);
        auto* tabs = editor.findChild<QTabWidget*>(u"TabStrip"_s);
        tabs->setCurrentIndex(tabs->count() - 1);
        pictures.Take(editor, u"layout-html5"_s);
        pictures.TakeSmallest(editor, u"layout-html5"_s);
    }
    TakeHints(pictures, application, frontEnd);
    frmEditLayout editor(application, frontEnd);
    TakeEveryPage(pictures, editor, u"layout"_s);
    editor.resize(editor.minimumSizeHint());
    TakeEveryPage(pictures, editor, u"layout-smallest"_s);
}

// Every theme in the preview.
void TakeThemes(Pictures& pictures, Application& application) {
    Dialogs dialogs;
    WindowsFrontEnd frontEnd(application, dialogs);
    const QDir themes(QString::fromStdString(application.programFolder + "Themes"));
    for (const QString& file : themes.entryList({u"*.thm"_s}, QDir::Files, QDir::Name)) {
        FillSample(application);
        application.settings.DoLinks = true;
        LoadSettings(application.settings, themes.filePath(file).toStdString(), "", {}, std::cerr);
        frmEditLayout editor(application, frontEnd);
        editor.show();
        pictures.Take(*editor.findChild<QWidget*>(u"txtPreview"_s),
                      u"theme-"_s + QFileInfo(file).completeBaseName());
    }
}

} // namespace

int main(int argc, char** argv) {
    QApplication qtApplication(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() != 3) {
        std::cerr << "usage: screenshots FOLDER DATA\n";
        return 2;
    }
    const QTemporaryDir configuration; // no saved window geometry
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, configuration.path());
    const QTemporaryDir programFolder;
    const std::filesystem::path data = arguments[2].toStdString();
    std::filesystem::copy(data / "Themes", programFolder.filePath(u"Themes"_s).toStdString(),
                          std::filesystem::copy_options::recursive);
    SampleClock clock;
    SampleRegistry registry(data / "tips.lst");
    Application application{.clock = clock,
                            .registry = registry,
                            .faults = std::cerr,
                            .locale = Locale(),
                            .programFolder = programFolder.path().toStdString() + '/'};

    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    InstallProgramIcon();
    const Translation translation(LanguageFor(WantedLanguages()));
    Pictures pictures(arguments[1]);
    for (const bool dark : {false, true}) {
        QApplication::setPalette(dark ? test::DarkPalette() : test::LightPalette());
        pictures.SetSuffix(dark ? u"-dark"_s : u"-light"_s);
        TakeMain(pictures, application);
        TakeResult(pictures, application);
        TakeOptions(pictures, application);
    }
    // Pages have their own colours, independent of the palette.
    pictures.SetSuffix({});
    TakeThemes(pictures, application);
    return pictures.Failed() ? 1 : 0;
}
