// The desktop's own folder dialog, through the portal "FileChooser" on the session bus (xdg-desktop-portal,
// version 3 or later of that interface).
#pragma once

#include <QDBusConnection>
#include <QString>

#include <optional>
#include <string>
#include <vector>

class QWidget;

namespace tunedex {

struct PortalQuestion {
    QString title;
    std::string start; // folder that the dialog shows first, native bytes
    bool several = false;
    QString parentWindow; // PortalParent(); empty: none
};

// Whether a desktop is likely to have the portal: there are a window system and a session bus. Asks nobody.
bool IsPortalLikely();

// The owner of the dialog in the portal's form, "x11:" and the number of the window; empty where there is
// none.
QString PortalParent(QWidget* owner);

// Shows the dialog, and returns when it is closed; meanwhile the windows of the program take no input. The
// folders are native bytes, none if the user cancels. No value: there is no such portal, or it failed before
// it showed the dialog.
std::optional<std::vector<std::string>> AskPortalForFolders(const QDBusConnection& bus,
                                                            const PortalQuestion& question);

} // namespace tunedex
