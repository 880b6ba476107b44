#include "frmDirSelection.h"

#include "Announcement.h"
#include "Controls.h"
#include "ErrorMessage.h"
#include "FileSystem.h"
#include "FolderDrop.h"
#include "FolderSetting.h"
#include "OpenHelp.h"
#include "Path.h"
#include "QtText.h"
#include "Text.h"
#include "WindowGeometry.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

constexpr int kListWidthInCharacters = 60;

} // namespace

frmDirSelection::frmDirSelection(Application& application, WindowInterface& ui, Dialogs& dialogs,
                                 QWidget* parent)
    : QDialog(parent), application_(application), ui_(ui), dialogs_(dialogs), lvwDirs_(new QTreeWidget),
      lblNumOfDirs_(new QLabel) {
    setObjectName(u"frmDirSelection"_s);
    setWindowTitle(tr("Folders to Search"));
    setSizeGripEnabled(true);
    NameControl(*lblNumOfDirs_, u"lblNumOfDirs"_s, QString(), QString());
    BuildList();
    auto* caption = MakeLabelFor(*lvwDirs_, tr("&Folders, in search order:"));
    caption->setObjectName(u"Label1"_s);

    auto* top = new QHBoxLayout;
    top->addWidget(lvwDirs_, 1);
    top->addWidget(BuildButtons());
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addLayout(top, 1);
    layout->addWidget(lblNumOfDirs_);
    layout->addWidget(BuildBottomRow());

    for (const std::string& folder : FoldersOf(application_.settings.Directory)) {
        new QTreeWidgetItem(lvwDirs_, {ToQt(folder)});
        lastFolder_ = folder;
    }
    connect(lvwDirs_, &QTreeWidget::itemSelectionChanged, this, &frmDirSelection::UpdateState);
    SelectRow(0);
    UpdateState();
    RestoreWindowGeometry(*this);
    if (lvwDirs_->topLevelItemCount() == 0) {
        cmdAdd_->setFocus();
    } else {
        lvwDirs_->setFocus();
    }
}

void frmDirSelection::BuildList() {
    NameControl(*lvwDirs_, u"lvwDirs"_s, tr("Folders"),
                tr("The folders to search, in order. Folders can be dropped here."));
    KeepLeftToRight(*lvwDirs_);
    lvwDirs_->setColumnCount(1);
    lvwDirs_->setHeaderHidden(true);
    lvwDirs_->setRootIsDecorated(false);
    lvwDirs_->setUniformRowHeights(true);
    lvwDirs_->setAlternatingRowColors(true);
    lvwDirs_->setTextElideMode(Qt::ElideNone); // long paths scroll horizontally
    lvwDirs_->setTabKeyNavigation(false);
    lvwDirs_->setMinimumWidth(fontMetrics().averageCharWidth() * kListWidthInCharacters);
    auto* remove = new QShortcut(QKeySequence::Delete, lvwDirs_);
    remove->setContext(Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, this, &frmDirSelection::Remove);
    new FolderDrop(*lvwDirs_->viewport(), [this](const std::vector<std::string>& folders) {
        for (const std::string& folder : folders) {
            AddFolder(folder);
        }
    });
    lvwDirs_->setAcceptDrops(true); // required for drags to reach the viewport
}

QPushButton* frmDirSelection::MakeCommand(const QString& objectName, const QString& caption,
                                          const QString& description, void (frmDirSelection::*command)()) {
    QPushButton* button = MakeButton(objectName, caption, description);
    connect(button, &QPushButton::clicked, this, command);
    return button;
}

