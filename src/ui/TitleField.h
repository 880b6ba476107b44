// A text field for a title, with placeholders inserted at the caret position it had when it lost the focus.
#pragma once

#include <QLineEdit>

namespace tunedex {

class TitleField final : public QLineEdit {
    Q_OBJECT

  public:
    TitleField(const QString& objectName, const QString& accessibleName, const QString& description);

    // Inserts the text at the caret, or replaces the user's selection, and takes the focus. Does not replace
    // a selection that Qt made when the field was entered by key. Undo removes the text.
    void InsertPlaceholder(const QString& placeholder);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    // Qt selects the whole text on entry by Tab or mnemonic. Replacing that selection would lose the text.
    bool selectedOnEntry_ = false;
    // The user's selection, which QLineEdit drops when the focus moves to the Insert button; -1 for none.
    int selectionStart_ = -1;
    int selectionLength_ = 0;
};

} // namespace tunedex
