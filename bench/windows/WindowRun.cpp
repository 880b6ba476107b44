// window_run: times the same run with the terminal and with the windows alternately, then runs that are
// aborted.
//
// usage: window_run FOLDER OUTPUT ENTITY-FILE [ROUNDS]
// Prints the medians of both, from the start of the search to the end of the run without the pause of one
// second, their ratio, and the time from pressing Abort to the end of the run.

#include "Application.h"
#include "DefaultSettings.h"
#include "Dialogs.h"
#include "ListJob.h"
#include "Startup.h"
#include "TerminalFrontEnd.h"
#include "WindowsFrontEnd.h"
#include "frmProgress.h"

#include <QApplication>
#include <QPushButton>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace {

using SteadyClock = std::chrono::steady_clock;

double Milliseconds(SteadyClock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

class NoPause final : public tunedex::Clock {
  public:
    std::tm LocalTime() const override { return tunedex::SystemClock().LocalTime(); }
    void Sleep(std::chrono::milliseconds /*duration*/) override {}
};

class NoRegistry final : public tunedex::Registry {
  public:
    std::string Read(std::string_view /*name*/) const override { return {}; }
    void Write(std::string_view /*name*/, std::string_view /*text*/) override {}
};

// Records when the progress window was opened and when the run ended.
class Timed final : public tunedex::UserInterface {
  public:
    explicit Timed(tunedex::UserInterface& inner) : inner_(inner) {}

    tunedex::MainFields Fields() const override { return inner_.Fields(); }
    void FillFields(const tunedex::MainFields& fields) override { inner_.FillFields(fields); }
    void TakeControls(tunedex::Settings& settings) override { inner_.TakeControls(settings); }
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override {
        return inner_.ShowMessage(text, buttons, title);
    }
    void FocusAndSelect(tunedex::MainField field) override { inner_.FocusAndSelect(field); }
    void EnableWindows() override { inner_.EnableWindows(); }
    tunedex::RunMonitor& ShowProgress() override {
        tunedex::RunMonitor& monitor = inner_.ShowProgress();
        begun = SteadyClock::now();
        return monitor;
    }
    void SetProgressCaption(std::string_view caption) override { inner_.SetProgressCaption(caption); }
    void CloseProgress() override {
        ended = SteadyClock::now();
        inner_.CloseProgress();
    }

    SteadyClock::time_point begun;
    SteadyClock::time_point ended;

  private:
    tunedex::UserInterface& inner_;
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double RunOnce(tunedex::Application& application, tunedex::UserInterface& front) {
    Timed timed(front);
    timed.FillFields(tunedex::FieldsFor(application.settings));
    if (!tunedex::CreateList(application, timed).Written()) {
        std::cerr << "no list was written\n";
        std::exit(1);
    }
    return Milliseconds(timed.ended - timed.begun);
}

// Presses Abort on another thread after the given time. Returns the milliseconds from then to the end of the
// run; -1 if the run ended first.
double AbortOnce(tunedex::Application& application, tunedex::WindowsFrontEnd& front,
                 std::chrono::milliseconds after) {
    SteadyClock::time_point pressed;
    std::thread user([&] {
        std::this_thread::sleep_for(after);
        pressed = SteadyClock::now();
        // Queued like input: the press waits in the event queue until the run polls for it.
        QMetaObject::invokeMethod(
            &front.MainWindow(),
            [&] {
                if (auto* progress = front.MainWindow().findChild<tunedex::frmProgress*>();
                    progress != nullptr) {
                    progress->findChild<QPushButton*>(QStringLiteral("cmdAbort"))->click();
                }
            },
            Qt::QueuedConnection);
    });
    const bool written = tunedex::CreateList(application, front).Written();
    const SteadyClock::time_point ended = SteadyClock::now();
    user.join();
    QCoreApplication::processEvents();
    return written ? -1 : Milliseconds(ended - pressed);
}

} // namespace

int main(int argc, char** argv) {
    QApplication qtApplication(argc, argv);
    if (argc < 4) {
        std::cerr << "usage: window_run FOLDER OUTPUT ENTITY-FILE [ROUNDS]\n";
        return 2;
    }
    NoPause clock;
    NoRegistry registry;
    tunedex::Application application{clock, registry, std::cerr};
    application.settings = tunedex::DefaultSettings();
    application.settings.Directory = argv[1];
    application.settings.OutputFile = argv[2];
    application.settings.ErrorWarnings = false;
    application.entities.Load(argv[3], std::cerr);
    const int rounds = argc > 4 ? std::stoi(argv[4]) : 11;

    tunedex::TerminalFrontEnd terminal(application, open("/dev/null", O_RDONLY), open("/dev/null", O_WRONLY));
    tunedex::Dialogs dialogs;
    tunedex::WindowsFrontEnd windows(application, dialogs);
    windows.MainWindow().show();
    std::vector<double> plain;
    std::vector<double> shown;
    for (int round = -1; round < rounds; ++round) {
        const double first = RunOnce(application, terminal);
        const double second = RunOnce(application, windows);
        if (round >= 0) { // the first round warms the caches
            plain.push_back(first);
            shown.push_back(second);
        }
    }
    std::printf("run behind the terminal %.1f ms, behind the windows %.1f ms, ratio %.3f (medians of %d)\n",
                Median(plain), Median(shown), Median(shown) / Median(plain), rounds);

    std::vector<double> waits;
    for (int part = 1; part < 20; ++part) {
        const auto after = std::chrono::milliseconds(static_cast<int>(Median(shown) * part / 20));
        const double wait = AbortOnce(application, windows, after);
        if (wait >= 0) {
            waits.push_back(wait);
        }
    }
    if (waits.empty()) {
        std::cerr << "no run was aborted\n";
        return 1;
    }
    std::printf("abort: %zu runs ended after %.1f ms at the median, %.1f ms at most\n", waits.size(),
                Median(waits), *std::max_element(waits.begin(), waits.end()));
    return 0;
}
