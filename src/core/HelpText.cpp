#include "HelpText.h"

#include "CommandOptions.h"
#include "Text.h"

#include <algorithm>
#include <string_view>

namespace tunedex {

namespace {

constexpr std::size_t kColumns = 80;
constexpr std::size_t kTextColumn = 13;

// Keep the manual page in step: same entries, same words.
constexpr std::string_view kHead = R"(Usage: tunedex [/AUTO]
       tunedex --create [OPTION]...
       tunedex --open FILE
       tunedex --check FILE
       tunedex --write-defaults FILE
       tunedex --help
       tunedex --version

Catalogue a collection of MP3 files: read their ID3 tags and MPEG audio headers
and write one listing, as web page (.htm), text (.txt) or playlist (.m3u), a
modern one also as comma-separated values (.csv). Without an argument the main
window opens, if this build has windows.
)";

constexpr std::string_view kTail = R"(
Examples:
  tunedex --create --folder ~/Music --output ~/music.htm
  tunedex --create --folder /srv/music --columns "Artist|Album|Title" \
          --output -.csv | gzip >music.csv.gz

Where none of DISPLAY, WAYLAND_DISPLAY and QT_QPA_PLATFORM is set, a run with
/AUTO prints progress and messages on standard error and reads answers from
standard input. A run with --create never asks; it shows its progress if
standard error is a terminal.

Files in the program folder (of an installed program ~/.local/share/tunedex/):
  Tunedex.cfg        the default settings
  Themes/*.thm       layout themes
  html_entities.lst  what each special character becomes in a page
  tips.lst           the tips of the day, one a line
  stats.lst          the usage statistics
  Tunedex.log        the errors of the latest run, when the settings ask for a
                     log

Exit status of a run with /AUTO or --create:
  0  when the list was written
  1  when it was not
  2  when the program could not start, or the command line is wrong
  3  when a modern list was written, but folders or files could not be read
)";

// Appends the words of a text from kTextColumn on; `column` is where the text ends now.
void AppendWrapped(std::string& help, std::size_t column, std::string_view text) {
    for (const std::string& word : Split(text, " ")) {
        const bool starts = column < kTextColumn;
        if (!starts && column + 1 + word.size() > kColumns) {
            help += '\n';
            column = 0;
        }
        const std::size_t blanks = column < kTextColumn ? kTextColumn - column : 1;
        help.append(blanks, ' ');
        help += word;
        column += blanks + word.size();
    }
    help += '\n';
}

void AppendEntry(std::string& help, std::string_view dashes, const CommandOption& option) {
    std::string name = "  ";
    name += dashes;
    name += option.name;
    if (!option.valueName.empty()) {
        name += ' ';
        name += option.valueName;
    }
    help += name;
    std::size_t column = name.size();
    if (column + 2 > kTextColumn) {
        help += '\n';
        column = 0;
    }
    AppendWrapped(help, column, option.text);
}

} // namespace

std::string HelpText() {
    std::string help(kHead);
    help += "\nCommands:\n";
    for (const CommandOption& command : kCommands) {
        AppendEntry(help, "", command);
    }
    help += "\nOptions of --create:\n";
    for (const CommandOption& option : kCreateOptions) {
        AppendEntry(help, "--", option);
    }
    help += kTail;
    return help;
}

} // namespace tunedex
