// A list of column names in display order, from which columns can be dragged to a place in a list of the same
// window.
#pragma once

#include <QListWidget>

#include <memory>
#include <string>
#include <string_view>

namespace tunedex {

class ColumnList : public QListWidget {
    Q_OBJECT

  public:
    explicit ColumnList(QWidget* parent = nullptr);

    // The column names joined by "|". The empty text stands for the empty list.
    void SetColumns(std::string_view joined);
    std::string Columns() const;

    bool HoldsColumn(std::string_view name) const;

    // -1 when no column is selected. (A list that got the focus has a current row, but that row need not be
    // selected.)
    int SelectedRow() const;
    void SelectRow(int row);

    // What a drag of that row carries; other windows and programs take nothing of it.
    std::unique_ptr<QMimeData> DragData(int row);

  signals:
    // A column of `source` was dropped here, in front of the item that is at `row` now; the end is `row` =
    // count(). Nothing has moved yet.
    void ColumnDropped(tunedex::ColumnList* source, int sourceRow, int row);

  protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    int DropRow(const QDropEvent& event) const;
};

// Moves one column within a list or from one list to another and selects it there. `targetRow` is counted
// before the move, as ColumnDropped counts it.
void MoveColumn(ColumnList& source, int sourceRow, ColumnList& target, int targetRow);

} // namespace tunedex
