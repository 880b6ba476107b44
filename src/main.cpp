// Chooses the front end, owns every object that lives as long as the program, and maps the outcome to an exit
// status.

#include "Application.h"
#include "CheckFile.h"
#include "CommandLine.h"
#include "ExitStatus.h"
#include "OpenWindows.h"
#include "QSettingsRegistry.h"
#include "QtCollation.h"
#include "RunCreate.h"
#include "RunTerminal.h"
#include "RunTimeError.h"
#include "Startup.h"
#include "TerminalText.h"

#include <csignal>
#include <exception>
#include <fcntl.h>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <unistd.h>
#include <variant>
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

int Check(const std::string& path) {
    try {
        std::ostringstream report;
        const bool faultless = tunedex::CheckSettingsFile(path, report);
        const int printed = Print(report.str());
        return faultless ? printed : tunedex::kExitFailure;
    } catch (const tunedex::RunTimeError& error) {
        std::cerr << "Tunedex: " << tunedex::TerminalText(path) << " cannot be read: " << error.Description()
                  << '\n';
        return tunedex::kExitFailure;
    }
}

int Refuse(const std::string& text) {
    std::cerr << "Tunedex: " << tunedex::TerminalText(text) << "; see tunedex --help\n";
    return tunedex::kExitCannotStart;
}

int Start(int argc, char** argv, tunedex::Application& application,
          const std::vector<std::string>& arguments) {
    const bool automatic = tunedex::IsAutomatic(arguments);
    if (automatic && !tunedex::CanOpenWindows()) {
        return tunedex::RunTerminal(application, arguments);
    }
    return tunedex::OpenWindows(argc, argv, application, automatic, "");
}

int Run(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    const tunedex::Command command = tunedex::ParseCommandLine(arguments);
    if (const auto* const print = std::get_if<tunedex::PrintCommand>(&command)) {
        return Print(print->text);
    }
    if (const auto* const wrong = std::get_if<tunedex::WrongUse>(&command)) {
        return Refuse(wrong->text);
    }
    if (const auto* const check = std::get_if<tunedex::CheckCommand>(&command)) {
        return Check(check->file);
    }
    tunedex::SystemClock clock;
    tunedex::QSettingsRegistry registry;
    tunedex::Application application{clock, registry, std::cerr};
    if (const auto* const defaults = std::get_if<tunedex::WriteDefaultsCommand>(&command)) {
        return WriteDefaults(application, defaults->file);
    }
    application.collation = std::make_shared<tunedex::QtCollation>(tunedex::CollationLanguage());
    if (const auto* const create = std::get_if<tunedex::CreateCommand>(&command)) {
        return tunedex::RunCreate(application, *create);
    }
    if (const auto* const open = std::get_if<tunedex::OpenCommand>(&command)) {
        return tunedex::OpenWindows(argc, argv, application, false, open->file);
    }
    return Start(argc, argv, application, arguments);
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
