// The tip of the day window.
#pragma once

#include "Application.h"
#include "Tips.h"
#include "WindowInterface.h"

#include <QDialog>

#include <random>

class QCheckBox;
class QLabel;

namespace tunedex {

// Whether the window is shown at start-up.
bool TipsOnStartup(const Registry& registry);

class frmTip final : public QDialog {
    Q_OBJECT

  public:
    // Loads the tips and shows a random one if tips are shown at start-up; otherwise shows none.
    frmTip(Application& application, WindowInterface& ui, QWidget* parent);

    void LoadTips();
    void DoNextTip();
    void DoRandomTip();

    void accept() override;

  private:
    QWidget* MakeTipPanel();
    void DisplayCurrentTip();

    Application& application_;
    WindowInterface& ui_;
    Tips tips_;
    std::mt19937 generator_{std::random_device{}()};
    QLabel* lblTipText_;
    QCheckBox* chkLoadTipsAtStartup_;
};

} // namespace tunedex
