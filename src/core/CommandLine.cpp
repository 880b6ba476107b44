#include "CommandLine.h"

#include "CommandOptions.h"
#include "HelpText.h"
#include "Product.h"
#include "Text.h"
#include "Version.h"

#include <algorithm>
#include <cstring>
#include <getopt.h>
#include <utility>

namespace tunedex {

namespace {

// getopt_long() takes C strings and keeps its position in globals; this is their owner for one parse.
class CreateParser {
  public:
    // The first argument is the command itself, in the place of the program's name.
    explicit CreateParser(const std::vector<std::string>& arguments) : arguments_(arguments) {
        for (std::string& argument : arguments_) {
            pointers_.push_back(argument.data());
        }
        pointers_.push_back(nullptr);
        for (const CreateOption& option : kCreateOptions) {
            options_.push_back({option.name.data(),
                                option.valueName.empty() ? no_argument : required_argument, nullptr,
                                kFirstValue + static_cast<int>(option.key)});
        }
        options_.push_back({nullptr, 0, nullptr, 0});
    }

    Command Parse();

  private:
    static constexpr int kFirstValue = 256; // beyond every character that getopt_long() returns
    static constexpr int kOperand = 1;

    // Each returns false after setting fault_.
    bool Take(int found);
    bool TakeOption(OptionKey key, const char* value);
    bool TakeText(std::optional<std::string>& member, const CreateOption& option, const std::string& value);
    bool TakeModern(bool modern);
    bool Fail(std::string fault);
    const std::string& Current() const { return arguments_.at(static_cast<std::size_t>(optind - 1)); }

    std::vector<std::string> arguments_;
    std::vector<char*> pointers_;
    std::vector<option> options_;
    CreateCommand command_;
    std::string fault_;
};

const CreateOption& OptionOf(OptionKey key) {
    return *std::find_if(kCreateOptions.begin(), kCreateOptions.end(),
                         [key](const CreateOption& option) { return option.key == key; });
}

std::string WithDashes(std::string_view name) {
    return "--" + std::string(name);
}

bool CreateParser::Fail(std::string fault) {
    fault_ = std::move(fault);
    return false;
}

bool CreateParser::TakeText(std::optional<std::string>& member, const CreateOption& option,
                            const std::string& value) {
    if (member) {
        return Fail(WithDashes(option.name) + " is given twice");
    }
    member = value;
    return true;
}

bool CreateParser::TakeModern(bool modern) {
    if (command_.modern && *command_.modern != modern) {
        return Fail("--modern and --classic exclude each other");
    }
    command_.modern = modern;
    return true;
}

bool CreateParser::TakeOption(OptionKey key, const char* value) {
    const CreateOption& option = OptionOf(key);
    // A following option is no value: "--folder --quiet" lacks the folder.
    if (value != nullptr && (*value == '\0' || std::string_view(value).starts_with("--"))) {
        return Fail(WithDashes(option.name) + " needs a value: " + std::string(option.valueName));
    }
    switch (key) {
    case OptionKey::Settings:
        return TakeText(command_.settingsFile, option, value);
    case OptionKey::Folder:
        command_.folders.emplace_back(value);
        return true;
    case OptionKey::Output:
        return TakeText(command_.outputFile, option, value);
    case OptionKey::Modern:
    case OptionKey::Classic:
        return TakeModern(key == OptionKey::Modern);
    case OptionKey::Columns:
        return TakeText(command_.columns, option, value);
    case OptionKey::Theme:
        return TakeText(command_.theme, option, value);
    case OptionKey::Quiet:
        command_.quiet = true;
        return true;
    }
    return false;
}

bool CreateParser::Take(int found) {
    switch (found) {
    case kOperand:
        return Fail("unexpected argument " + std::string(optarg));
    case ':':
        return Fail(Current() + " needs a value: " +
                    std::string(OptionOf(static_cast<OptionKey>(optopt - kFirstValue)).valueName));
    case '?':
        if (optopt >= kFirstValue) {
            return Fail(WithDashes(OptionOf(static_cast<OptionKey>(optopt - kFirstValue)).name) +
                        " takes no value");
        }
        return Fail("unknown option " +
                    (optopt == 0 ? Current() : "-" + std::string(1, static_cast<char>(optopt))));
    default:
        return TakeOption(static_cast<OptionKey>(found - kFirstValue), optarg);
    }
}

Command CreateParser::Parse() {
    optind = 0; // starts a new parse
    opterr = 0;
    // "-": operands in their place; ":": a missing value is reported as ":".
    const auto next = [this] {
        return getopt_long(static_cast<int>(arguments_.size()), pointers_.data(), "-:", options_.data(),
                           nullptr);
    };
    for (int found = next(); found != -1; found = next()) {
        if (found == '?' && optopt == 0 && Current() == "--help") {
            return PrintCommand{HelpText()};
        }
        if (!Take(found)) {
            return WrongUse{fault_};
        }
    }
    if (static_cast<std::size_t>(optind) < arguments_.size()) { // behind "--"
        return WrongUse{"unexpected argument " + arguments_.at(static_cast<std::size_t>(optind))};
    }
    return command_;
}

// A command that takes one file and nothing else.
template <class FileCommand> Command ParseFileCommand(const std::vector<std::string>& arguments) {
    if (arguments.size() < 2 || arguments.at(1).empty()) {
        return WrongUse{arguments.front() + " needs a value: FILE"};
    }
    if (arguments.at(1).starts_with("--")) {
        return WrongUse{"unknown option " + arguments.at(1)};
    }
    if (arguments.size() > 2) {
        return WrongUse{"unexpected argument " + arguments.at(2)};
    }
    return FileCommand{arguments.at(1)};
}

// Without a file it is what a menu entry with "%f" starts.
Command ParseOpen(const std::vector<std::string>& arguments) {
    return arguments.size() == 1 ? Command(OpenCommand{}) : ParseFileCommand<OpenCommand>(arguments);
}

std::string VersionText() {
    return std::string(kProductTitle) + " " + kVersionText + "." + kBuildNumber + "\n";
}

} // namespace

Command ParseCommandLine(const std::vector<std::string>& arguments) {
    if (arguments.empty()) {
        return StartCommand{};
    }
    const std::string& first = arguments.front();
    if (first == "--create") {
        return CreateParser(arguments).Parse();
    }
    if (first == "--check") {
        return ParseFileCommand<CheckCommand>(arguments);
    }
    if (first == "--write-defaults") {
        return ParseFileCommand<WriteDefaultsCommand>(arguments);
    }
    if (first == "--open") {
        return ParseOpen(arguments);
    }
    if (arguments.size() == 1 && first == "--help") {
        return PrintCommand{HelpText()};
    }
    if (arguments.size() == 1 && first == "--version") {
        return PrintCommand{VersionText()};
    }
    return StartCommand{};
}

bool IsAutomatic(const std::vector<std::string>& arguments) {
    std::string commandLine;
    for (const std::string& argument : arguments) {
        commandLine += argument + ' ';
    }
    return UpperCase(commandLine).find("/AUTO") != std::string::npos;
}

} // namespace tunedex
