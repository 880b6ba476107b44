// A text field that placeholders are inserted into, at the caret that it had when the focus left it.
#pragma once

#include <QLineEdit>

namespace tunedex {

class TitleField final : public QLineEdit {
    Q_OBJECT

  public:
    TitleField(const QString& objectName, const QString& accessibleName, const QString& description);

    // Puts the text in the place of the selection, or at the caret, and takes the focus. Undo takes it back.
    void InsertPlaceholder(const QString& placeholder);

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    // A field drops its selection when the focus goes to the Placeholders button, so it is remembered here;
    // the one that merely comes from moving in by Tab is not the user's and would cost him the whole text.
    bool selectedByTab_ = false;
    int selectionStart_ = -1;
    int selectionLength_ = 0;
};

} // namespace tunedex
