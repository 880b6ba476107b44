#include "frmOptions.h"

#include "CodePageBox.h"
#include "Controls.h"
#include "ErrorMessage.h"
#include "FittingArea.h"
#include "ModernColumns.h"
#include "NumberBox.h"
#include "OpenHelp.h"
#include "OptionGroup.h"
#include "QtText.h"
#include "RunTimeError.h"
#include "Startup.h"
#include "WindowGeometry.h"
#include "frmEditLayout.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <span>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

struct Option {
    QString objectName;
    QString text;
    QString description;
};

// Numbers the options in order, from 0.
void AddOptions(OptionGroup& group, QLayout& layout, std::initializer_list<Option> options) {
    int number = 0;
    for (const Option& option : options) {
        QRadioButton* button = MakeOption(option.objectName, option.text, option.description);
        group.addButton(button, number++);
        layout.addWidget(button);
    }
}

} // namespace

frmOptions::frmOptions(Application& application, WindowInterface& ui, QWidget* parent)
    : QDialog(parent), application_(application), ui_(ui), sizeType_(new OptionGroup(this)),
      sortOrder_(new OptionGroup(this)), linkType_(new OptionGroup(this)) {
    setObjectName(u"frmOptions"_s);
    setWindowTitle(tr("Options"));

    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(BuildListGroup(), 0, 0, 1, 2);
    grid->addWidget(BuildSizeGroup(), 1, 0);
    grid->addWidget(BuildSortGroup(), 1, 1);
    grid->addWidget(BuildErrorGroup(), 2, 0);
    grid->addWidget(BuildLinkGroup(), 2, 1);
    grid->addWidget(BuildModernGroup(), 3, 0, 1, 2);
    grid->setRowStretch(4, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new FittingArea(content), 1);
    layout->addLayout(BuildButtons());
    layout->addWidget(BuildButtonHint());
    BuildMenu();
    layout->setSizeConstraint(QLayout::SetMinimumSize);

    SetTabOrder();
    LoadControls();
    RestoreWindowGeometry(*this);
}

QGroupBox* frmOptions::BuildListGroup() {
    chkRecursive_ = MakeCheckBox(u"chkRecursive"_s, tr("Search &subfolders"),
                                 tr("Also search the folders below the input folder"));
    chkSpan_ = MakeCheckBox(u"chkSpan"_s, tr("Split HTML listings into &pages"),
                            tr("Write several linked pages instead of one long page"));
    txtFilesPerPage_ =
        new NumberBox(u"txtFilesPerPage"_s, tr("Files per page"), tr("Number of MP3 files on each page"));
    connect(chkSpan_, &QCheckBox::toggled, this, &frmOptions::EnableSpanning);

    auto* group = new QGroupBox(tr("Searching and pages"));
    auto* pages = new QHBoxLayout;
    pages->addWidget(chkSpan_);
    pages->addStretch();
    pages->addWidget(MakeLabelFor(*txtFilesPerPage_, tr("&Files per page:")));
    pages->addWidget(txtFilesPerPage_);
    txtFilesPerPage_->setFixedWidth(txtFilesPerPage_->fontMetrics().horizontalAdvance(u'0') * 8 + 16);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(chkRecursive_);
    layout->addLayout(pages);
    return group;
}

QGroupBox* frmOptions::BuildSizeGroup() {
    auto* group = new QGroupBox(tr("Show file sizes in"));
    group->setObjectName(u"fraSizeOptions"_s);
    auto* layout = new QVBoxLayout;
    AddOptions(*sizeType_, *layout,
               {{u"optBytes"_s, tr("&Bytes"), tr("1,234,567 b.")},
                {u"optKilobytes"_s, tr("&Kilobytes"), tr("1,205.63 kB")},
                {u"optMegabytes"_s, tr("&Megabytes"), tr("1.18 MB")}});
    group->setLayout(layout);
    return group;
}

QGroupBox* frmOptions::BuildSortGroup() {
    fraSortOrder_ = new QGroupBox(tr("Sort by artist, album and title"));
    fraSortOrder_->setObjectName(u"fraSortOrder"_s);
    auto* layout = new QVBoxLayout;
    AddOptions(*sortOrder_, *layout,
               {{u"optNoSort"_s, tr("&No sorting"), tr("List files in the order they are found")},
                {u"optAscSort"_s, tr("&Ascending"), tr("A to Z")},
                {u"optDescSort"_s, tr("&Descending"), tr("Z to A")}});
    fraSortOrder_->setLayout(layout);
    return fraSortOrder_;
}

