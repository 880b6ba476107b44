// A text field that placeholders are inserted into, at the caret that it had when the focus left it.
#pragma once

#include <QLineEdit>

namespace tunedex {

class TitleField final : public QLineEdit {
    Q_OBJECT

  public:
    TitleField(const QString& objectName, const QString& accessibleName, const QString& description);

    // Inserts the text at the caret, or in place of what the user has selected, and takes the focus. A
    // selection that only comes from entering the field by key is left alone. Undo takes the text back.
    void InsertPlaceholder(const QString& placeholder);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    // Entering by Tab or by a mnemonic selects the whole text. Replacing that selection would lose the text.
    bool selectedOnEntry_ = false;
    // The user's own selection, which the field drops when the focus moves to the Placeholders button.
    int selectionStart_ = -1;
    int selectionLength_ = 0;
};

} // namespace tunedex
