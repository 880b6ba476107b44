// Window sizes and positions, kept from one start of the program to the next.
#pragma once

class QWidget;

namespace tunedex {

// Load and save a window's size and position under its object name. Without a saved geometry the window keeps
// its size.
void RestoreWindowGeometry(QWidget& window);
void SaveWindowGeometry(const QWidget& window);

} // namespace tunedex
