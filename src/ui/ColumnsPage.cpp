#include "ColumnsPage.h"

#include "ColumnList.h"
#include "Controls.h"
#include "ModernColumns.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

QLayout* LabelledList(ColumnList& list, const QString& label) {
    auto* layout = new QVBoxLayout;
    layout->addWidget(MakeLabelFor(list, label));
    layout->addWidget(&list);
    return layout;
}

QLayout* ColumnOf(std::initializer_list<QPushButton*> commands) {
    auto* layout = new QVBoxLayout;
    layout->addStretch();
    for (QPushButton* command : commands) {
        layout->addWidget(command);
    }
    layout->addStretch();
    return layout;
}

} // namespace

ColumnsPage::ColumnsPage(QWidget* parent)
    : QFrame(parent), lstInactiveColumns_(new ColumnList), lstActiveColumns_(new ColumnList) {
    NameControl(*lstInactiveColumns_, u"lstInactiveColumns"_s, tr("Hidden columns"),
                tr("Columns that are not listed. Double-click or drag one to show it."));
    NameControl(*lstActiveColumns_, u"lstActiveColumns"_s, tr("Shown columns, in display order"),
                tr("Double-click a column to hide it. Drag it or press Alt+Up or Alt+Down to move it."));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildLists(), 1);
    layout->addLayout(BuildMerges());
    SetTabOrder();

    for (ColumnList* list : {lstInactiveColumns_, lstActiveColumns_}) {
        connect(list, &QListWidget::itemSelectionChanged, this, &ColumnsPage::EnableCommands);
        connect(
            list, &ColumnList::ColumnDropped, this,
            [this, list](ColumnList* source, int sourceRow, int row) { Drop(source, sourceRow, list, row); });
    }
    connect(lstInactiveColumns_, &QListWidget::itemDoubleClicked, cmdActive_, &QPushButton::click);
    connect(lstActiveColumns_, &QListWidget::itemDoubleClicked, cmdInactive_, &QPushButton::click);
    const auto shortcut = [this](Qt::Key key, QPushButton* command) {
        auto* keys = new QShortcut(QKeySequence(Qt::ALT | key), lstActiveColumns_, nullptr, nullptr,
                                   Qt::WidgetShortcut);
        connect(keys, &QShortcut::activated, command, &QPushButton::click);
    };
    shortcut(Qt::Key_Up, cmdUp_);
    shortcut(Qt::Key_Down, cmdDown_);
}

QLayout* ColumnsPage::BuildLists() {
    BuildCommands();
    auto* layout = new QHBoxLayout;
    layout->addLayout(LabelledList(*lstInactiveColumns_, tr("Hidden colu&mns:")), 1);
    layout->addLayout(ColumnOf({cmdActive_, cmdInactive_, cmdAllActive_, cmdAllInactive_}));
    layout->addLayout(LabelledList(*lstActiveColumns_, tr("Shown, in this o&rder:")), 1);
    layout->addLayout(ColumnOf({cmdTop_, cmdUp_, cmdDown_, cmdBottom_}));
    return layout;
}