QGroupBox* frmOptions::BuildErrorGroup() {
    chkErrorBoxes_ = MakeCheckBox(u"chkErrorBoxes"_s, tr("Show &errors in message boxes"),
                                  tr("Show a message for each folder or file that cannot be read"));
    chkErrorLog_ =
        MakeCheckBox(u"chkErrorLog"_s, tr("&Write errors to a log file"),
                     tr("Write the errors of the latest run to Tunedex.log in the program folder"));
    chkConfirmQuit_ = MakeCheckBox(u"chkConfirmQuit"_s, tr("Ask before &quitting"),
                                   tr("Ask for confirmation before quitting"));

    auto* group = new QGroupBox(tr("Errors and questions"));
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(chkErrorBoxes_);
    layout->addWidget(chkErrorLog_);
    layout->addWidget(chkConfirmQuit_);
    return group;
}

QGroupBox* frmOptions::BuildLinkGroup() {
    chkLinks_ = MakeCheckBox(u"chkLinks"_s, tr("&Link each entry to its file"),
                             tr("Add a column with links to the MP3 files"));
    txtLinkPrefix_ = MakeTextField(u"txtLinkPrefix"_s, tr("Link prefix"),
                                   tr("Text before every link, for example file:/// or a web address"));
    KeepLeftToRight(*txtLinkPrefix_);
    connect(chkLinks_, &QCheckBox::toggled, this, &frmOptions::EnableLinks);

    auto* group = new QGroupBox(tr("Links in HTML listings"));
    group->setObjectName(u"fraLinks"_s);
    auto* options = new QHBoxLayout;
    AddOptions(*linkType_, *options,
               {{u"optNormalLinks"_s, tr("N&ormal"), tr("The full path of the file")},
                {u"optUNIXLinks"_s, tr("UN&IX style"), tr("A slash and the full path without colons")},
                {u"optRelativeLinks"_s, tr("&Relative"), tr("The path relative to the input folder")}});
    options->addStretch();
    auto* prefix = new QHBoxLayout;
    prefix->addWidget(MakeLabelFor(*txtLinkPrefix_, tr("Link prefi&x:")));
    prefix->addWidget(txtLinkPrefix_);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(chkLinks_);
    layout->addLayout(options);
    layout->addLayout(prefix);
    return group;
}

QGroupBox* frmOptions::BuildModernGroup() {
    const QString effect =
        tr("Reads tags in every encoding, skips what cannot be read, and sorts by album and track.");
    chkModern_ = MakeCheckBox(u"chkModern"_s, tr("Modern &tags and lists"), effect);
    cmbTagCodePage_ = new CodePageBox;
    NameControl(*cmbTagCodePage_, u"cmbTagCodePage"_s, tr("Code page of old tags"),
                tr("The code page of ID3v1 tags, and of ID3v2 texts that are not Unicode"));
    connect(chkModern_, &QCheckBox::toggled, this, &frmOptions::FollowModern);

    auto* group = new QGroupBox(tr("Tags and lists"));
    group->setObjectName(u"fraModern"_s);
    auto* top = new QHBoxLayout;
    top->addWidget(chkModern_);
    top->addStretch();
    top->addWidget(MakeLabelFor(*cmbTagCodePage_, tr("Code pa&ge of old tags:")));
    top->addWidget(cmbTagCodePage_);
    auto* layout = new QVBoxLayout(group);
    layout->addLayout(top);
    layout->addWidget(new QLabel(effect));
    return group;
}

QLayout* frmOptions::BuildButtons() {
    cmdEditLayout_ =
        MakeButton(u"cmdEditLayout"_s, tr("Edit la&yout..."),
                   tr("Edit columns, fonts, colours, table, document type and themes of HTML listings"));
    cmdUse_ = MakeButton(u"cmdUse"_s, tr("&Use"), tr("Apply until you quit"));
    cmdSave_ = MakeButton(u"cmdSave"_s, tr("Sa&ve"), tr("Apply, and save all settings as the default"));
    cmdCancel_ = MakeButton(u"cmdCancel"_s, tr("&Cancel"), tr("Close without changing anything"));
    cmdUse_->setDefault(true);
    connect(cmdEditLayout_, &QPushButton::clicked, this, &frmOptions::EditLayout);
    connect(cmdUse_, &QPushButton::clicked, this, &frmOptions::Use);
    connect(cmdSave_, &QPushButton::clicked, this, &frmOptions::Save);
    connect(cmdCancel_, &QPushButton::clicked, this, &QDialog::reject);

    auto* layout = new QHBoxLayout;
    layout->addWidget(cmdEditLayout_);
    layout->addStretch();
    layout->addWidget(cmdUse_);
    layout->addWidget(cmdSave_);
    layout->addWidget(cmdCancel_);
    return layout;
}

