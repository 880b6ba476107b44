#include "ThemeList.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

namespace tunedex {

ThemeList::ThemeList(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    connect(this, &QListWidget::itemSelectionChanged, this, &ThemeList::Browsed);
    connect(this, &QListWidget::itemDoubleClicked, this, &ThemeList::LoadRequested);
}

void ThemeList::SetNames(const QStringList& names) {
    const QSignalBlocker quiet(*this);
    clear();
    addItems(names);
    setCurrentRow(0);
}

void ThemeList::SelectName(const QString& name) {
    const QSignalBlocker quiet(*this);
    const QList<QListWidgetItem*> items = findItems(name, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (!items.isEmpty()) {
        setCurrentItem(items.front());
    }
}

QString ThemeList::SelectedName() const {
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? QString() : selected.front()->text();
}

// Otherwise Enter would press the default button of the window.
void ThemeList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && !selectedItems().isEmpty()) {
        emit LoadRequested();
        return;
    }
    QListWidget::keyPressEvent(event);
}

// Moves the selection, not the view. Over the scroll bar the wheel scrolls as usual.
void ThemeList::wheelEvent(QWheelEvent* event) {
    wheelAngle_ += event->angleDelta().y();
    const int rows = wheelAngle_ / QWheelEvent::DefaultDeltasPerStep;
    wheelAngle_ -= rows * QWheelEvent::DefaultDeltasPerStep;
    if (rows != 0 && count() > 0) {
        setCurrentRow(std::clamp(currentRow() - rows, 0, count() - 1));
    }
    event->accept();
}

void ThemeList::mousePressEvent(QMouseEvent* event) {
    const QString before = SelectedName();
    QListWidget::mousePressEvent(event);
    if (!before.isEmpty() && SelectedName() == before) { // a change has been told
        emit Browsed();
    }
}

void ThemeList::focusInEvent(QFocusEvent* event) {
    QListWidget::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    const bool byKey =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    if (byKey && !selectedItems().isEmpty()) {
        emit Browsed();
    }
}

} // namespace tunedex