void ColumnsPage::BuildCommands() {
    cmdActive_ = MakeButton(u"cmdActive"_s, tr("&Show \u203A"),
                            tr("Show the selected hidden column as the last column"));
    cmdInactive_ = MakeButton(u"cmdInactive"_s, tr("\u2039 Hid&e"), tr("Hide the selected shown column"));
    cmdAllActive_ = MakeButton(u"cmdAllActive"_s, tr("Show &all \u00BB"), tr("Show every column"));
    cmdAllInactive_ = MakeButton(u"cmdAllInactive"_s, tr("\u00AB H&ide all"), tr("Hide every column"));
    cmdTop_ = MakeButton(u"cmdTop"_s, tr("To&p"), tr("Move the selected shown column to the top"));
    cmdUp_ = MakeButton(u"cmdUp"_s, tr("&Up"), tr("Move the selected shown column one place up (Alt+Up)"));
    cmdDown_ =
        MakeButton(u"cmdDown"_s, tr("Do&wn"), tr("Move the selected shown column one place down (Alt+Down)"));
    cmdBottom_ =
        MakeButton(u"cmdBottom"_s, tr("&Bottom"), tr("Move the selected shown column to the bottom"));

    connect(cmdActive_, &QPushButton::clicked, this,
            [this] { MoveSelected(*lstInactiveColumns_, *lstActiveColumns_); });
    connect(cmdInactive_, &QPushButton::clicked, this,
            [this] { MoveSelected(*lstActiveColumns_, *lstInactiveColumns_); });
    connect(cmdAllActive_, &QPushButton::clicked, this, [this] {
        MoveAll(*lstInactiveColumns_, *lstActiveColumns_);
        UpdateColumnLists();
    });
    connect(cmdAllInactive_, &QPushButton::clicked, this, [this] {
        MoveAll(*lstActiveColumns_, *lstInactiveColumns_);
        UpdateColumnLists();
    });
    connect(cmdTop_, &QPushButton::clicked, this, [this] { Reorder(0); });
    connect(cmdUp_, &QPushButton::clicked, this, [this] { Reorder(lstActiveColumns_->SelectedRow() - 1); });
    connect(cmdDown_, &QPushButton::clicked, this, [this] { Reorder(lstActiveColumns_->SelectedRow() + 1); });
    connect(cmdBottom_, &QPushButton::clicked, this, [this] { Reorder(lstActiveColumns_->count() - 1); });
}

QLayout* ColumnsPage::BuildMerges() {
    // Split literals: lupdate reads all hexadecimal digits after "\\u", not just four.
    chkArtistTitleMerge_ =
        MakeCheckBox(u"chkArtistTitleMerge"_s, tr("Mer&ge Artist and Title into one column"),
                     tr("Shows \u201C"
                        "Artist: Title\u201D. Both columns must be shown."));
    chkAlbumMerge_ = MakeCheckBox(u"chkAlbumMerge"_s, tr("Ta&ke Album into that column, too"),
                                  tr("Shows \u201C"
                                     "Artist (Album): Title\u201D. Requires Artist and Title to be merged."));
    chkTheSubstitution_ = MakeCheckBox(u"chkTheSubstitution"_s,
                                       tr("Displa&y a leading \u201CThe\u201D after the artist's name"),
                                       tr("Lists \u201CThe Band\u201D as \u201C"
                                          "Band, The\u201D, sorted under B"));
    auto* layout = new QVBoxLayout;
    for (QCheckBox* box : {chkArtistTitleMerge_, chkAlbumMerge_, chkTheSubstitution_}) {
        connect(box, &QCheckBox::toggled, this, &ColumnsPage::Edited);
        layout->addWidget(box);
    }
    return layout;
}

void ColumnsPage::SetTabOrder() {
    SetTabOrders({lstInactiveColumns_, cmdActive_, cmdInactive_, cmdAllActive_, cmdAllInactive_,
                  lstActiveColumns_, cmdTop_, cmdUp_, cmdDown_, cmdBottom_, chkArtistTitleMerge_,
                  chkAlbumMerge_, chkTheSubstitution_});
}

void ColumnsPage::LoadControls(const Settings& settings) {
    Settings offered = settings;
    if (settings.Modern) {
        tunedex::OfferModernColumns(offered);
    }
    ShowColumns(offered);
    chkArtistTitleMerge_->setChecked(settings.Merge == 1 || settings.Merge == 2);
    chkAlbumMerge_->setChecked(settings.Merge == 2);
    chkTheSubstitution_->setChecked(settings.MoveTheArtists);
    UpdateColumnLists();
}

void ColumnsPage::OfferModernColumns(bool offer) {
    Settings settings;
    StoreControls(settings);
    if (offer) {
        tunedex::OfferModernColumns(settings);
    } else {
        RemoveModernColumns(settings);
    }
    ShowColumns(settings);
    UpdateColumnLists();
}

