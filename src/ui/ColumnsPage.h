// The Columns page of the layout editor: visible columns, their order, and merging of artist, album and
// title.
#pragma once

#include "Settings.h"

#include <QFrame>

class QCheckBox;
class QLayout;
class QPushButton;

namespace tunedex {

class ColumnList;

class ColumnsPage : public QFrame {
    Q_OBJECT

  public:
    explicit ColumnsPage(QWidget* parent = nullptr);

    // Offers the columns of modern listings if the settings ask for them.
    void LoadControls(const Settings& settings);
    // Adds those that are in neither list to the hidden columns, or removes them from both lists.
    void OfferModernColumns(bool offer);
    // Stores ActiveColumns, InactiveColumns, Merge and MoveTheArtists.
    void StoreControls(Settings& settings) const;
    bool MovesTheArtists() const;

  signals:
    void Edited();

  private:
    QLayout* BuildLists();
    void BuildCommands();
    QLayout* BuildMerges();
    void SetTabOrder();

    // Moves the selected column to the end of `target` and selects its neighbour in `source`.
    void MoveSelected(ColumnList& source, ColumnList& target);
    static void MoveAll(ColumnList& source, ColumnList& target);
    void Reorder(int row);
    void Drop(ColumnList* source, int sourceRow, ColumnList* target, int row);

    void ShowColumns(const Settings& settings);
    void UpdateColumnLists();
    void EnableCommands();

    ColumnList* lstInactiveColumns_;
    ColumnList* lstActiveColumns_;
    QPushButton* cmdActive_ = nullptr;
    QPushButton* cmdInactive_ = nullptr;
    QPushButton* cmdAllActive_ = nullptr;
    QPushButton* cmdAllInactive_ = nullptr;
    QPushButton* cmdTop_ = nullptr;
    QPushButton* cmdUp_ = nullptr;
    QPushButton* cmdDown_ = nullptr;
    QPushButton* cmdBottom_ = nullptr;
    QCheckBox* chkArtistTitleMerge_ = nullptr;
    QCheckBox* chkAlbumMerge_ = nullptr;
    QCheckBox* chkTheSubstitution_ = nullptr;
    std::string activeColumns_;
    std::string inactiveColumns_;
};

} // namespace tunedex
