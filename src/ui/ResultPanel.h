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

    // Shows the outcome and announces it to assistive technology. Hides the panel if the run did not start.
    // `modern` is the present setting; the outcome has the run's.
    void ShowOutcome(const RunOutcome& outcome, bool modern);
    // Adds a line to the outcome, in the place of an earlier one, until the next outcome.
    void ShowNotice(const QString& notice);
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
    QString Text() const;
    void ShowText();
    void ShowControl(QWidget& control, bool shown);

    Locale locale_;
    RunOutcome outcome_;
    bool modern_ = false;
    QString notice_;
    QLabel* lblResult_;
    QPushButton* cmdOpenResult_ = nullptr;
    QPushButton* cmdShowFolder_ = nullptr;
    QPushButton* cmdSwitchModern_ = nullptr;
};

} // namespace tunedex
