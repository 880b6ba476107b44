// The icon of the program's windows.
#pragma once

namespace tunedex {

// Sets the icon of all windows. Requires the QApplication.
void InstallProgramIcon();

} // namespace tunedex
