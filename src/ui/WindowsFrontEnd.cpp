#include "WindowsFrontEnd.h"

#include "Controls.h"
#include "CoreText.h"
#include "QtText.h"
#include "Startup.h"
#include "frmEditLayout.h"
#include "frmOptions.h"
#include "frmProgress.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QWindow>

namespace tunedex {
namespace {

// The run starts after this time even if the window is not exposed.
constexpr int kLongestWaitForWindow = 500; // milliseconds

void WaitUntilExposed(const QWidget& window) {
    QElapsedTimer timer;
    timer.start();
    while (!window.windowHandle()->isExposed() && timer.elapsed() < kLongestWaitForWindow) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    }
}

// The window itself or its nearest visible parent window; null if there is none.
QWidget* VisibleOwner(QWidget* window) {
    while (window != nullptr && !window->isVisible()) {
        window = window->parentWidget() != nullptr ? window->parentWidget()->window() : nullptr;
    }
    return window;
}

} // namespace

WindowsFrontEnd::WindowsFrontEnd(Application& application, Dialogs& dialogs)
    : application_(application), dialogs_(dialogs), monitor_(application),
      main_(application, *this, dialogs) {
    QObject::connect(&main_, &frmMain::CreateListRequested, &main_, [this] { CreateList(); });
    QObject::connect(&main_, &frmMain::OptionsRequested, &main_, [this] { OpenOptions(); });
    QObject::connect(&main_, &frmMain::SwitchModernRequested, &main_, [this] { SwitchModernOn(); });
    QObject::connect(&main_, &frmMain::Closed, &main_, [this] { CloseOptions(); });
}

WindowsFrontEnd::~WindowsFrontEnd() = default;

RunOutcome WindowsFrontEnd::CreateList() {
    if (running_) {
        return {};
    }
    running_ = true;
    reportsDeclined_ = false;
    main_.ShowResult({});
    RunOutcome outcome = CreateListCommand(application_, *this);
    running_ = false;
    if (progress_ != nullptr) {
        progress_->ShowOver(); // the run left the window open; the user closes it
    }
    if (!application_.automaticMode) {
        main_.ShowResult(outcome);
    }
    return outcome;
}

MainFields WindowsFrontEnd::Fields() const {
    return main_.Fields();
}

void WindowsFrontEnd::FillFields(const MainFields& fields) {
    main_.FillFields(fields);
    main_.FollowSettings();
    if (options_ != nullptr) {
        options_->LoadControls();
    }
}

frmOptions* WindowsFrontEnd::Options() const {
    return options_;
}

void WindowsFrontEnd::OpenOptions() {
    if (options_ == nullptr) {
        options_ = new frmOptions(application_, *this, &main_);
        options_->setAttribute(Qt::WA_DeleteOnClose);
        QObject::connect(options_, &QDialog::finished, &main_, [this] { main_.FollowSettings(); });
        QObject::connect(options_, &frmOptions::DefaultsSaved, &main_, [this] { main_.NoteSaved(""); });
    }
    options_->show();
    QWidget* front = options_;
    if (options_->Editor() != nullptr) {
        front = options_->Editor();
    }
    front->raise();
    front->activateWindow();
}

// An open options dialog shows the setting too, and keeps what the user has changed in it.
void WindowsFrontEnd::SwitchModernOn() {
    application_.settings.Modern = true;
    if (options_ != nullptr) {
        options_->SwitchModernOn();
    }
    main_.FollowSettings();
}

// reject(), not close(): QCoreApplication::quit() fails if any window ignores its close event, and the
// options do so while the editor is open.
void WindowsFrontEnd::CloseOptions() {
    if (options_ != nullptr) {
        options_->reject();
    }
}

void WindowsFrontEnd::TakeControls(Settings& settings) {
    TakeMainFields(settings, Fields());
    if (options_ != nullptr) {
        options_->StoreControls(settings);
    } else {
        TakeLayoutControls(settings);
    }
}

int WindowsFrontEnd::ShowMessage(std::string_view text, int buttons, std::string_view title) {
    return ShowMessage(main_, text, buttons, title);
}

int WindowsFrontEnd::ShowMessage(QWidget& owner, std::string_view text, int buttons, std::string_view title) {
    return dialogs_.ShowMessage(VisibleOwner(&owner), ShownText(text), buttons, ShownText(title));
}

void WindowsFrontEnd::ShowReport(std::string_view text, std::string_view title) {
    if (!reportsDeclined_) {
        reportsDeclined_ = !dialogs_.ShowReport(VisibleOwner(&main_), ShownText(text), ShownText(title));
    }
}

void WindowsFrontEnd::FocusAndSelect(MainField field) {
    FocusAndSelectAll(main_.Field(field));
}

void WindowsFrontEnd::EnableWindows() {
    main_.setEnabled(true);
    if (options_ != nullptr) {
        options_->SetUsable(true);
    }
}

RunMonitor& WindowsFrontEnd::ShowProgress() {
    CloseProgress();
    progress_ = std::make_unique<frmProgress>(main_);
    if (options_ != nullptr) {
        options_->SetUsable(false); // frmProgress disables the main window only
    }
    progress_->SetRunning(running_);
    QObject::connect(progress_.get(), &frmProgress::AbortPressed, &main_,
                     [this] { application_.abortRequested = true; });
    QObject::connect(progress_.get(), &frmProgress::Closed, &main_, [this] {
        monitor_.SetWindow(nullptr);
        progress_.release()->deleteLater(); // called from its closeEvent()
        EnableWindows();
    });
    monitor_.SetWindow(progress_.get());
    progress_->show();
    WaitUntilExposed(*progress_);
    return monitor_;
}

void WindowsFrontEnd::SetProgressCaption(std::string_view caption) {
    if (progress_ != nullptr) {
        progress_->setWindowTitle(ShownText(caption));
    }
}

void WindowsFrontEnd::CloseProgress() {
    monitor_.SetWindow(nullptr);
    if (progress_ != nullptr) {
        progress_.reset();
        EnableWindows();
    }
}

} // namespace tunedex
