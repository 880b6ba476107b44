#include "frmMain.h"

#include "Announcement.h"
#include "Controls.h"
#include "DefaultSettings.h"
#include "ErrorMessage.h"
#include "FittingArea.h"
#include "FolderDrop.h"
#include "FolderSetting.h"
#include "HomeFolder.h"
#include "OpenHelp.h"
#include "OutputHint.h"
#include "Path.h"
#include "PlaceholderMenu.h"
#include "Product.h"
#include "QtText.h"
#include "RecentButton.h"
#include "ResultPanel.h"
#include "RunTimeError.h"
#include "SettingsFuncs.h"
#include "Startup.h"
#include "TerminalText.h"
#include "Text.h"
#include "Themes.h"
#include "TitleField.h"
#include "Version.h"
#include "WindowGeometry.h"
#include "frmAbout.h"
#include "frmDirSelection.h"
#include "frmTip.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr int kFieldWidthInCharacters = 40;
constexpr int kFirstWidthInCharacters = 100; // initial width of the window

// Filter lists; only the descriptions are to be translated.
// Required: the first list ends in "|". Do not "fix".
constexpr const char* kOutputFilters =
    QT_TRANSLATE_NOOP("tunedex::frmMain", "HTML File (*.htm,*.html)|*.htm;*.html|Text File (*.txt)|*.txt|"
                                          "Winamp Playlist (*.m3u)|*.m3u|");
constexpr const char* kModernOutputFilters = QT_TRANSLATE_NOOP(
    "tunedex::frmMain", "CSV File (*.csv)|*.csv|UTF-8 Playlist (*.m3u8)|*.m3u8|"); // after the others
constexpr const char* kSettingsFilters =
    QT_TRANSLATE_NOOP("tunedex::frmMain", "Settings Files (*.cfg)|*.cfg|All Files (*.*)|*.*");

QAction* AddItem(QMenu& menu, const char* name, const QString& text, const QString& description,
                 const QKeySequence& shortcut = {}) {
    QAction* action = menu.addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    action->setStatusTip(description);
    action->setShortcut(shortcut);
    return action;
}

// The path in a field; "~" is the home folder, as in a shell.
std::string PathIn(const QLineEdit& field) {
    return ExpandHome(FromQt(field.text()));
}

// Shows the home folder in the place of "~" once the user leaves the field.
void ShowExpandedPath(QLineEdit& field) {
    QObject::connect(&field, &QLineEdit::editingFinished, &field, [&field] {
        if (const QString expanded = ToQt(PathIn(field)); expanded != field.text()) {
            field.setText(expanded);
        }
    });
}

// Copies a field's text into its setting whenever it changes.
void Mirror(QLineEdit& field, std::string& setting) {
    QObject::connect(&field, &QLineEdit::textChanged, &field,
                     [&setting](const QString& text) { setting = FromQt(text); });
}

void ShowModal(QDialog* window) {
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->open();
}

} // namespace

frmMain::frmMain(Application& application, WindowInterface& ui, Dialogs& dialogs)
    : application_(application), ui_(ui), dialogs_(dialogs) {
    setObjectName(u"frmMain"_s);
    BuildFields();
    BuildMenus();
    BuildPlaceholderMenu();

    auto* settings = new QWidget;
    auto* groups = new QVBoxLayout(settings);
    groups->setContentsMargins(0, 0, 0, 0);
    groups->addWidget(BuildFolderGroup());
    groups->addWidget(BuildOutputGroup());
    groups->addWidget(BuildTitleGroup());
    groups->addStretch(1);
    auto* centre = new QWidget;
    auto* layout = new QVBoxLayout(centre);
    layout->addWidget(new FittingArea(settings), 1);
    AlignButtons();
    BuildResultPanel();
    layout->addWidget(fraResult_);
    layout->addWidget(BuildCommandRow());
    setCentralWidget(centre);
    OrderControls();
    UpdateFolderControls();
    FollowSettings();
    resize(fontMetrics().averageCharWidth() * kFirstWidthInCharacters, sizeHint().height());
    RestoreWindowGeometry(*this);
    txtInputDir_->setFocus();
}

