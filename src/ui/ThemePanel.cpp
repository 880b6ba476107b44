#include "ThemePanel.h"

#include "Announcement.h"
#include "Controls.h"
#include "ErrorMessage.h"
#include "FileSystem.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "Text.h"
#include "ThemeList.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <sstream>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr const char* kSaveTitle = QT_TRANSLATE_NOOP("tunedex::ThemePanel", "Save Theme");
constexpr const char* kBadName = QT_TRANSLATE_NOOP(
    "tunedex::ThemePanel", "This cannot be the name of a theme.\r\n\r\n"
                           "A name must be short enough for a file name, without a slash,\r\n"
                           "and neither \".\" nor \"..\".");

// Longest line of the text beside the commands.
constexpr int kLossWidthInCharacters = 22;

// The same on every computer and in every language.
bool IsBefore(const QString& one, const QString& other) {
    const int order = one.compare(other, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : one < other;
}

QString LoadDescription() {
    return ThemePanel::tr("Apply the selected theme's fonts, colours and table settings immediately");
}

QString ListDescription() {
    return ThemePanel::tr("Select a theme to preview it. Press Enter or double-click to load it.");
}

// For screen readers: the description and what loading discards.
void Describe(QWidget& control, const QString& description, const QString& loss) {
    control.setAccessibleDescription(loss.isEmpty() ? description
                                                    : ThemePanel::tr("%1. %2").arg(description, loss));
}

} // namespace

ThemePanel::ThemePanel(Application& application, WindowInterface& ui, const Choosers& choosers,
                       std::function<ThemeContent()> content, QWidget* parent)
    : QGroupBox(tr("Themes"), parent), application_(application), ui_(ui), choosers_(choosers),
      content_(std::move(content)), lvwThemes_(new ThemeList),
      cmdLoadTheme_(MakeButton(u"cmdLoadTheme"_s, tr("Lo&ad theme"), LoadDescription())),
      cmdSaveTheme_(MakeButton(u"cmdSaveTheme"_s, tr("&Save theme..."),
                               tr("Save the fonts, colours and table settings shown here as a theme"))),
      cmdDeleteTheme_(
          MakeButton(u"cmdDeleteTheme"_s, tr("Delete the&me..."), tr("Delete the selected theme's file"))),
      lblLoss_(new QLabel), lblThemeStatus_(new QLabel) {
    Build();
    connect(cmdLoadTheme_, &QPushButton::clicked, this, [this] { LoadTheme(SelectedTheme()); });
    connect(lvwThemes_, &ThemeList::LoadRequested, cmdLoadTheme_, &QPushButton::click);
    connect(cmdSaveTheme_, &QPushButton::clicked, this, &ThemePanel::SaveTheme);
    connect(cmdDeleteTheme_, &QPushButton::clicked, this, [this] { DeleteTheme(SelectedTheme()); });
    connect(lvwThemes_, &ThemeList::Browsed, this, &ThemePanel::Browse);
}

