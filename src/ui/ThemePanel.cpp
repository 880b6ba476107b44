#include "ThemePanel.h"

#include "Controls.h"
#include "DefaultSettings.h"
#include "FileSystem.h"
#include "Functions.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "Text.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr const char* kErrorTitle = "Error";
constexpr const char* kSaveTitle = "Save Theme";
constexpr const char* kBadName = "This cannot be the name of a theme.\r\n\r\n"
                                 "A name must be short enough for a file name, without a slash,\r\n"
                                 "and neither \".\" nor \"..\".";

} // namespace

ThemePanel::ThemePanel(Application& application, WindowInterface& ui, const Choosers& choosers,
                       std::function<ThemeContent()> content, QWidget* parent)
    : QGroupBox(u"Themes"_s, parent), application_(application), ui_(ui), choosers_(choosers),
      content_(std::move(content)), lvwThemes_(new QListWidget),
      cmdLoadTheme_(
          MakeButton(u"cmdLoadTheme"_s, u"Lo&ad theme"_s,
                     u"Apply the selected theme's fonts, colours and table settings immediately"_s)),
      cmdSaveTheme_(MakeButton(u"cmdSaveTheme"_s, u"&Save theme..."_s,
                               u"Save the fonts, colours and table settings shown here as a theme"_s)),
      cmdDeleteTheme_(
          MakeButton(u"cmdDeleteTheme"_s, u"Delete the&me..."_s, u"Delete the selected theme's file"_s)),
      lblThemeStatus_(new QLabel) {
    NameControl(*lvwThemes_, u"lvwThemes"_s, u"Themes"_s, u"Double-click a theme to load it"_s);
    lvwThemes_->setMinimumHeight(lvwThemes_->fontMetrics().height() * 4);
    lblThemeStatus_->setObjectName(u"lblThemeStatus"_s);
    lblThemeStatus_->setTextFormat(Qt::PlainText);
    auto* about =
        new QLabel(u"Themes are preset colour, font, and table settings that you can import into your own "
                   "settings.\n\nYou can also export your own settings as a theme."_s);
    about->setObjectName(u"lblAboutThemes"_s);
    about->setWordWrap(true);

    auto* grid = new QGridLayout;
    grid->addWidget(MakeLabelFor(*lvwThemes_, u"Availa&ble themes:"_s), 0, 0);
    grid->addWidget(lvwThemes_, 1, 0, 4, 1);
    grid->addWidget(cmdLoadTheme_, 1, 1);
    grid->addWidget(cmdSaveTheme_, 2, 1);
    grid->addWidget(cmdDeleteTheme_, 3, 1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(0, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(about);
    layout->addSpacing(8);
    layout->addLayout(grid, 1);
    layout->addWidget(lblThemeStatus_);

    connect(cmdLoadTheme_, &QPushButton::clicked, this, [this] { LoadTheme(SelectedTheme()); });
    connect(lvwThemes_, &QListWidget::itemDoubleClicked, cmdLoadTheme_, &QPushButton::click);
    connect(cmdSaveTheme_, &QPushButton::clicked, this, &ThemePanel::SaveTheme);
    connect(cmdDeleteTheme_, &QPushButton::clicked, this, [this] { DeleteTheme(SelectedTheme()); });
    connect(lvwThemes_, &QListWidget::itemSelectionChanged, this, &ThemePanel::EnableCommands);
}

void ThemePanel::ListThemes() {
    std::vector<std::string> names;
    Attempt([&] { names = tunedex::ListThemes(application_.programFolder); });
    {
        // Otherwise EnableCommands() would run for the empty list and take the focus from a command.
        const QSignalBlocker quiet(*lvwThemes_);
        lvwThemes_->clear();
        for (const std::string& name : names) {
            lvwThemes_->addItem(ToQt(name));
        }
        if (lvwThemes_->count() > 0) {
            lvwThemes_->setCurrentRow(0);
        }
    }
    EnableCommands();
}

void ThemePanel::EnableCommands() {
    const bool selected = !lvwThemes_->selectedItems().isEmpty();
    EnableOrPassFocus(*cmdLoadTheme_, selected, *lvwThemes_);
    EnableOrPassFocus(*cmdDeleteTheme_, selected, *lvwThemes_);
}

std::string ThemePanel::SelectedTheme() const {
    const QList<QListWidgetItem*> selected = lvwThemes_->selectedItems();
    return selected.isEmpty() ? std::string() : FromQt(selected.front()->text());
}

bool ThemePanel::Attempt(const std::function<void()>& command) {
    try {
        command();
        return true;
    } catch (const RunTimeError& error) {
        ui_.ShowMessage(*window(), UnexpectedErrorText(error), kOkExclamation, kErrorTitle);
        return false;
    }
}

void ThemePanel::LoadTheme(const std::string& name) {
    bool applied = false;
    Attempt([&] {
        const std::string path = StoredThemePath(application_.programFolder, name);
        applied =
            FileExists(path) && LoadSettings(application_.settings, path, application_.programFolder,
                                             DefaultSettings(), application_.faults) == LoadOutcome::Loaded;
    });
    if (applied) {
        emit ThemeLoaded();
        lblThemeStatus_->setText(u"Theme loaded successfully."_s);
    }
}

void ThemePanel::SaveTheme() {
    const std::optional<QString> answer =
        choosers_.text(window(), QString::fromLatin1(kSaveTitle), u"Please enter a name for your theme:"_s);
    const std::string name = FromQt(answer.value_or(QString()));
    if (TrimBlanks(name).empty()) {
        return;
    }
    if (!IsThemeName(name)) {
        ui_.ShowMessage(*window(), kBadName, kOkExclamation, kErrorTitle);
        return;
    }
    // Required: the status also says "saved" after No to overwriting. Do not "fix".
    const bool saved = Attempt([&] { WriteThemeFile(StoredThemePath(application_.programFolder, name)); });
    if (saved) {
        lblThemeStatus_->setText(u"Theme saved successfully."_s);
        ListThemes();
    }
}

void ThemePanel::WriteThemeFile(const std::string& path) {
    if (FileExists(path)) {
        const int answer = ui_.ShowMessage(*window(), "This theme already exists!\r\n\r\nOverwrite?",
                                           kYesNoQuestion, kSaveTitle);
        if (answer != kAnswerYes) {
            return;
        }
    }
    const std::string folder = ThemeFolder(application_.programFolder);
    if (!FolderExists(folder)) {
        CreateFolder(folder);
    }
    tunedex::WriteThemeFile(path, content_(), StampNow(application_));
}

void ThemePanel::DeleteTheme(const std::string& name) {
    const std::string question =
        "Are you sure you want to delete\r\nthe " + name + " theme?\r\n\r\nYou cannot recover it afterwards!";
    if (ui_.ShowMessage(*window(), question, kYesNoExclamation, "Delete Theme") != kAnswerYes) {
        return;
    }
    Attempt([&] { DeleteFile(StoredThemePath(application_.programFolder, name)); });
    ListThemes();
}

} // namespace tunedex
