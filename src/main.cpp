// Chooses the front end, owns every object that lives as long as the program, and turns the outcome into an
// exit status.

#include "Application.h"
#include "QSettingsRegistry.h"
#include "RunTerminal.h"
#include "Startup.h"

#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace {

constexpr int kCouldNotStart = 2;

bool HasDisplay() {
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* value = std::getenv(variable);
        if (value != nullptr && *value != '\0') {
            return true;
        }
    }
    return false;
}

int Run(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    tunedex::SystemClock clock;
    tunedex::QSettingsRegistry registry;
    tunedex::Application application{clock, registry, std::cerr};
    if (tunedex::IsAutomatic(arguments) && !HasDisplay()) {
        return tunedex::RunTerminal(application, arguments);
    }
    std::cerr << "Tunedex: there is no display to open its window on. Without one, start it with /AUTO.\n";
    return kCouldNotStart;
}

} // namespace

int main(int argc, char** argv) {
    // A reader of our messages that goes away must not end a run.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "Tunedex could not start: " << error.what() << '\n';
    }
    return kCouldNotStart;
}
