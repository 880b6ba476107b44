// Chooses the front end, owns every object that lives as long as the program, and maps the outcome to an exit
// status.

#include "Application.h"
#include "CommandLine.h"
#include "ExitStatus.h"
#include "OpenWindows.h"
#include "QSettingsRegistry.h"
#include "QtCollation.h"
#include "RunTerminal.h"
#include "RunTimeError.h"
#include "Startup.h"

#include <csignal>
#include <exception>
#include <fcntl.h>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

// If a standard stream is closed, the next file opened gets its descriptor, and messages would be written
// into a listing.
void OpenStandardStreams() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) < 0) {
            open("/dev/null", O_RDWR); // gets the lowest free descriptor: this one
        }
    }
}

int Print(const std::string& text) {
    std::cout << text << std::flush;
    if (std::cout) {
        return tunedex::kExitSuccess;
    }
    std::cerr << "Tunedex: standard output cannot be written.\n";
    return tunedex::kExitCannotStart;
}

int WriteDefaults(const tunedex::Application& application, const std::string& path) {
    try {
        tunedex::WriteDefaultSettings(application, path);
        return tunedex::kExitSuccess;
    } catch (const tunedex::RunTimeError& error) {
        std::cerr << "Tunedex: the default settings cannot be written: " << error.Description() << '\n';
        return tunedex::kExitFailure;
    }
}

int Run(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (const std::optional<std::string> information = tunedex::InformationText(arguments)) {
        return Print(*information);
    }
    tunedex::SystemClock clock;
    tunedex::QSettingsRegistry registry;
    tunedex::Application application{clock, registry, std::cerr};
    application.collation = std::make_shared<tunedex::QtCollation>(tunedex::CollationLanguage());
    if (const std::optional<std::string> path = tunedex::DefaultsFile(arguments)) {
        return WriteDefaults(application, *path);
    }
    const bool automatic = tunedex::IsAutomatic(arguments);
    if (automatic && !tunedex::CanOpenWindows()) {
        return tunedex::RunTerminal(application, arguments);
    }
    return tunedex::OpenWindows(argc, argv, application, automatic);
}

} // namespace

int main(int argc, char** argv) {
    OpenStandardStreams();
    // A broken pipe on standard output or error must not end a run.
    std::signal(SIGPIPE, SIG_IGN);
    // With SIGXFSZ ignored, a write beyond the file size limit fails like a full disk, and the listing is
    // removed.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "Tunedex could not start: " << error.what() << '\n';
    }
    return tunedex::kExitCannotStart;
}