void frmMain::BuildFields() {
    txtInputDir_ = MakeTextField(u"txtInputDir"_s, tr("Folder"),
                                 tr("The folder to search for MP3 files. Folders can be dropped here."));
    chkMultipleDirs_ = MakeCheckBox(u"chkMultipleDirs"_s, tr("Search &multiple folders"),
                                    tr("Search a list of folders instead of one"));
    txtOutputFile_ =
        MakeTextField(u"txtOutputFile"_s, tr("Output file"), tr("The file to write the list to"));
    txtWindowTitle_ =
        new TitleField(u"txtWindowTitle"_s, tr("Window title"), tr("The title of the browser window"));
    txtPageTitle_ = new TitleField(u"txtPageTitle"_s, tr("Page title"), tr("The heading of each page"));
    txtPageFooter_ =
        new TitleField(u"txtPageFooter"_s, tr("Page footer"), tr("The text at the end of each page"));

    Settings& settings = application_.settings;
    ShowExpandedPath(*txtInputDir_);
    ShowExpandedPath(*txtOutputFile_);
    connect(txtInputDir_, &QLineEdit::textChanged, this, [this] {
        if (!chkMultipleDirs_->isChecked()) {
            application_.settings.Directory = PathIn(*txtInputDir_);
        }
    });
    connect(txtOutputFile_, &QLineEdit::textChanged, this,
            [this] { application_.settings.OutputFile = PathIn(*txtOutputFile_); });
    connect(txtOutputFile_, &QLineEdit::textChanged, this, &frmMain::ShowOutputHint);
    Mirror(*txtWindowTitle_, settings.WindowTitle);
    Mirror(*txtPageTitle_, settings.PageTitle);
    Mirror(*txtPageFooter_, settings.PageFooter);
    for (QLineEdit* path : {txtInputDir_, txtOutputFile_}) {
        KeepLeftToRight(*path);
    }
    for (QLineEdit* field :
         {txtInputDir_, txtOutputFile_, static_cast<QLineEdit*>(txtWindowTitle_),
          static_cast<QLineEdit*>(txtPageTitle_), static_cast<QLineEdit*>(txtPageFooter_)}) {
        field->setMinimumWidth(fontMetrics().averageCharWidth() * kFieldWidthInCharacters);
        connect(field, &QLineEdit::returnPressed, this, &frmMain::CreateListRequested);
        connect(field, &QLineEdit::textChanged, this, &frmMain::ShowSettingsFile);
    }
    connect(chkMultipleDirs_, &QCheckBox::toggled, this, &frmMain::MultipleDirsToggled);
    cmdRecentFolders_ = new RecentButton(u"cmdRecentFolders"_s, tr("Recent folders"), *txtInputDir_,
                                         RecentPaths(application_.registry, kRecentFoldersValue));
    cmdRecentOutputs_ = new RecentButton(u"cmdRecentOutputs"_s, tr("Recent output files"), *txtOutputFile_,
                                         RecentPaths(application_.registry, kRecentOutputsValue));
}

void frmMain::BuildMenus() {
    QMenu* file = menuBar()->addMenu(tr("&File"));
    file->setObjectName(u"mnuFile"_s);
    connect(AddItem(*file, "itmFileOpenSettings", tr("&Open Settings..."), tr("Load a settings file"),
                    QKeySequence::Open),
            &QAction::triggered, this, &frmMain::OpenSettings);
    connect(AddItem(*file, "itmFileSaveSettings", tr("&Save Settings"), tr("Save the settings"),
                    QKeySequence::Save),
            &QAction::triggered, this, &frmMain::SaveSettings);
    connect(AddItem(*file, "itmFileSaveSettingsAs", tr("Save Settings &As..."),
                    tr("Save the settings under another name"),
                    QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)),
            &QAction::triggered, this, &frmMain::SaveSettingsAs);
    file->addSeparator();
    connect(AddItem(*file, "itmFileExit", tr("E&xit"), tr("Quit the program"),
                    QKeySequence(Qt::CTRL | Qt::Key_Q)),
            &QAction::triggered, this, &QWidget::close);

    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->setObjectName(u"mnuHelp"_s);
    connect(AddItem(*help, "itmHelpTopics", tr("&Help Topics"), tr("Open the help file"),
                    QKeySequence::HelpContents),
            &QAction::triggered, this, &frmMain::ShowHelp);
    connect(AddItem(*help, "itmTipOfTheDay", tr("&Tip of the Day..."), tr("Show a tip")), &QAction::triggered,
            this, &frmMain::ShowTipOfTheDay);
    help->addSeparator();
    connect(AddItem(*help, "itmAbout", tr("&About Tunedex..."), tr("Show version and statistics")),
            &QAction::triggered, this, &frmMain::ShowAbout);
}

