#include "CommandLine.h"

#include "Product.h"
#include "Text.h"
#include "Version.h"

namespace tunedex {

namespace {

// At most 80 columns. Keep the manual page in step: same entries, same words.
constexpr const char* kHelpText = R"(Usage: tunedex [/AUTO]
       tunedex --write-defaults FILE
       tunedex --help
       tunedex --version

Catalogue a collection of MP3 files: read their ID3 tags and MPEG audio headers
and write one listing, as web page (.htm), text (.txt) or playlist (.m3u).
Without an argument the main window opens.

Options:
  /AUTO      Create the list that the default settings file describes, without
             the main window, and end. The switch is recognised anywhere on the
             command line, in upper or lower case.
  --write-defaults FILE
             As the only arguments: write the default settings to FILE and
             end. The extension .cfg is added if it is missing.
  --help     As the single argument: print a summary and end.
  --version  As the single argument: print the version and end.

Where none of DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM is set, a run with
/AUTO prints progress and messages on standard error and reads answers from
standard input.

Files in the program folder (of an installed program ~/.local/share/tunedex/):
  Tunedex.cfg        the default settings
  Themes/*.thm       layout themes
  html_entities.lst  what each special character becomes in a page
  tips.lst           the tips of the day, one a line
  stats.lst          the usage statistics
  Tunedex.log        the errors of the latest run, when the settings ask for a
                     log

Exit status of an unattended run:
  0  when the list was written
  1  when it was not
  2  when the program could not start
  3  when a modern list was written, but folders or files could not be read
)";

} // namespace

std::optional<std::string> InformationText(const std::vector<std::string>& arguments) {
    if (arguments.size() != 1) {
        return std::nullopt;
    }
    if (arguments.front() == "--help") {
        return kHelpText;
    }
    if (arguments.front() == "--version") {
        return std::string(kProductTitle) + " " + kVersionText + "." + kBuildNumber + "\n";
    }
    return std::nullopt;
}

std::optional<std::string> DefaultsFile(const std::vector<std::string>& arguments) {
    if (arguments.size() != 2 || arguments.front() != "--write-defaults") {
        return std::nullopt;
    }
    return arguments.back();
}

bool IsAutomatic(const std::vector<std::string>& arguments) {
    std::string commandLine;
    for (const std::string& argument : arguments) {
        commandLine += argument + ' ';
    }
    return UpperCase(commandLine).find("/AUTO") != std::string::npos;
}

} // namespace tunedex
