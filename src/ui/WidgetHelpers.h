// Shared by all windows: text conversion, named controls, saved window geometry, help.
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

// Convert UTF-8 to QString and back without loss: a byte b that is not part of valid UTF-8 (as in old file
// names) becomes the lone surrogate U+DC00 + b, so a path survives a text field.
QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

// Converts for display only: invalid bytes become U+FFFD, CR LF becomes LF.
QString ToQtDisplay(std::string_view text);

// Sets the object name, the accessible name, and the accessible description, which is also the tooltip.
void NameControl(QWidget& control, const QString& objectName, const QString& accessibleName,
                 const QString& description);

// A label whose mnemonic ("&Folder:") moves the focus to the control. The caller adds it to a layout, which
// owns it.
QLabel* MakeLabelFor(QWidget& control, const QString& textWithMnemonic);

// A text field without QLineEdit's limit of 32,767 characters.
QLineEdit* MakeTextField(const QString& objectName, const QString& accessibleName,
                         const QString& description);

// Makes the help key (F1) press the window's help button. The button's own shortcut is its mnemonic; it can
// have only one.
void PressOnHelpKey(QWidget& window, QAbstractButton& button);

// Sets the tab order of the controls.
void SetTabOrders(const QList<QWidget*>& controls);

// Activates the field's window, focuses the field and selects its whole text.
void FocusAndSelectAll(QLineEdit& field);

// Enables or disables a control. If the control loses the focus by that, focuses `heir`; Qt would focus the
// next control in the tab order, an unrelated command.
void EnableOrPassFocus(QWidget& control, bool enabled, QWidget& heir);

// Load and save a window's size and position under its object name. Without a saved geometry the window keeps
// its size.
void RestoreWindowGeometry(QWidget& window);
void SaveWindowGeometry(const QWidget& window);

// Sets the icon of all windows. Requires the QApplication.
void InstallProgramIcon();

// Opens the help file in the user's browser. A failure is shown in a message box owned by `owner`.
void OpenHelp(const Application& application, WindowInterface& ui, QWidget& owner);
// Opens an address with the desktop's handler. A failure is shown in a message box owned by `owner`.
void OpenAddress(const QString& address, const Application& application, WindowInterface& ui, QWidget& owner);

} // namespace tunedex
