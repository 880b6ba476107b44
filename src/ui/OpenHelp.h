// Opens the help, lists and the product's addresses in other programs.
#pragma once

#include "Application.h"
#include "WindowInterface.h"

#include <QString>

#include <string>

class QWidget;

namespace tunedex {

// Opens the help file in the user's browser. A failure is shown in a message box owned by `owner`.
void OpenHelp(const Application& application, WindowInterface& ui, QWidget& owner);
// Opens a file or folder with the desktop's handler. The path may contain stray bytes. A failure is shown in
// a message box owned by `owner`.
void OpenPath(const std::string& path, const Application& application, WindowInterface& ui, QWidget& owner);
// Opens an address with the desktop's handler. A failure is shown in a message box owned by `owner`.
void OpenAddress(const QString& address, const Application& application, WindowInterface& ui, QWidget& owner);

} // namespace tunedex
