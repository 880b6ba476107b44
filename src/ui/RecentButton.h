// A button beside a path field whose menu offers the paths that were used last.
#pragma once

#include "RecentPaths.h"

#include <QToolButton>

class QLineEdit;
class QMenu;

namespace tunedex {

class RecentButton final : public QToolButton {
    Q_OBJECT

  public:
    // Choosing a path fills `field`. Alt+Down in the field opens the menu.
    RecentButton(const QString& objectName, const QString& accessibleName, QLineEdit& field,
                 RecentPaths paths);

    void Add(const std::string& path);
    // Enables the button if there are paths; disables it otherwise.
    void Offer(bool offered);

  private:
    void FillMenu();
    void ShowState();

    QLineEdit& field_;
    RecentPaths paths_;
    QMenu* menu_;
    bool offered_ = true;
};

} // namespace tunedex