void frmMain::BuildPlaceholderMenu() {
    mnuPlaceholders_ = new QMenu(tr("Placeholders"), this);
    mnuPlaceholders_->setObjectName(u"mnuPlaceholders"_s);
    for (std::size_t i = 0; i < kTitlePlaceholders.size(); ++i) {
        const QString placeholder = ToQt(kTitlePlaceholders[i]);
        QAction* action =
            mnuPlaceholders_->addAction(tr("%1 - %2").arg(placeholder, tr(kPlaceholderMeanings[i])));
        action->setObjectName(u"itmPlaceholder"_s);
        connect(action, &QAction::triggered, this,
                [this, placeholder] { placeholderTarget_->InsertPlaceholder(placeholder); });
    }
}

int frmMain::LabelWidth() const {
    int width = 0;
    for (const QString& label : {tr("Fol&der:"), tr("&Output file:"), tr("Window &title:"),
                                 tr("&Page title:"), tr("Page foote&r:")}) {
        width = std::max(width, fontMetrics().size(Qt::TextShowMnemonic, label).width());
    }
    return width;
}

QGroupBox* frmMain::BuildFolderGroup() {
    cmdSelectDir_ =
        MakeButton(u"cmdSelectDir"_s, tr("&Browse..."), tr("Choose the folder"), tr("Browse for the folder"));
    cmdSelectDirs_ = MakeButton(u"cmdSelectDirs"_s, tr("Folder &list..."),
                                tr("Edit the list of folders to search"), tr("Folder list"));
    lblFolderCount_ = new QLabel;
    NameControl(*lblFolderCount_, u"lblFolderCount"_s, QString(), QString());
    connect(cmdSelectDir_, &QPushButton::clicked, this, &frmMain::BrowseFolder);
    connect(cmdSelectDirs_, &QPushButton::clicked, this, &frmMain::ChooseFolders);

    auto* several = new QHBoxLayout;
    several->addWidget(chkMultipleDirs_);
    several->addStretch();
    several->addWidget(lblFolderCount_);
    auto* group = new QGroupBox(tr("Music"));
    auto* grid = new QGridLayout(group);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(0, LabelWidth());
    grid->addWidget(MakeLabelFor(*txtInputDir_, tr("Fol&der:")), 0, 0);
    grid->addWidget(txtInputDir_, 0, 1);
    grid->addWidget(cmdRecentFolders_, 0, 2);
    grid->addWidget(cmdSelectDir_, 0, 3);
    grid->addLayout(several, 1, 1, 1, 2);
    grid->addWidget(cmdSelectDirs_, 1, 3);

    txtInputDir_->setAcceptDrops(false); // QLineEdit would insert the folder's URL
    new FolderDrop(*group, [this](const std::vector<std::string>& folders) { TakeDroppedFolders(folders); });
    return group;
}

