// The windowed front end: implements UserInterface with the main window, the dialogs and the progress window.
#pragma once

#include "Application.h"
#include "Dialogs.h"
#include "ProgressMonitor.h"
#include "RunOutcome.h"
#include "WindowInterface.h"
#include "frmMain.h"

#include <QPointer>

#include <memory>

namespace tunedex {

class frmOptions;
class frmProgress;

class WindowsFrontEnd final : public WindowInterface {
  public:
    WindowsFrontEnd(Application& application, Dialogs& dialogs);
    ~WindowsFrontEnd() override;

    frmMain& MainWindow() { return main_; }
    // The main window's Create List command. Does nothing while a run is active.
    RunOutcome CreateList();

    MainFields Fields() const override;
    void FillFields(const MainFields& fields) override;
    void TakeControls(Settings& settings) override;
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override;
    int ShowMessage(QWidget& owner, std::string_view text, int buttons, std::string_view title) override;
    void ShowReport(std::string_view text, std::string_view title) override;
    void FocusAndSelect(MainField field) override;
    void EnableWindows() override;
    RunMonitor& ShowProgress() override;
    void SetProgressCaption(std::string_view caption) override;
    void CloseProgress() override;

    // Shows the options dialog, which is not modal.
    void OpenOptions();
    // Null while the options dialog is closed.
    frmOptions* Options() const;

  private:
    void CloseOptions();
    void SwitchModernOn();

    Application& application_;
    Dialogs& dialogs_;
    ProgressMonitor monitor_;
    frmMain main_;
    QPointer<frmOptions> options_;
    std::unique_ptr<frmProgress> progress_; // null while the window is closed
    bool running_ = false;
    bool reportsDeclined_ = false; // for the rest of the run
};

} // namespace tunedex
