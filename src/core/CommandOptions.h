// The options of the command line, in one table: the parser and the help text are made from it, and tests
// compare the manual page and the completions of the shells with the help text.
#pragma once

#include <array>
#include <string_view>

namespace tunedex {

enum class OptionKey { Settings, Folder, Output, Modern, Classic, Columns, Theme, Quiet };

// An option, or one of the commands that an option follows.
struct CommandOption {
    std::string_view name;
    std::string_view valueName; // empty: takes no value
    std::string_view text;
};

inline constexpr std::array kCommands = {
    CommandOption{"/AUTO", "",
                  "Create the list that the default settings file describes, without the main window, and "
                  "end. The switch is recognised anywhere on the command line, in upper or lower case."},
    CommandOption{"--create", "",
                  "As the first argument: create one list in the terminal, with the options below, and end."},
    CommandOption{"--open", "FILE",
                  "As the first argument: open the main window with a settings file, or with the look of a "
                  "theme (.thm)."},
    CommandOption{"--check", "FILE",
                  "As the only arguments: print the faulty lines of a settings file, or of a theme (.thm), "
                  "and end. The status is 0 when there are none, 1 otherwise."},
    CommandOption{"--write-defaults", "FILE",
                  "As the only arguments: write the default settings to FILE and end. The extension .cfg is "
                  "added if it is missing."},
    CommandOption{"--help", "", "As the single argument: print a summary and end."},
    CommandOption{"--version", "", "As the single argument: print the version and end."},
};

struct CreateOption : CommandOption {
    OptionKey key;
};

inline constexpr std::array kCreateOptions = {
    CreateOption{{"settings", "FILE",
                  "Read the settings from FILE instead of Tunedex.cfg. Without either file, the default "
                  "settings apply, with modern tags and lists. The other options change them for this run "
                  "only."},
                 OptionKey::Settings},
    CreateOption{{"folder", "DIR", "List this folder. Can be given several times."}, OptionKey::Folder},
    CreateOption{{"output", "FILE",
                  "Write the list to FILE; the extension sets the format. - writes one page to standard "
                  "output, -.csv, -.txt or -.m3u another format."},
                 OptionKey::Output},
    CreateOption{{"modern", "", "Read tags and write lists by today's conventions."}, OptionKey::Modern},
    CreateOption{{"classic", "", "Read tags and write lists as version 1.0 did."}, OptionKey::Classic},
    CreateOption{{"columns", "LIST", "Show these columns, joined by |, and merge none of them."},
                 OptionKey::Columns},
    CreateOption{{"theme", "NAME", "Use the fonts, colours and table measures of a theme."},
                 OptionKey::Theme},
    CreateOption{{"quiet", "", "Show no progress and no summary. Errors are printed all the same."},
                 OptionKey::Quiet},
};

} // namespace tunedex