QGroupBox* frmMain::BuildOutputGroup() {
    cmdSelectOutputFile_ =
        MakeButton(u"cmdSelectOutputFile"_s, tr("Bro&wse..."), tr("Choose the folder and name of the list"),
                   tr("Browse for the output file"));
    connect(cmdSelectOutputFile_, &QPushButton::clicked, this, &frmMain::BrowseOutputFile);
    lblOutputHint_ = new QLabel;
    lblOutputHint_->setObjectName(u"lblOutputHint"_s);
    lblOutputHint_->setTextFormat(Qt::PlainText);
    lblOutputHint_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Keeps its size while the hint changes: two lines, as wide as the longest.
    lblOutputHint_->setMinimumSize(fontMetrics().horizontalAdvance(LongestOutputHint()),
                                   2 * fontMetrics().lineSpacing());

    auto* group = new QGroupBox(tr("List"));
    auto* grid = new QGridLayout(group);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(0, LabelWidth());
    grid->addWidget(MakeLabelFor(*txtOutputFile_, tr("&Output file:")), 0, 0);
    grid->addWidget(txtOutputFile_, 0, 1);
    grid->addWidget(cmdRecentOutputs_, 0, 2);
    grid->addWidget(cmdSelectOutputFile_, 0, 3);
    grid->addWidget(lblOutputHint_, 1, 1, 1, 3);
    return group;
}

void frmMain::ShowOutputHint() {
    lblOutputHint_->setText(OutputHint(application_.settings, fontMetrics()));
}

void frmMain::ShowSettingsFile() {
    const std::string path = SettingsPath(settingsPath_, application_.programFolder);
    const QString file = ToQtDisplay(TerminalText(FileNameOf(path, PathStyle::Native())));
    setWindowTitle(tr("%1 v%2 - %3[*]").arg(ToQt(kProductTitle), ToQt(kVersionText), file));
    setWindowModified(application_.settings != saved_);
}

QGroupBox* frmMain::BuildTitleGroup() {
    const QString description = tr("Insert a placeholder for the date, the time, a count or a size");
    cmdWindowTitlePlaceHolders_ = MakeButton(u"cmdWindowTitlePlaceHolders"_s, tr("&Insert..."), description,
                                             tr("Placeholders for the window title"));
    cmdPageTitlePlaceHolders_ = MakeButton(u"cmdPageTitlePlaceHolders"_s, tr("I&nsert..."), description,
                                           tr("Placeholders for the page title"));
    cmdPageFooterPlaceHolders_ = MakeButton(u"cmdPageFooterPlaceHolders"_s, tr("Ins&ert..."), description,
                                            tr("Placeholders for the page footer"));

    auto* group = new QGroupBox(tr("Titles of web pages"));
    auto* grid = new QGridLayout(group);
    grid->setColumnStretch(1, 1);
    grid->setColumnMinimumWidth(0, LabelWidth());
    const auto addRow = [&](int row, const QString& caption, TitleField* field, QPushButton* button) {
        grid->addWidget(MakeLabelFor(*field, caption), row, 0);
        grid->addWidget(field, row, 1);
        grid->addWidget(button, row, 2);
        connect(button, &QPushButton::clicked, this,
                [this, field, button] { OpenPlaceholderMenu(*field, *button); });
    };
    addRow(0, tr("Window &title:"), txtWindowTitle_, cmdWindowTitlePlaceHolders_);
    addRow(1, tr("&Page title:"), txtPageTitle_, cmdPageTitlePlaceHolders_);
    addRow(2, tr("Page foote&r:"), txtPageFooter_, cmdPageFooterPlaceHolders_);
    return group;
}

void frmMain::BuildResultPanel() {
    fraResult_ = new ResultPanel(application_.locale);
    connect(fraResult_, &ResultPanel::OpenRequested, this, &frmMain::OpenResult);
    connect(fraResult_, &ResultPanel::FolderRequested, this, &frmMain::ShowResultFolder);
    connect(fraResult_, &ResultPanel::SwitchModernRequested, this, &frmMain::SwitchModernRequested);
}