// Keeps the selection of a list that does not change.
void ColumnsPage::ShowColumns(const Settings& settings) {
    for (const auto& [list, columns] : {std::pair(lstActiveColumns_, settings.ActiveColumns),
                                        std::pair(lstInactiveColumns_, settings.InactiveColumns)}) {
        if (list->Columns() != columns || columns.empty()) {
            list->SetColumns(columns);
        }
    }
}

void ColumnsPage::StoreControls(Settings& settings) const {
    settings.ActiveColumns = activeColumns_;
    settings.InactiveColumns = inactiveColumns_;
    settings.Merge = 0;
    if (chkArtistTitleMerge_->isChecked()) {
        settings.Merge = chkAlbumMerge_->isChecked() ? 2 : 1;
    }
    settings.MoveTheArtists = MovesTheArtists();
}

bool ColumnsPage::MovesTheArtists() const {
    return chkTheSubstitution_->isChecked();
}

void ColumnsPage::MoveSelected(ColumnList& source, ColumnList& target) {
    const int row = source.SelectedRow();
    if (row < 0) {
        return;
    }
    {
        const QSignalBlocker quiet(source);
        target.addItem(source.takeItem(row));
        if (source.count() > 0) {
            source.SelectRow(std::min(row, source.count() - 1));
        }
    }
    UpdateColumnLists();
}

void ColumnsPage::MoveAll(ColumnList& source, ColumnList& target) {
    while (source.count() > 0) {
        target.addItem(source.takeItem(0));
    }
}

void ColumnsPage::Reorder(int row) {
    ColumnList& list = *lstActiveColumns_;
    const int selected = list.SelectedRow();
    if (selected < 0 || row < 0 || row >= list.count()) {
        return;
    }
    {
        // Otherwise EnableCommands() would run while the list lacks the column.
        const QSignalBlocker quiet(list);
        MoveColumn(list, selected, list, row > selected ? row + 1 : row);
    }
    UpdateColumnLists();
}

void ColumnsPage::Drop(ColumnList* source, int sourceRow, ColumnList* target, int row) {
    MoveColumn(*source, sourceRow, *target, row);
    target->setFocus();
    UpdateColumnLists();
}

void ColumnsPage::UpdateColumnLists() {
    activeColumns_ = lstActiveColumns_->Columns();
    inactiveColumns_ = lstInactiveColumns_->Columns();
    EnableCommands();
    emit Edited();
}

void ColumnsPage::EnableCommands() {
    const int selected = lstActiveColumns_->SelectedRow();
    const int last = lstActiveColumns_->count() - 1;
    EnableOrPassFocus(*cmdActive_, lstInactiveColumns_->SelectedRow() >= 0, *lstInactiveColumns_);
    EnableOrPassFocus(*cmdAllActive_, lstInactiveColumns_->count() > 0, *lstInactiveColumns_);
    EnableOrPassFocus(*cmdInactive_, selected >= 0, *lstActiveColumns_);
    EnableOrPassFocus(*cmdAllInactive_, last >= 0, *lstActiveColumns_);
    EnableOrPassFocus(*cmdTop_, selected > 0, *lstActiveColumns_);
    EnableOrPassFocus(*cmdUp_, selected > 0, *lstActiveColumns_);
    EnableOrPassFocus(*cmdDown_, selected >= 0 && selected < last, *lstActiveColumns_);
    EnableOrPassFocus(*cmdBottom_, selected >= 0 && selected < last, *lstActiveColumns_);

    const bool mergeable =
        lstActiveColumns_->HoldsColumn("Artist") && lstActiveColumns_->HoldsColumn("Title");
    chkArtistTitleMerge_->setEnabled(mergeable);
    chkAlbumMerge_->setEnabled(mergeable);
}

} // namespace tunedex
