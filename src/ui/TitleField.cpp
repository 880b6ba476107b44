#include "TitleField.h"

#include "Controls.h"

#include <QFocusEvent>

#include <limits>

namespace tunedex {
namespace {

// The focus went to a menu or another window; QLineEdit keeps its selection then.
bool IsTemporary(Qt::FocusReason reason) {
    return reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason;
}

} // namespace

TitleField::TitleField(const QString& objectName, const QString& accessibleName, const QString& description) {
    setMaxLength(std::numeric_limits<int>::max());
    NameControl(*this, objectName, accessibleName, description);
    connect(this, &QLineEdit::selectionChanged, this, [this] { selectedOnEntry_ = false; });
    connect(this, &QLineEdit::textChanged, this, [this] { selectionStart_ = -1; });
}

void TitleField::InsertPlaceholder(const QString& placeholder) {
    if (selectedOnEntry_) {
        deselect();
    } else if (!hasFocus() && selectionStart_ >= 0) {
        setSelection(selectionStart_, selectionLength_);
    }
    selectionStart_ = -1;
    insert(placeholder);
    setFocus(Qt::OtherFocusReason);
}

void TitleField::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (IsTemporary(event->reason())) {
        return;
    }
    const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
                       event->reason() == Qt::ShortcutFocusReason;
    selectedOnEntry_ = byKey && hasSelectedText();
}

void TitleField::focusOutEvent(QFocusEvent* event) {
    if (!IsTemporary(event->reason())) {
        const bool selectedByUser = hasSelectedText() && !selectedOnEntry_;
        selectionStart_ = selectedByUser ? selectionStart() : -1;
        selectionLength_ = selectedByUser ? static_cast<int>(selectedText().size()) : 0;
    }
    QLineEdit::focusOutEvent(event);
}

} // namespace tunedex