QWidget* frmMain::BuildCommandRow() {
    cmdOptions_ = MakeButton(u"cmdOptions"_s, tr("Option&s..."), tr("Contents and layout of the list"));
    cmdAbout_ =
        MakeButton(u"cmdAbout"_s, tr("&About..."), tr("Show version and statistics"), tr("About Tunedex"));
    cmdQuit_ = MakeButton(u"cmdQuit"_s, tr("&Quit"), tr("Quit the program"));
    cmdCreateList_ = MakeButton(u"cmdCreateList"_s, tr("&Create List"),
                                tr("Search the folders and write the list"), tr("Create list"));
    cmdCreateList_->setDefault(true); // appearance only: Enter is handled by returnPressed()
    connect(cmdOptions_, &QPushButton::clicked, this, &frmMain::OptionsRequested);
    connect(cmdAbout_, &QPushButton::clicked, this, &frmMain::ShowAbout);
    connect(cmdQuit_, &QPushButton::clicked, this, &QWidget::close);
    connect(cmdCreateList_, &QPushButton::clicked, this, &frmMain::CreateListRequested);

    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(cmdOptions_);
    layout->addWidget(cmdAbout_);
    layout->addStretch();
    layout->addWidget(cmdQuit_);
    layout->addWidget(cmdCreateList_);
    return row;
}

void frmMain::OrderControls() {
    QList<QWidget*> order{txtInputDir_,      cmdRecentFolders_,
                          cmdSelectDir_,     chkMultipleDirs_,
                          cmdSelectDirs_,    txtOutputFile_,
                          cmdRecentOutputs_, cmdSelectOutputFile_,
                          txtWindowTitle_,   cmdWindowTitlePlaceHolders_,
                          txtPageTitle_,     cmdPageTitlePlaceHolders_,
                          txtPageFooter_,    cmdPageFooterPlaceHolders_};
    order << fraResult_->Controls();
    order << cmdCreateList_ << cmdOptions_ << cmdAbout_ << cmdQuit_;
    SetTabOrders(order);
}

MainFields frmMain::Fields() const {
    MainFields fields;
    fields.multipleFolders = chkMultipleDirs_->isChecked();
    fields.inputFolder = PathIn(*txtInputDir_);
    fields.outputFile = PathIn(*txtOutputFile_);
    fields.windowTitle = FromQt(txtWindowTitle_->text());
    fields.pageTitle = FromQt(txtPageTitle_->text());
    fields.pageFooter = FromQt(txtPageFooter_->text());
    return fields;
}

void frmMain::FillFields(const MainFields& fields) {
    {
        // MultipleDirsToggled() would replace the folder list in the settings by an empty one.
        const QSignalBlocker quiet(*chkMultipleDirs_);
        chkMultipleDirs_->setChecked(fields.multipleFolders);
    }
    if (!fields.multipleFolders) {
        txtInputDir_->setText(ToQt(fields.inputFolder));
    }
    txtOutputFile_->setText(ToQt(fields.outputFile));
    txtWindowTitle_->setText(ToQt(fields.windowTitle));
    txtPageTitle_->setText(ToQt(fields.pageTitle));
    txtPageFooter_->setText(ToQt(fields.pageFooter));
    saved_ = application_.settings;
    UpdateFolderControls();
    FollowSettings();
}

QLineEdit& frmMain::Field(MainField field) const {
    return field == MainField::InputFolder ? *txtInputDir_ : *txtOutputFile_;
}

void frmMain::RememberPaths() {
    const MainFields fields = Fields();
    if (!fields.multipleFolders) {
        cmdRecentFolders_->Add(fields.inputFolder);
    }
    cmdRecentOutputs_->Add(fields.outputFile);
}

void frmMain::ShowResult(const RunOutcome& outcome) {
    if (outcome.end != RunEnd::NotStarted) {
        RememberPaths();
    }
    fraResult_->ShowOutcome(outcome, application_.settings.Modern);
    FollowSettings(); // the run took the controls of an open options dialog
}

void frmMain::FollowSettings() {
    ShowOutputHint();
    ShowSettingsFile();
    fraResult_->FollowModern(application_.settings.Modern);
}

void frmMain::OpenResult() {
    OpenPath(fraResult_->Outcome().file, application_, ui_, *this);
}

