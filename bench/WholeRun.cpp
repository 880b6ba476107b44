// whole_run: one unattended run with the program's own code, from folders to the finished listing. Its clock
// does not sleep, which leaves out the pause of one second at the end of a run.
//
// usage: whole_run FOLDER OUTPUT [--readers N] [--sort N] [--spanning N] [--modern 1] [--type HTML5]
//        [--entities FILE]
// Prints the time of each phase, then files listed, total time and peak memory.

#include "Application.h"
#include "DefaultSettings.h"
#include "ListJob.h"
#include "QtCollation.h"
#include "Startup.h"
#include "TerminalFrontEnd.h"

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <iomanip>
#include <iostream>
#include <memory>
#include <string>
#include <sys/resource.h>

namespace {

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

double Seconds(std::chrono::steady_clock::duration duration) {
    return std::chrono::duration<double>(duration).count();
}

// Prints the time between changes of the status text, which mark the phases.
class TimedFrontEnd final : public tunedex::RunMonitor {
  public:
    explicit TimedFrontEnd(tunedex::RunMonitor& inner) : inner_(inner) {}

    void SetStatus(std::string_view text) override {
        const auto now = std::chrono::steady_clock::now();
        if (!phase_.empty()) {
            std::cout << std::setprecision(4) << std::fixed << Seconds(now - begun_) << " s  " << phase_
                      << '\n';
        }
        phase_ = text;
        begun_ = now;
        inner_.SetStatus(text);
    }
    void SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                          std::string_view after) override {
        inner_.SetCountedStatus(before, count, total, after);
    }
    void SetMaximum(std::int32_t maximum) override { inner_.SetMaximum(maximum); }
    void SetPosition(std::int32_t position) override { inner_.SetPosition(position); }
    bool AbortRequested() override { return inner_.AbortRequested(); }

  private:
    tunedex::RunMonitor& inner_;
    std::string phase_;
    std::chrono::steady_clock::time_point begun_;
};

class BenchFrontEnd final : public tunedex::UserInterface {
  public:
    explicit BenchFrontEnd(tunedex::Application& application)
        : terminal_(application, open("/dev/null", O_RDONLY), open("/dev/null", O_WRONLY)),
          monitor_(terminal_.ShowProgress()) {}

    tunedex::MainFields Fields() const override { return terminal_.Fields(); }
    void FillFields(const tunedex::MainFields& fields) override { terminal_.FillFields(fields); }
    void TakeControls(tunedex::Settings& settings) override { terminal_.TakeControls(settings); }
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override {
        std::cerr << title << ": " << text << '\n';
        return terminal_.ShowMessage(text, buttons, title);
    }
    void FocusAndSelect(tunedex::MainField /*field*/) override {}
    void EnableWindows() override {}
    tunedex::RunMonitor& ShowProgress() override {
        terminal_.ShowProgress();
        return monitor_;
    }
    void SetProgressCaption(std::string_view /*caption*/) override {}
    void CloseProgress() override { terminal_.CloseProgress(); }

  private:
    tunedex::TerminalFrontEnd terminal_;
    TimedFrontEnd monitor_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: whole_run FOLDER OUTPUT [--readers N] [--sort N] [--spanning N] [--modern 1] "
                     "[--type HTML5] [--entities FILE]\n";
        return 2;
    }
    const auto begun = std::chrono::steady_clock::now();
    NoPause clock;
    NoRegistry registry;
    tunedex::Application application{clock, registry, std::cerr};
    application.collation = std::make_shared<tunedex::QtCollation>(tunedex::CollationLanguage());
    tunedex::Settings& settings = application.settings;
    settings = tunedex::DefaultSettings();
    settings.Directory = argv[1];
    settings.OutputFile = argv[2];
    settings.Spanning = 0;
    settings.ErrorWarnings = false;
    for (int i = 3; i + 1 < argc; i += 2) {
        const std::string option = argv[i];
        if (option == "--readers") {
            application.readers = static_cast<unsigned>(std::atoi(argv[i + 1])); // NOLINT(cert-err34-c)
        } else if (option == "--sort") {
            settings.SortOrder = static_cast<std::int16_t>(std::atoi(argv[i + 1])); // NOLINT(cert-err34-c)
        } else if (option == "--spanning") {
            settings.Spanning = static_cast<std::int16_t>(std::atoi(argv[i + 1])); // NOLINT(cert-err34-c)
        } else if (option == "--modern") {
            settings.Modern = std::atoi(argv[i + 1]) != 0; // NOLINT(cert-err34-c)
        } else if (option == "--type") {
            settings.DocumentType = argv[i + 1];
        } else if (option == "--entities") {
            application.entities.Load(argv[i + 1], std::cerr);
        }
    }
    BenchFrontEnd frontEnd(application);
    frontEnd.FillFields(tunedex::FieldsFor(settings));
    const bool written = tunedex::CreateList(application, frontEnd).Written();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::cout << application.statistics.FilesHandled << " files, " << std::setprecision(4) << std::fixed
              << Seconds(std::chrono::steady_clock::now() - begun) << " s, " << usage.ru_maxrss << " KiB\n";
    return written ? 0 : 1;
}
