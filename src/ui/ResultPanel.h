// The result of the latest run in the main window: what was written, and what to do with it.
#pragma once

#include "Locale.h"
#include "RunOutcome.h"

#include <QGroupBox>

class QLabel;
class QPushButton;

namespace tunedex {

class ResultPanel : public QGroupBox {
    Q_OBJECT

  public:
    explicit ResultPanel(Locale locale, QWidget* parent = nullptr);

    // Shows the outcome and announces it to assistive technology. Hides the panel if nothing was written.
    // `modern` is the present setting; the outcome has the run's.
    void ShowOutcome(const RunOutcome& outcome, bool modern);
    // After a change of the setting.
    void FollowModern(bool modern);

    // In tab order.
    QList<QWidget*> Controls() const;
    const RunOutcome& Outcome() const { return outcome_; }

  signals:
    void OpenRequested();
    void FolderRequested();
    void SwitchModernRequested();

  private:
    void BuildControls();
    void ShowText(bool modern);

    Locale locale_;
    RunOutcome outcome_;
    QLabel* lblResult_;
    QPushButton* cmdOpenResult_ = nullptr;
    QPushButton* cmdShowFolder_ = nullptr;
    QPushButton* cmdSwitchModern_ = nullptr;
};

} // namespace tunedex