void frmMain::ShowResultFolder() {
    const std::filesystem::path file = fraResult_->Outcome().file;
    std::error_code error; // the current folder may be gone: the path is then tried as it is
    const std::filesystem::path absolute = std::filesystem::absolute(file, error);
    OpenPath((error ? file : absolute).parent_path().string(), application_, ui_, *this);
}

void frmMain::MultipleDirsToggled() {
    // Required: ticking the box starts with an empty list, not with the single folder. Do not "fix".
    application_.settings.Directory =
        chkMultipleDirs_->isChecked() ? std::string(kMultiFolderMark) : PathIn(*txtInputDir_);
    UpdateFolderControls();
}

void frmMain::UpdateFolderControls() {
    const bool several = chkMultipleDirs_->isChecked();
    txtInputDir_->setEnabled(!several);
    cmdRecentFolders_->Offer(!several);
    cmdSelectDir_->setEnabled(!several);
    cmdSelectDirs_->setEnabled(several);

    const std::size_t count = several ? FoldersOf(application_.settings.Directory).size() : 0;
    ShowSettingsFile();
    const QString counted = count == 1 ? tr("1 folder chosen")
                                       : tr("%1 folders chosen", nullptr, static_cast<int>(count)).arg(count);
    ShowFolderCount(several ? counted : QString());
}

void frmMain::ShowFolderCount(const QString& text) {
    const bool changed = text != lblFolderCount_->text();
    lblFolderCount_->setText(text);
    lblFolderCount_->setAccessibleName(text.isEmpty() ? tr("One folder") : text);
    if (changed) {
        Announce(*this, lblFolderCount_->accessibleName());
    }
}

void frmMain::AlignButtons() {
    const QList<QPushButton*> column{cmdSelectDir_,
                                     cmdSelectDirs_,
                                     cmdSelectOutputFile_,
                                     cmdWindowTitlePlaceHolders_,
                                     cmdPageTitlePlaceHolders_,
                                     cmdPageFooterPlaceHolders_};
    int width = 0;
    for (const QPushButton* button : column) {
        width = std::max(width, button->sizeHint().width());
    }
    for (QPushButton* button : column) {
        button->setMinimumWidth(width);
    }
}

void frmMain::BrowseFolder() {
    const auto folder = dialogs_.ChooseFolder(
        this, tr("Select a Directory"),
        tr("Select the folder that you would like Tunedex to scan for MP3 files, and click OK."),
        PathIn(*txtInputDir_));
    if (folder) {
        txtInputDir_->setText(ToQt(*folder));
    }
}

void frmMain::ChooseFolders() {
    auto* window = new frmDirSelection(application_, ui_, dialogs_, this);
    connect(window, &QDialog::finished, this, &frmMain::UpdateFolderControls);
    ShowModal(window);
}

void frmMain::TakeDroppedFolders(const std::vector<std::string>& folders) {
    if (!chkMultipleDirs_->isChecked() && folders.size() == 1) {
        txtInputDir_->setText(ToQt(folders.front()));
        return;
    }
    chkMultipleDirs_->setChecked(true); // replaces a single folder by an empty list
    // The dialog's AddFolder() skips missing folders and duplicates.
    frmDirSelection list(application_, ui_, dialogs_, this);
    for (const std::string& folder : folders) {
        list.AddFolder(folder);
    }
    list.OKPressed_MakeDirs();
    UpdateFolderControls();
}

void frmMain::BrowseOutputFile() {
    const QString filters =
        tr(kOutputFilters) + (application_.settings.Modern ? tr(kModernOutputFilters) : QString());
    const auto file =
        dialogs_.ChooseFile(this, {tr("Select the Output File"), filters, PathIn(*txtOutputFile_), true});
    if (file) {
        txtOutputFile_->setText(ToQt(*file));
    }
}

void frmMain::OpenPlaceholderMenu(TitleField& field, QPushButton& button) {
    placeholderTarget_ = &field;
    mnuPlaceholders_->popup(button.mapToGlobal(QPoint(0, button.height())));
    mnuPlaceholders_->setActiveAction(mnuPlaceholders_->actions().constFirst());
}

