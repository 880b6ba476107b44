// The progress window of a run. Disables the main window for its lifetime.
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

    // While running, a close event emits AbortPressed() and is ignored; otherwise it closes the window.
    void SetRunning(bool running) { running_ = running; }

    // Repaints at once, without the event loop. `maximum` 0 leaves the bar's range unchanged.
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
