// Interprets the program's arguments, without the program's own path.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tunedex {

// Opens the windows, or makes the list of the default settings unattended when IsAutomatic() says so.
struct StartCommand {};

// --help and --version.
struct PrintCommand {
    std::string text; // for standard output, with its last line end
};

// --create; a member without a value leaves the setting as it is.
struct CreateCommand {
    std::optional<std::string> settingsFile;
    std::vector<std::string> folders;
    std::optional<std::string> outputFile;
    std::optional<bool> modern;
    std::optional<std::string> columns;
    std::optional<std::string> theme;
    bool quiet = false;
};

struct CheckCommand {
    std::string file;
};

struct WriteDefaultsCommand {
    std::string file;
};

// --open, which menu entries and file managers use. "/AUTO" inside a file's path has no effect here.
struct OpenCommand {
    std::string file; // settings or theme; empty: open the windows as without arguments
};

// A command line that cannot be carried out.
struct WrongUse {
    std::string text; // names the argument; without a line end
};

using Command = std::variant<StartCommand, PrintCommand, CreateCommand, CheckCommand, WriteDefaultsCommand,
                             OpenCommand, WrongUse>;

// --create, --check, --write-defaults and --open count as the first argument only, --help and --version as
// the only one. With any other arguments the program starts as without.
Command ParseCommandLine(const std::vector<std::string>& arguments);

// Whether "/AUTO" occurs anywhere in the arguments, in any case. Required: also inside a longer word.
bool IsAutomatic(const std::vector<std::string>& arguments);

} // namespace tunedex
