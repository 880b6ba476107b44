// What the windows share: texts between the program and Qt, naming of controls, remembered sizes, help.
#pragma once

#include "Application.h"
#include "WindowInterface.h"

#include <QList>
#include <QString>

#include <string>
#include <string_view>

class QAbstractButton;
class QLabel;
class QLineEdit;
class QWidget;

namespace tunedex {

// A text of the program as Qt holds it, and back. Nothing is lost on the way: a stray byte b (which is no
// UTF-8, in an old file name say) becomes the lone surrogate U+DC00 + b, so a path that passes through a text
// field is the same path.
QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

// The text for the eye alone: stray bytes become U+FFFD and the message's CR LF a plain line break.
QString ToQtDisplay(std::string_view text);

// Gives a control its name in the code, the name and description that assistive technology speaks, and the
// description as its tool tip.
void NameControl(QWidget& control, const QString& objectName, const QString& accessibleName,
                 const QString& description);

// A label whose mnemonic ("&Folder:") moves the focus to the control. Owned by the layout it is put into.
QLabel* MakeLabelFor(QWidget& control, const QString& textWithMnemonic);

// A text field that takes texts of any length.
QLineEdit* MakeTextField(const QString& objectName, const QString& accessibleName,
                         const QString& description);

// Lets the help key (F1) press the window's help button. A button has a single shortcut, which stays the
// mnemonic of its caption.
void PressOnHelpKey(QWidget& window, QAbstractButton& button);

// The order in which Tab visits the controls.
void SetTabOrders(const QList<QWidget*>& controls);

// Activates the field's window, puts the focus into the field and selects its whole text.
void FocusAndSelectAll(QLineEdit& field);

// Enables or disables a control. Where that takes the focus from it, `heir` gets the focus; Qt would move it
// to the next control in the tab order, which does something else.
void EnableOrPassFocus(QWidget& control, bool enabled, QWidget& heir);

// A window's size and place from one start of the program to the next, under the window's object name. A
// window that was never shown before keeps the size it has.
void RestoreWindowGeometry(QWidget& window);
void SaveWindowGeometry(const QWidget& window);

// Gives the program's windows its icon. To be called once there is a QApplication.
void InstallProgramIcon();

// Opens the help file in the user's browser; a failure ends in a message of the window `owner`.
void OpenHelp(const Application& application, WindowInterface& ui, QWidget& owner);
// Opens an address with the program that the desktop has for it; a failure ends in a message of the window
// `owner`.
void OpenAddress(const QString& address, const Application& application, WindowInterface& ui, QWidget& owner);

} // namespace tunedex