void ThemePanel::Build() {
    NameControl(*lvwThemes_, u"lvwThemes"_s, tr("Themes"), ListDescription());
    lvwThemes_->setMinimumHeight(lvwThemes_->fontMetrics().height() * 4);
    lblLoss_->setObjectName(u"lblThemeLoss"_s);
    lblLoss_->setWordWrap(true);
    lblLoss_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblLoss_->setFixedWidth(fontMetrics().averageCharWidth() * kLossWidthInCharacters);
    lblThemeStatus_->setObjectName(u"lblThemeStatus"_s);
    lblThemeStatus_->setTextFormat(Qt::PlainText);
    auto* about = new QLabel(tr("Themes are preset colour, font, and table settings that you can import into "
                                "your own settings.\n\nYou can also export your own settings as a theme."));
    about->setObjectName(u"lblAboutThemes"_s);
    about->setWordWrap(true);

    auto* grid = new QGridLayout;
    grid->addWidget(MakeLabelFor(*lvwThemes_, tr("Availa&ble themes:")), 0, 0);
    grid->addWidget(lvwThemes_, 1, 0, 5, 1);
    grid->addWidget(cmdLoadTheme_, 1, 1);
    grid->addWidget(lblLoss_, 2, 1);
    grid->addWidget(cmdSaveTheme_, 3, 1);
    grid->addWidget(cmdDeleteTheme_, 4, 1);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(0, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(about);
    layout->addSpacing(8);
    layout->addLayout(grid, 1);
    layout->addWidget(lblThemeStatus_);
    ShowLoss({});
}

void ThemePanel::ListThemes() {
    std::vector<std::string> found;
    Attempt([&] { found = tunedex::ListThemes(application_.programFolder); });
    QStringList names;
    std::transform(found.begin(), found.end(), std::back_inserter(names), ToQt);
    // Folders of this system have no order of their own.
    std::sort(names.begin(), names.end(), IsBefore);
    lvwThemes_->SetNames(names);
    EnableCommands();
    SetPreviewing(false);
}

void ThemePanel::Browse() {
    ShowStatus({});
    EnableCommands();
    SetPreviewing(!lvwThemes_->SelectedName().isEmpty());
}

void ThemePanel::Leave() {
    ShowStatus({});
    SetPreviewing(false);
}

void ThemePanel::SetPreviewing(bool previewing) {
    if (previewing || previewing_) { // the next theme, or the end
        previewing_ = previewing;
        emit PreviewChanged();
    }
}

std::optional<ThemePreview> ThemePanel::Preview() const {
    if (!previewing_) {
        return std::nullopt;
    }
    ThemePreview preview{lvwThemes_->SelectedName(), application_.settings};
    std::ostringstream faults; // dropped; loading reports them
    try {
        const std::string path = StoredThemePath(application_.programFolder, FromQt(preview.name));
        const bool loaded =
            FileExists(path) &&
            LoadThemeFile(preview.settings, path, application_.programFolder, faults) == LoadOutcome::Loaded;
        return loaded ? std::optional(preview) : std::nullopt;
    } catch (const RunTimeError&) {
        return std::nullopt; // loading shows the error
    }
}

void ThemePanel::ShowLoss(const QString& loss) {
    lblLoss_->setText(loss);
    lblLoss_->setVisible(!loss.isEmpty());
    Describe(*cmdLoadTheme_, LoadDescription(), loss);
    Describe(*lvwThemes_, ListDescription(), loss);
}

void ThemePanel::ShowStatus(const QString& text) {
    lblThemeStatus_->setText(text);
    Announce(*this, text);
}

void ThemePanel::EnableCommands() {
    const bool selected = !lvwThemes_->SelectedName().isEmpty();
    EnableOrPassFocus(*cmdLoadTheme_, selected, *lvwThemes_);
    EnableOrPassFocus(*cmdDeleteTheme_, selected, *lvwThemes_);
}

std::string ThemePanel::SelectedTheme() const {
    return FromQt(lvwThemes_->SelectedName());
}

bool ThemePanel::Attempt(const std::function<void()>& command) {
    return RunOrShowError(ui_, *window(), FromQt(tr("Error")), command);
}

void ThemePanel::LoadTheme(const std::string& name) {
    Leave();
    bool applied = false;
    Attempt([&] {
        const std::string path = StoredThemePath(application_.programFolder, name);
        applied = FileExists(path) && LoadThemeFile(application_.settings, path, application_.programFolder,
                                                    application_.faults) == LoadOutcome::Loaded;
    });
    if (applied) {
        emit ThemeLoaded();
        ShowStatus(tr("Theme loaded successfully."));
    }
}

void ThemePanel::SaveTheme() {
    Leave(); // what is saved is the layout, not the theme that was previewed
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
        ListThemes();
        lvwThemes_->SelectName(ToQt(name));
        ShowStatus(tr("Theme saved successfully."));
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
    ShowStatus({});
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