void frmMain::OpenSettings() {
    const auto path =
        dialogs_.ChooseFile(this, {tr("Open Settings"), tr(kSettingsFilters), settingsPath_, false});
    if (path) {
        OpenSettingsFile(*path);
    }
}

void frmMain::OpenSettingsFile(const std::string& path) {
    RunOrShowError(ui_, *this, application_.errorTitle, [&] {
        const LoadOutcome outcome = LoadSettings(application_.settings, path, application_.programFolder,
                                                 DefaultSettings(), application_.faults);
        if (outcome == LoadOutcome::Missing) {
            ui_.ShowMessage(*this, tr("The specified settings file\r\ndoes not exist!"), kOkExclamation,
                            ToQt(application_.errorTitle));
            return;
        }
        settingsPath_ = path;
        ui_.FillFields(FieldsFor(application_.settings));
    });
}

void frmMain::OpenTheme(const std::string& path) {
    RunOrShowError(ui_, *this, application_.errorTitle, [&] {
        const LoadOutcome outcome =
            LoadThemeFile(application_.settings, path, application_.programFolder, application_.faults);
        if (outcome == LoadOutcome::Missing) {
            throw RunTimeError(ErrorNumber::FileNotFound);
        }
        const Settings saved = saved_;
        ui_.FillFields(FieldsFor(application_.settings)); // a theme file can set them, too
        saved_ = saved;                                   // nothing has been saved
        FollowSettings();
        fraResult_->ShowNotice(tr("The next list has the look of this theme: %1")
                                   .arg(ToQtDisplay(TerminalText(FileNameOf(path, PathStyle::Native())))));
    });
}

void frmMain::OpenFile(const std::string& path) {
    if (EndsInIgnoringCase(path, ".THM")) {
        OpenTheme(path);
    } else {
        OpenSettingsFile(path);
    }
}

void frmMain::SaveSettings() {
    SaveSettingsTo(settingsPath_);
}

void frmMain::SaveSettingsAs() {
    const auto path =
        dialogs_.ChooseFile(this, {tr("Save Settings As"), tr(kSettingsFilters), settingsPath_, true});
    if (path) {
        SaveSettingsTo(*path);
    }
}

void frmMain::SaveSettingsTo(const std::string& path) {
    RunOrShowError(ui_, *this, application_.errorTitle, [&] {
        ui_.TakeControls(application_.settings);
        const std::string unsaved = SaveSettingsCommand(application_, path);
        settingsPath_ = path.empty() ? path : SettingsPath(path, application_.programFolder);
        NoteSaved(settingsPath_);
        if (!unsaved.empty()) {
            ui_.ShowMessage(*this, unsaved, kOkExclamation, kUnsavedSettingsTitle);
        }
    });
}

void frmMain::NoteSaved(const std::string& path) {
    if (path == settingsPath_) {
        saved_ = application_.settings;
    }
    ShowSettingsFile();
    fraResult_->ShowNotice(
        tr("Saved to %1.").arg(ToQtDisplay(TerminalText(SettingsPath(path, application_.programFolder)))));
}

void frmMain::ShowHelp() {
    OpenHelp(application_, ui_, *this);
}

void frmMain::ShowTipOfTheDay() {
    auto* window = new frmTip(application_, ui_, this);
    window->LoadTips();
    window->DoRandomTip();
    ShowModal(window);
}

void frmMain::ShowAbout() {
    ShowModal(new frmAbout(application_, ui_, this));
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (!isEnabled()) { // the progress window is open
        event->ignore();
        return;
    }
    if (application_.settings.ConfirmQuit) {
        const int answer = ui_.ShowMessage(*this, tr("Do you really want\r\nto quit Tunedex?"),
                                           kOkCancelQuestion, tr("Quit?"));
        if (answer == kAnswerCancel) {
            event->ignore();
            return;
        }
    }
    SaveWindowGeometry(*this);
    event->accept();
    emit Closed();
}

} // namespace tunedex
