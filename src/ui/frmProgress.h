// The progress window of a run. While it exists the main window is disabled.
#pragma once

#include <QDialog>
#include <QPointer>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tunedex {

class frmProgress final : public QDialog {
    Q_OBJECT

  public:
    explicit frmProgress(QWidget& mainWindow);
    ~frmProgress() override;

    // While a run is under way, closing the window asks the run to stop; afterwards it closes the window.
    void SetRunning(bool running) { running_ = running; }

    // Shown at once, without a turn of the event loop.
    void Display(const QString& status, int maximum, int position);

    void reject() override;

  signals:
    void AbortPressed();
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QWidget& mainWindow_;
    QPointer<QWidget> focusBefore_;
    QLabel* lblStatus_;
    QProgressBar* progressBar_;
    QPushButton* cmdAbort_;
    bool running_ = false;
};

} // namespace tunedex
