#include "ThemePanel.h"

#include "Controls.h"
#include "ErrorMessage.h"
#include "FileSystem.h"
#include "QtText.h"
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

constexpr const char* kSaveTitle = QT_TRANSLATE_NOOP("tunedex::ThemePanel", "Save Theme");
constexpr const char* kBadName = QT_TRANSLATE_NOOP(
    "tunedex::ThemePanel", "This cannot be the name of a theme.\r\n\r\n"
                           "A name must be short enough for a file name, without a slash,\r\n"
                           "and neither \".\" nor \"..\".");

} // namespace

ThemePanel::ThemePanel(Application& application, WindowInterface& ui, const Choosers& choosers,
                       std::function<ThemeContent()> content, QWidget* parent)
    : QGroupBox(tr("Themes"), parent), application_(application), ui_(ui), choosers_(choosers),
      content_(std::move(content)), lvwThemes_(new QListWidget),
      cmdLoadTheme_(
          MakeButton(u"cmdLoadTheme"_s, tr("Lo&ad theme"),
                     tr("Apply the selected theme's fonts, colours and table settings immediately"))),
      cmdSaveTheme_(MakeButton(u"cmdSaveTheme"_s, tr("&Save theme..."),
                               tr("Save the fonts, colours and table settings shown here as a theme"))),
      cmdDeleteTheme_(
          MakeButton(u"cmdDeleteTheme"_s, tr("Delete the&me..."), tr("Delete the selected theme's file"))),
      lblThemeStatus_(new QLabel) {
    NameControl(*lvwThemes_, u"lvwThemes"_s, tr("Themes"), tr("Double-click a theme to load it"));
    lvwThemes_->setMinimumHeight(lvwThemes_->fontMetrics().height() * 4);
    lblThemeStatus_->setObjectName(u"lblThemeStatus"_s);
    lblThemeStatus_->setTextFormat(Qt::PlainText);
    auto* about = new QLabel(tr("Themes are preset colour, font, and table settings that you can import into "
                                "your own settings.\n\nYou can also export your own settings as a theme."));
    about->setObjectName(u"lblAboutThemes"_s);
    about->setWordWrap(true);

    auto* grid = new QGridLayout;
    grid->addWidget(MakeLabelFor(*lvwThemes_, tr("Availa&ble themes:")), 0, 0);
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
    return RunOrShowError(ui_, *window(), FromQt(tr("Error")), command);
}

void ThemePanel::LoadTheme(const std::string& name) {
    bool applied = false;
    Attempt([&] {
        const std::string path = StoredThemePath(application_.programFolder, name);
        applied = FileExists(path) && LoadThemeFile(application_.settings, path, application_.programFolder,
                                                    application_.faults) == LoadOutcome::Loaded;
    });
    if (applied) {
        emit ThemeLoaded();
        lblThemeStatus_->setText(tr("Theme loaded successfully."));
    }
}

void ThemePanel::SaveTheme() {
    const std::optional<QString> answer =
        choosers_.text(window(), tr(kSaveTitle), tr("Please enter a name for your theme:"));
    const std::string name = FromQt(answer.value_or(QString()));
    if (TrimBlanks(name).empty()) {
        return;
    }
    if (!IsThemeName(name)) {
        ui_.ShowMessage(*window(), tr(kBadName), kOkExclamation, tr("Error"));
        return;
    }
    // Required: the status also says "saved" after No to overwriting. Do not "fix".
    const bool saved = Attempt([&] { WriteThemeFile(StoredThemePath(application_.programFolder, name)); });
    if (saved) {
        lblThemeStatus_->setText(tr("Theme saved successfully."));
        ListThemes();
    }
}

void ThemePanel::WriteThemeFile(const std::string& path) {
    if (FileExists(path)) {
        const int answer = ui_.ShowMessage(*window(), tr("This theme already exists!\r\n\r\nOverwrite?"),
                                           kYesNoQuestion, tr(kSaveTitle));
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
    const QString question = tr("Are you sure you want to delete\r\nthe %1 theme?\r\n\r\n"
                                "You cannot recover it afterwards!")
                                 .arg(ToQt(name));
    if (ui_.ShowMessage(*window(), question, kYesNoExclamation, tr("Delete Theme")) != kAnswerYes) {
        return;
    }
    Attempt([&] { DeleteFile(StoredThemePath(application_.programFolder, name)); });
    ListThemes();
}

} // namespace tunedex
