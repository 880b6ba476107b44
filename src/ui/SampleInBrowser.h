// The sample listing of the layout editor in the user's browser.
#pragma once

#include "Application.h"
#include "EntityTable.h"
#include "WindowInterface.h"

class QWidget;

namespace tunedex {

// Writes the sample listing with these settings and opens it. The file is in a temporary folder, which
// remains until the program ends, since a browser may read it later. Needs a QApplication. A failure is shown
// in a message box owned by `owner`.
void OpenSampleInBrowser(const Settings& settings, const Application& application,
                         const EntityTable& entities, WindowInterface& ui, QWidget& owner);

} // namespace tunedex
