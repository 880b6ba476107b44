#include "RunWindows.h"

#include "Dialogs.h"
#include "Display.h"
#include "ErrorMessage.h"
#include "ExitStatus.h"
#include "Functions.h"
#include "Languages.h"
#include "ProgramIcon.h"
#include "Startup.h"
#include "WindowsFrontEnd.h"
#include "frmTip.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

// Qt calls abort() when it cannot open the display, after advice to reinstall the program. Intercepts its
// fatal message and exits with the start-up failure status.
void ReportMissingDisplay(QtMsgType type, const QMessageLogContext& /*context*/, const QString& /*message*/) {
    if (type != QtFatalMsg) {
        return; // warnings before the fatal message
    }
    std::fputs(UnusableDisplayText(DisplayVariables()).c_str(), stderr);
    std::_Exit(kExitCannotStart);
}

std::unique_ptr<QApplication> OpenDisplay(int& argc, char** argv) {
    const QtMessageHandler before = qInstallMessageHandler(ReportMissingDisplay);
    auto qtApplication = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(before);
    return qtApplication;
}

int RunUnattended(const Application& application, WindowsFrontEnd& frontEnd) {
    const RunOutcome outcome = frontEnd.CreateList();
    const std::string line = UnreadLine(outcome, application.programFolder + std::string(kLogFileName));
    if (!line.empty()) {
        std::fputs((line + "\n").c_str(), stderr);
    }
    return ExitStatusOf(outcome);
}

int RunInteractively(Application& application, WindowsFrontEnd& frontEnd, const std::string& file) {
    frmMain& window = frontEnd.MainWindow();
    // Not QApplication's quitOnLastWindowClosed: the last window may be a message box.
    QObject::connect(&window, &frmMain::Closed, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    window.show();
    if (!file.empty()) {
        window.OpenFile(file);
    }
    if (TipsOnStartup(application.registry)) {
        auto* tip = new frmTip(application, frontEnd, &window);
        tip->setAttribute(Qt::WA_DeleteOnClose);
        tip->open();
    }
    const int status = QApplication::exec();
    const bool saved =
        RunOrShowError(frontEnd, window, application.errorTitle, [&] { SaveStatisticsAtExit(application); });
    return saved ? status : kExitFailure;
}

} // namespace

int RunWindows(int argc, char** argv, Application& application, bool automatic, const std::string& file) {
    std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0),
                                       argv + argc); // before Qt removes its own options
    if (!file.empty()) {
        arguments.clear(); // "/AUTO" in its path is no switch
    }
    const std::unique_ptr<QApplication> qtApplication = OpenDisplay(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setDesktopFileName(u"example.tunedex.tunedex"_s);
    InstallProgramIcon();

    const Translation translation(LanguageFor(WantedLanguages()));
    Dialogs dialogs;
    WindowsFrontEnd frontEnd(application, dialogs);
    if (!RunOrShowError(frontEnd, frontEnd.MainWindow(), application.errorTitle,
                        [&] { StartUp(application, frontEnd, arguments); })) {
        return kExitCannotStart;
    }
    if (automatic) {
        return RunUnattended(application, frontEnd);
    }
    return RunInteractively(application, frontEnd, file);
}

} // namespace tunedex