QLabel* frmOptions::BuildButtonHint() {
    auto* hint = new QLabel(tr("Use: until you quit. Save: also for the next start and unattended runs."));
    NameControl(*hint, u"lblButtonHint"_s, hint->text(), QString());
    hint->setAlignment(Qt::AlignRight);
    return hint;
}

void frmOptions::BuildMenu() {
    auto* bar = new QMenuBar;
    QAction* topics = bar->addMenu(tr("&Help"))->addAction(tr("Help &Topics"));
    topics->setObjectName(u"itmHelpTopics"_s);
    topics->setShortcut(QKeySequence::HelpContents);
    connect(topics, &QAction::triggered, this, [this] { OpenHelp(application_, ui_, *this); });
    layout()->setMenuBar(bar);
}

void frmOptions::SetTabOrder() {
    QList<QWidget*> order{chkRecursive_, chkSpan_, txtFilesPerPage_};
    for (const OptionGroup* group : {sizeType_, sortOrder_}) {
        for (QAbstractButton* option : group->buttons()) {
            order << option;
        }
    }
    order << chkErrorBoxes_ << chkErrorLog_ << chkConfirmQuit_ << chkLinks_;
    for (QAbstractButton* option : linkType_->buttons()) {
        order << option;
    }
    order << txtLinkPrefix_ << chkModern_ << cmbTagCodePage_ << cmdEditLayout_ << cmdUse_ << cmdSave_
          << cmdCancel_;
    SetTabOrders(order);
}

frmEditLayout* frmOptions::Editor() const {
    return editor_;
}

void frmOptions::LoadControls() {
    const Settings& settings = application_.settings;
    chkRecursive_->setChecked(settings.Recurse);
    chkSpan_->setChecked(settings.Spanning != 0);
    if (settings.Spanning != 0) { // Required: with 0 the box keeps its text. Do not "fix".
        txtFilesPerPage_->SetNumber(settings.Spanning);
    }
    sizeType_->Select(settings.SizeType);
    sortOrder_->Select(settings.SortOrder);
    chkErrorBoxes_->setChecked(settings.ErrorWarnings);
    chkErrorLog_->setChecked(settings.ErrorLog);
    chkConfirmQuit_->setChecked(settings.ConfirmQuit);
    chkLinks_->setChecked(settings.DoLinks);
    linkType_->Select(settings.LinkType);
    txtLinkPrefix_->setText(ToQt(settings.LinkPrefix));
    chkModern_->setChecked(settings.Modern);
    cmbTagCodePage_->Select(settings.TagCodePage);
    EnableSpanning();
    EnableLinks();
    FollowModern();
    GreyDisabledFields();
    if (editor_ != nullptr) {
        editor_->LoadControls();
    }
}

void frmOptions::EnableSpanning() {
    txtFilesPerPage_->setEnabled(chkSpan_->isChecked());
}

void frmOptions::EnableLinks() {
    const bool links = chkLinks_->isChecked();
    for (QAbstractButton* option : linkType_->buttons()) {
        option->setEnabled(links);
    }
    txtLinkPrefix_->setEnabled(links);
}

void frmOptions::SwitchModernOn() {
    chkModern_->setChecked(true);
}

void frmOptions::FollowModern() {
    const bool modern = chkModern_->isChecked();
    cmbTagCodePage_->setEnabled(modern);
    fraSortOrder_->setTitle(modern ? tr("Sort by artist, album, disc and track")
                                   : tr("Sort by artist, album and title"));
    if (editor_ != nullptr) {
        editor_->OfferModernColumns(modern);
    }
}

// Not every style greys a disabled text box, so its background is set to the button colour.
void frmOptions::GreyDisabledFields() {
    for (QLineEdit* field : {static_cast<QLineEdit*>(txtFilesPerPage_), txtLinkPrefix_}) {
        QPalette colours = field->palette();
        colours.setColor(QPalette::Disabled, QPalette::Base,
                         palette().color(QPalette::Disabled, QPalette::Button));
        field->setPalette(colours);
    }
}

void frmOptions::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && txtLinkPrefix_ != nullptr) {
        GreyDisabledFields();
    }
}

void frmOptions::closeEvent(QCloseEvent* event) {
    if (isEnabled()) {
        QDialog::closeEvent(event);
    } else {
        event->ignore(); // the layout editor is open or a run is active
    }
}

