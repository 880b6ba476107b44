// Opens the help and the product's addresses in other programs.
#pragma once

#include "Application.h"
#include "WindowInterface.h"

#include <QString>

class QWidget;

namespace tunedex {

// Opens the help file in the user's browser. A failure is shown in a message box owned by `owner`.
void OpenHelp(const Application& application, WindowInterface& ui, QWidget& owner);
// Opens an address with the desktop's handler. A failure is shown in a message box owned by `owner`.
void OpenAddress(const QString& address, const Application& application, WindowInterface& ui, QWidget& owner);

} // namespace tunedex
