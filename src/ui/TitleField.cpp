#include "TitleField.h"

#include "WidgetHelpers.h"

#include <QFocusEvent>

#include <limits>

namespace tunedex {

TitleField::TitleField(const QString& objectName, const QString& accessibleName, const QString& description) {
    setMaxLength(std::numeric_limits<int>::max());
    NameControl(*this, objectName, accessibleName, description);
    connect(this, &QLineEdit::selectionChanged, this, [this] { selectedByTab_ = false; });
    connect(this, &QLineEdit::textChanged, this, [this] { selectionStart_ = -1; });
}

void TitleField::InsertPlaceholder(const QString& placeholder) {
    if (!hasFocus() && selectionStart_ >= 0) {
        setSelection(selectionStart_, selectionLength_);
    }
    selectionStart_ = -1;
    insert(placeholder);
    setFocus(Qt::OtherFocusReason);
}

void TitleField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
                       event->reason() == Qt::ShortcutFocusReason;
    selectedByTab_ = byKey && hasSelectedText();
}

void TitleField::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        const bool selectedByUser = hasSelectedText() && !selectedByTab_;
        selectionStart_ = selectedByUser ? selectionStart() : -1;
        selectionLength_ = selectedByUser ? static_cast<int>(selectedText().size()) : 0;
    }
    QLineEdit::focusOutEvent(event);
}

} // namespace tunedex