void frmOptions::done(int result) {
    if (editor_ != nullptr) {
        editor_->reject();
    }
    if (result == QDialog::Rejected) {
        DiscardModernColumns();
    }
    SaveWindowGeometry(*this);
    QDialog::done(result);
}

bool frmOptions::Validate() {
    if (!txtFilesPerPage_->isEnabled() || txtFilesPerPage_->HoldsSetting()) {
        return true;
    }
    const QString fault = txtFilesPerPage_->IsNumeric()
                              ? tr("Files per page must be between -32768 and 32767.")
                              : tr("Files per page must be a numeric value.");
    ui_.ShowMessage(*this, fault, kOkExclamation, tr("Error"));
    FocusAndSelectAll(*txtFilesPerPage_);
    return false;
}

void frmOptions::StoreOwnControls(Settings& settings) const {
    const std::int16_t spanning = chkSpan_->isChecked() ? txtFilesPerPage_->Number() : std::int16_t{0};
    settings.Recurse = chkRecursive_->isChecked();
    settings.Spanning = spanning;
    sizeType_->Store(settings.SizeType);
    sortOrder_->Store(settings.SortOrder);
    settings.ErrorWarnings = chkErrorBoxes_->isChecked();
    settings.ErrorLog = chkErrorLog_->isChecked();
    settings.ConfirmQuit = chkConfirmQuit_->isChecked();
    settings.DoLinks = chkLinks_->isChecked();
    // Required: stored even if links are off. Do not "fix".
    linkType_->Store(settings.LinkType);
    settings.LinkPrefix = FromQt(txtLinkPrefix_->text());
    StoreModern(settings);
}

// A classic list keeps the names that a hand-edited file gave it: they are removed only from lists that the
// modern editor may have filled.
void frmOptions::StoreModern(Settings& settings) const {
    const bool modern = chkModern_->isChecked();
    if (!modern && (settings.Modern || modernColumnsStored_)) {
        RemoveModernColumns(settings);
    }
    settings.Modern = modern;
    settings.TagCodePage = cmbTagCodePage_->Name();
}

// The editor stores columns at once, the tick that put modern ones on offer is discarded.
void frmOptions::DiscardModernColumns() {
    if (modernColumnsStored_ && !application_.settings.Modern) {
        RemoveModernColumns(application_.settings);
    }
}

void frmOptions::StoreControls(Settings& settings) const {
    StoreOwnControls(settings);
    if (editor_) {
        editor_->StoreRunControls(settings);
    } else {
        TakeLayoutControls(settings);
    }
}

void frmOptions::Use() {
    if (Validate()) {
        StoreOwnControls(application_.settings);
        accept();
    }
}

void frmOptions::Save() {
    if (!Validate()) {
        return;
    }
    ui_.TakeControls(application_.settings);
    const bool saved = RunOrShowError(ui_, *this, FromQt(tr("Error")), [this] {
        const std::string unsaved = SaveSettingsCommand(application_, "");
        if (!unsaved.empty()) {
            ui_.ShowMessage(*this, unsaved, kOkExclamation, kUnsavedSettingsTitle);
        }
    });
    if (saved) {
        emit DefaultsSaved();
        accept();
    }
}

void frmOptions::EditLayout() {
    editor_ = new frmEditLayout(application_, ui_, this);
    if (chkModern_->isChecked() != application_.settings.Modern) {
        editor_->OfferModernColumns(chkModern_->isChecked());
    }
    connect(editor_, &QDialog::accepted, this,
            [this] { modernColumnsStored_ = modernColumnsStored_ || chkModern_->isChecked(); });
    connect(editor_, &QDialog::finished, this, &frmOptions::ReleaseEditor);
    editor_->SetPreviewBase([this] {
        Settings settings = application_.settings;
        try {
            StoreOwnControls(settings);
        } catch (const RunTimeError&) {
            // Files per page is not a number yet; the preview ignores it.
        }
        return settings;
    });
    UpdateEnabled();
    editor_->show();
    editor_->activateWindow();
}

void frmOptions::ReleaseEditor() {
    editor_->deleteLater();
    editor_.clear();
    UpdateEnabled();
    activateWindow();
    cmdEditLayout_->setFocus();
}

void frmOptions::SetUsable(bool usable) {
    usable_ = usable;
    UpdateEnabled();
}

void frmOptions::UpdateEnabled() {
    setEnabled(usable_ && editor_ == nullptr);
    if (editor_ != nullptr) {
        editor_->setEnabled(usable_); // after the dialog: disabling a parent window disables its children
    }
}

} // namespace tunedex
