// Controls of the windows: creation with object names and accessible names, tab order, focus.
#pragma once

#include <QList>
#include <QString>

class QAbstractButton;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QWidget;

namespace tunedex {

// Sets the object name, the accessible name, and the accessible description, which is also the tooltip.
void NameControl(QWidget& control, const QString& objectName, const QString& accessibleName,
                 const QString& description);

// A caption ("&Size...") without mnemonic and ellipsis, as a screen reader speaks it.
QString SpokenText(const QString& textWithMnemonic);

// The object name of an element of a control array: "txtColour(3)".
QString ArrayName(const QString& objectName, int index);

// The Make functions return controls without a parent; the layout that they are added to takes ownership.

// Paths, colours and numbers read from left to right in every language.
void KeepLeftToRight(QWidget& control);

// A label whose mnemonic ("&Folder:") moves the focus to the control. It is enabled when the control is.
QLabel* MakeLabelFor(QWidget& control, const QString& textWithMnemonic);

// A text field without QLineEdit's limit of 32,767 characters.
QLineEdit* MakeTextField(const QString& objectName, const QString& accessibleName,
                         const QString& description);

// The accessible name is the spoken form of the caption.
QCheckBox* MakeCheckBox(const QString& objectName, const QString& textWithMnemonic,
                        const QString& description);
QRadioButton* MakeOption(const QString& objectName, const QString& textWithMnemonic,
                         const QString& description);
// Not an auto-default button: Enter presses it only if it is the window's default.
// An empty `accessibleName` means the spoken form of the caption.
QPushButton* MakeButton(const QString& objectName, const QString& textWithMnemonic,
                        const QString& description, const QString& accessibleName = {});

// Sets the tab order of the controls.
void SetTabOrders(const QList<QWidget*>& controls);

// Makes the help key (F1) press the window's help button. The button's own shortcut is its mnemonic; it can
// have only one.
void PressOnHelpKey(QWidget& window, QAbstractButton& button);

// Activates the field's window, focuses the field and selects its whole text.
void FocusAndSelectAll(QLineEdit& field);

// Enables or disables a control. If the control loses the focus by that, focuses `heir`; Qt would focus the
// next control in the tab order, an unrelated command.
void EnableOrPassFocus(QWidget& control, bool enabled, QWidget& heir);

} // namespace tunedex