QWidget* frmDirSelection::BuildButtons() {
    cmdAdd_ =
        MakeCommand(u"cmdAdd"_s, tr("&Add..."), tr("Append a folder to the list"), &frmDirSelection::Add);
    cmdAdd_->setAccessibleName(tr("Add..."));
    cmdRemove_ = MakeCommand(u"cmdRemove"_s, tr("&Remove"), tr("Remove the selected folder from the list"),
                             &frmDirSelection::Remove);
    cmdClear_ = MakeCommand(u"cmdClear"_s, tr("&Clear"), tr("Remove all folders from the list"),
                            &frmDirSelection::Clear);
    cmdTop_ = MakeCommand(u"cmdTop"_s, tr("&Top"), tr("Move the selected folder to the top"),
                          &frmDirSelection::MoveTop);
    cmdUp_ = MakeCommand(u"cmdUp"_s, tr("&Up"), tr("Move the selected folder one row up"),
                         &frmDirSelection::MoveUp);
    cmdDown_ = MakeCommand(u"cmdDown"_s, tr("&Down"), tr("Move the selected folder one row down"),
                           &frmDirSelection::MoveDown);
    cmdBottom_ = MakeCommand(u"cmdBottom"_s, tr("&Bottom"), tr("Move the selected folder to the bottom"),
                             &frmDirSelection::MoveBottom);

    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QPushButton* button : {cmdAdd_, cmdRemove_, cmdClear_}) {
        layout->addWidget(button);
    }
    layout->addSpacing(fontMetrics().height());
    for (QPushButton* button : {cmdTop_, cmdUp_, cmdDown_, cmdBottom_}) {
        layout->addWidget(button);
    }
    layout->addStretch();
    return panel;
}

QWidget* frmDirSelection::BuildBottomRow() {
    auto* cmdHelp = MakeCommand(u"cmdHelp"_s, tr("&Help"), tr("Open the help file"), &frmDirSelection::Help);
    PressOnHelpKey(*this, *cmdHelp);
    auto* cmdOK =
        MakeCommand(u"cmdOK"_s, tr("&OK"), tr("Use this list and close the window"), &frmDirSelection::Use);
    cmdOK->setDefault(true);
    auto* cmdCancel = MakeCommand(u"cmdCancel"_s, tr("Cance&l"),
                                  tr("Close the window without using this list"), &frmDirSelection::reject);

    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(cmdHelp);
    layout->addStretch();
    layout->addWidget(cmdOK);
    layout->addWidget(cmdCancel);
    return row;
}

void frmDirSelection::OKPressed_MakeDirs() {
    const std::vector<std::string> rows = Rows();
    if (!rows.empty()) { // Required: OK on an empty list keeps the previous folders. Do not "fix".
        application_.settings.Directory = MultiFolderValue(rows);
    }
}

void frmDirSelection::AddFolder(const std::string& folder) {
    bool exists = false;
    RunOrShowError(ui_, *this, application_.errorTitle, [&] { exists = FolderExists(folder); });
    if (!exists) {
        return;
    }
    const std::vector<std::string> rows = Rows();
    const std::string upper = UpperCase(folder);
    if (std::any_of(rows.begin(), rows.end(),
                    [&](const std::string& row) { return UpperCase(row) == upper; })) {
        return;
    }
    new QTreeWidgetItem(lvwDirs_, {ToQt(folder)});
    lastFolder_ = folder;
    SelectRow(lvwDirs_->topLevelItemCount() - 1);
    UpdateState();
}

void frmDirSelection::Add() {
    const PathStyle style = PathStyle::Native();
    // The next folder is most likely beside the last one.
    const std::string start(FolderPathOf(WithoutSeparator(lastFolder_, style), style));
    for (const std::string& folder : dialogs_.ChooseFolders(
             this, tr("Select a Directory"),
             tr("Select a folder that you would like Tunedex to scan for MP3 files, and click OK."), start)) {
        AddFolder(folder);
    }
}

void frmDirSelection::Remove() {
    const int row = SelectedRow();
    if (row < 0) {
        return;
    }
    delete lvwDirs_->takeTopLevelItem(row);
    SelectRow(std::min(row, lvwDirs_->topLevelItemCount() - 1));
    UpdateState();
}

void frmDirSelection::Clear() {
    if (lvwDirs_->topLevelItemCount() == 0) {
        return;
    }
    const int answer = ui_.ShowMessage(*this, tr("Are you sure you want\r\nto clear the list?"),
                                       kOkCancelQuestion, tr("Clear Directories?"));
    if (answer != kAnswerCancel) {
        lvwDirs_->clear();
        UpdateState();
    }
}

void frmDirSelection::MoveTop() {
    const int selected = SelectedRow();
    if (selected <= 0) {
        return;
    }
    for (int row = selected; row > 0; --row) {
        ExchangeTexts(row, row - 1);
    }
    SelectRow(0);
}

