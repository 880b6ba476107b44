#include "ColumnList.h"

#include "CoreText.h"
#include "QtText.h"
#include "Text.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>

namespace tunedex {
namespace {

constexpr std::string_view kColumnSeparator = "|";

// A drag from another process arrives as a plain QMimeData, so the cast in DraggedColumn() rejects it.
class ColumnMimeData : public QMimeData {
    Q_OBJECT

  public:
    ColumnMimeData(ColumnList* list, int row) : source(list), sourceRow(row) {}

    ColumnList* source;
    int sourceRow;
};

const ColumnMimeData* DraggedColumn(const QDropEvent& event, const QWidget& target) {
    const auto* data = qobject_cast<const ColumnMimeData*>(event.mimeData());
    return data != nullptr && data->source->window() == target.window() ? data : nullptr;
}

// The name in the settings is the item's data; its text is in the language of the windows.
constexpr int kNameRole = Qt::UserRole;

std::string NameOf(const QListWidgetItem& item) {
    return FromQt(item.data(kNameRole).toString());
}

QListWidgetItem* MakeItem(const std::string& name) {
    auto* item = new QListWidgetItem(ShownColumn(name));
    item->setData(kNameRole, ToQt(name));
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled);
    return item;
}

} // namespace

ColumnList::ColumnList(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setUniformItemSizes(true);
}

void ColumnList::SetColumns(std::string_view joined) {
    clear();
    for (const std::string& name : Split(joined, kColumnSeparator)) {
        addItem(MakeItem(name));
    }
}

std::string ColumnList::Columns() const {
    std::string joined;
    for (int row = 0; row < count(); ++row) {
        if (row > 0) {
            joined += kColumnSeparator;
        }
        joined += NameOf(*item(row));
    }
    return joined;
}

bool ColumnList::HoldsColumn(std::string_view name) const {
    const std::string wanted = UpperCase(name);
    for (int row = 0; row < count(); ++row) {
        if (UpperCase(NameOf(*item(row))) == wanted) {
            return true;
        }
    }
    return false;
}

int ColumnList::SelectedRow() const {
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? -1 : row(selected.front());
}

void ColumnList::SelectRow(int row) {
    setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
}

void ColumnList::startDrag(Qt::DropActions) {
    const int row = SelectedRow();
    if (row < 0) {
        return;
    }
    auto* drag = new QDrag(this);
    drag->setMimeData(DragData(row).release());
    drag->exec(Qt::MoveAction);
}

std::unique_ptr<QMimeData> ColumnList::DragData(int row) {
    auto data = std::make_unique<ColumnMimeData>(this, row);
    // The view draws its drop indicator only for the model's own format.
    const std::unique_ptr<QMimeData> items(model()->mimeData({model()->index(row, 0)}));
    for (const QString& format : items->formats()) {
        data->setData(format, items->data(format));
    }
    return data;
}

void ColumnList::dragEnterEvent(QDragEnterEvent* event) {
    if (DraggedColumn(*event, *this) != nullptr) {
        QListWidget::dragEnterEvent(event);
        event->acceptProposedAction();
    }
}

void ColumnList::dragMoveEvent(QDragMoveEvent* event) {
    if (DraggedColumn(*event, *this) != nullptr) {
        QListWidget::dragMoveEvent(event);
        event->acceptProposedAction();
    }
}

void ColumnList::dropEvent(QDropEvent* event) {
    const ColumnMimeData* dragged = DraggedColumn(*event, *this);
    if (dragged == nullptr) {
        return;
    }
    event->acceptProposedAction();
    emit ColumnDropped(dragged->source, dragged->sourceRow, DropRow(*event));
    stopAutoScroll();
    setState(NoState);
    viewport()->update();
}

int ColumnList::DropRow(const QDropEvent& event) const {
    const QPoint position = event.position().toPoint();
    const QModelIndex index = indexAt(position);
    if (!index.isValid()) {
        return count();
    }
    return index.row() + (position.y() > visualRect(index).center().y() ? 1 : 0);
}

void MoveColumn(ColumnList& source, int sourceRow, ColumnList& target, int targetRow) {
    QListWidgetItem* item = source.takeItem(sourceRow);
    if (item == nullptr) {
        return;
    }
    const int row = &source == &target && sourceRow < targetRow ? targetRow - 1 : targetRow;
    target.insertItem(row, item);
    target.SelectRow(row);
}

} // namespace tunedex

#include "ColumnList.moc"
