// A list of column names in display order. Columns can be dragged within the list and between lists of one
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

    // The column names, separated by "|". An empty text is an empty list.
    void SetColumns(std::string_view joined);
    std::string Columns() const;

    bool HoldsColumn(std::string_view name) const;

    // -1 when no column is selected. Differs from currentRow(), which is set as soon as the list gets the
    // focus.
    int SelectedRow() const;
    void SelectRow(int row);

    // The MIME data of a drag of that row. Only lists in the same window accept it.
    std::unique_ptr<QMimeData> DragData(int row);

  signals:
    // A column of `source` was dropped before the item at `row`, or at the end if `row` is count(). The
    // receiver moves the item; the list has not.
    void ColumnDropped(tunedex::ColumnList* source, int sourceRow, int row);

  protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    int DropRow(const QDropEvent& event) const;
};

// Moves a column within a list or between lists and selects it. `targetRow` is the row before the move, as in
// ColumnDropped.
void MoveColumn(ColumnList& source, int sourceRow, ColumnList& target, int targetRow);

} // namespace tunedex