void frmDirSelection::MoveUp() {
    const int selected = SelectedRow();
    if (selected > 0) {
        ExchangeTexts(selected, selected - 1);
        SelectRow(selected - 1);
    }
}

void frmDirSelection::MoveDown() {
    const int selected = SelectedRow();
    if (selected >= 0 && selected < lvwDirs_->topLevelItemCount() - 1) {
        ExchangeTexts(selected, selected + 1);
        SelectRow(selected + 1);
    }
}

void frmDirSelection::MoveBottom() {
    const int selected = SelectedRow();
    const int last = lvwDirs_->topLevelItemCount() - 1;
    if (selected < 0 || selected == last) {
        return;
    }
    for (int row = selected; row < last; ++row) {
        ExchangeTexts(row, row + 1);
    }
    SelectRow(last);
}

void frmDirSelection::Help() {
    OpenHelp(application_, ui_, *this);
}

void frmDirSelection::Use() {
    OKPressed_MakeDirs();
    accept();
}

void frmDirSelection::done(int result) {
    SaveWindowGeometry(*this);
    QDialog::done(result);
}

std::vector<std::string> frmDirSelection::Rows() const {
    std::vector<std::string> rows;
    rows.reserve(static_cast<std::size_t>(lvwDirs_->topLevelItemCount()));
    for (int i = 0; i < lvwDirs_->topLevelItemCount(); ++i) {
        rows.push_back(FromQt(lvwDirs_->topLevelItem(i)->text(0)));
    }
    return rows;
}

int frmDirSelection::SelectedRow() const {
    const QList<QTreeWidgetItem*> selected = lvwDirs_->selectedItems();
    return selected.isEmpty() ? -1 : lvwDirs_->indexOfTopLevelItem(selected.first());
}

void frmDirSelection::SelectRow(int row) {
    if (row >= 0 && row < lvwDirs_->topLevelItemCount()) {
        lvwDirs_->setCurrentItem(lvwDirs_->topLevelItem(row));
    }
}

// Required: moves exchange the texts of rows; only the selection follows the folder.
void frmDirSelection::ExchangeTexts(int row, int otherRow) {
    QTreeWidgetItem* one = lvwDirs_->topLevelItem(row);
    QTreeWidgetItem* other = lvwDirs_->topLevelItem(otherRow);
    const QString text = one->text(0);
    one->setText(0, other->text(0));
    other->setText(0, text);
}

// Makes the column at least as wide as the list and as its longest folder.
void frmDirSelection::FitColumn() {
    int widest = 0;
    for (int row = 0; row < lvwDirs_->topLevelItemCount(); ++row) {
        const QModelIndex index = lvwDirs_->model()->index(row, 0);
        widest = std::max(widest, lvwDirs_->sizeHintForIndex(index).width());
    }
    lvwDirs_->header()->setMinimumSectionSize(widest);
    lvwDirs_->header()->resizeSection(0, widest);
}

// Screen readers announce a new count.
void frmDirSelection::ShowCount(const QString& text) {
    const bool changed = text != lblNumOfDirs_->text();
    lblNumOfDirs_->setText(text);
    if (changed) {
        Announce(*this, text);
    }
}

void frmDirSelection::UpdateState() {
    const int count = lvwDirs_->topLevelItemCount();
    const int selected = SelectedRow();
    FitColumn();
    ShowCount(count == 1 ? tr("1 folder") : tr("%1 folders", nullptr, count).arg(count));

    const QWidget* focus = focusWidget();
    cmdRemove_->setEnabled(selected >= 0);
    cmdClear_->setEnabled(count > 0);
    cmdTop_->setEnabled(selected > 0);
    cmdUp_->setEnabled(selected > 0);
    cmdDown_->setEnabled(selected >= 0 && selected < count - 1);
    cmdBottom_->setEnabled(selected >= 0 && selected < count - 1);
    if (focus != nullptr && !focus->isEnabled()) {
        (count > 0 ? static_cast<QWidget*>(lvwDirs_) : cmdAdd_)->setFocus();
    }
}

} // namespace tunedex
