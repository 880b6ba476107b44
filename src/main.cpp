// Chooses the front end, owns every object that lives as long as the program, and turns the outcome into an
// exit status.

#include "Application.h"
#include "CommandLine.h"
#include "Display.h"
#include "QSettingsRegistry.h"
#include "RunTerminal.h"
#include "RunWindows.h"

#include <csignal>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <iostream>
#include <optional>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kCouldNotStart = 2;

// Started with a standard stream closed, the program would get its number for the next file it opens, and
// messages would end up in a listing.
void OpenStandardStreams() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) < 0) {
            open("/dev/null", O_RDWR); // takes the lowest free number, which is this one
        }
    }
}

int Print(const std::string& text) {
    std::cout << text << std::flush;
    if (std::cout) {
        return EXIT_SUCCESS;
    }
    std::cerr << "Tunedex: standard output cannot be written.\n";
    return kCouldNotStart;
}

int Run(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    if (const std::optional<std::string> information = tunedex::InformationText(arguments)) {
        return Print(*information);
    }
    tunedex::SystemClock clock;
    tunedex::QSettingsRegistry registry;
    tunedex::Application application{clock, registry, std::cerr};
    const bool automatic = tunedex::IsAutomatic(arguments);
    if (!tunedex::DisplayVariables().empty()) {
        return tunedex::RunWindows(argc, argv, application, automatic);
    }
    if (automatic) {
        return tunedex::RunTerminal(application, arguments);
    }
    std::cerr << "Tunedex: there is no display to open its window on. Without one, start it with /AUTO.\n";
    return kCouldNotStart;
}

} // namespace

int main(int argc, char** argv) {
    OpenStandardStreams();
    // A reader of our messages that goes away must not end a run.
    std::signal(SIGPIPE, SIG_IGN);
    // A listing that grows beyond the largest file the user may write fails as on a full disk, and is cleared
    // away.
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "Tunedex could not start: " << error.what() << '\n';
    }
    return kCouldNotStart;
}
