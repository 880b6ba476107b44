// The progress window of a run. Disables the main window for its lifetime.
#pragma once

#include <QDialog>
#include <QPointer>
#include <QString>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tunedex {

struct ProgressState {
    QString status;
    QString details; // counts that the status does not have
    int maximum = 0; // 0: the range of the bar stays as it is
    int position = 0;
    bool busy = false; // the bar moves without a position
};

class frmProgress final : public QDialog {
    Q_OBJECT

  public:
    explicit frmProgress(QWidget& mainWindow);
    ~frmProgress() override;

    // While running, a close event emits AbortPressed() and is ignored; otherwise it closes the window.
    void SetRunning(bool running) { running_ = running; }
    // The run is over, but the window stays open: says so, and a button that closes the window takes the
    // place and the focus of Abort.
    void ShowOver();

    // Repaints at once, without the event loop.
    void Display(const ProgressState& state);

    void reject() override;

  signals:
    void AbortPressed();
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    int WidestStatus() const;
    void Build();

    QWidget& mainWindow_;
    QPointer<QWidget> focusBefore_;
    QLabel* lblStatus_;
    QLabel* lblDetails_;
    QLabel* lblOver_;
    QProgressBar* progressBar_;
    QPushButton* cmdAbort_;
    QPushButton* cmdClose_;
    bool running_ = false;
};

} // namespace tunedex
