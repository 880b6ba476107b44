#include "CommandLine.h"

#include "CommandOptions.h"
#include "HelpText.h"

#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <variant>
#include <vector>

namespace tunedex {
namespace {

TEST(IsAutomatic, FindsTheSwitchAnywhereInAnyCase) {
    const std::vector<std::vector<std::string>> automatic = {
        {"/AUTO"},      {"/auto"},   {"/Auto"},     {"list.cfg", "/AUTO"},
        {"/AUTOMATIC"}, {"x/autoy"}, {"--x=/auto"}, {"/music/automobiles"}};
    for (const auto& arguments : automatic) {
        EXPECT_TRUE(IsAutomatic(arguments)) << arguments.front();
    }
    const std::vector<std::vector<std::string>> interactive = {
        {}, {""}, {"list.cfg"}, {"AUTO"}, {"-auto"}, {"/AU", "TO"}, {"/", "AUTO"}, {"\\AUTO"}, {"/aúto"}};
    for (const auto& arguments : interactive) {
        EXPECT_FALSE(IsAutomatic(arguments)) << (arguments.empty() ? "" : arguments.front());
    }
}

Command Parsed(const std::vector<std::string>& arguments) {
    return ParseCommandLine(arguments);
}

CreateCommand Created(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "--create");
    const Command command = ParseCommandLine(arguments);
    const auto* const create = std::get_if<CreateCommand>(&command);
    EXPECT_NE(create, nullptr) << testing::PrintToString(arguments);
    return create == nullptr ? CreateCommand() : *create;
}

TEST(ParseCommandLine, PrintsHelpAndVersionForASingleExactArgument) {
    EXPECT_TRUE(std::holds_alternative<PrintCommand>(Parsed({"--help"})));
    EXPECT_TRUE(std::holds_alternative<PrintCommand>(Parsed({"--version"})));
    const std::vector<std::vector<std::string>> others = {{},
                                                          {""},
                                                          {"--help", "--version"},
                                                          {"--help", "/AUTO"},
                                                          {"/AUTO", "--version"},
                                                          {"--help", ""},
                                                          {"--HELP"},
                                                          {"--help "},
                                                          {" --help"},
                                                          {"-help"},
                                                          {"--helper"},
                                                          {"--Version"}};
    for (const auto& arguments : others) {
        EXPECT_TRUE(std::holds_alternative<StartCommand>(Parsed(arguments)))
            << testing::PrintToString(arguments);
    }
}

TEST(ParseCommandLine, KnowsItsCommandsAsTheFirstArgumentOnly) {
    EXPECT_TRUE(std::holds_alternative<CreateCommand>(Parsed({"--create"})));
    EXPECT_EQ(std::get<CheckCommand>(Parsed({"--check", "a.cfg"})).file, "a.cfg");
    EXPECT_EQ(std::get<CheckCommand>(Parsed({"--check", "/AUTO"})).file, "/AUTO");
    EXPECT_EQ(std::get<WriteDefaultsCommand>(Parsed({"--write-defaults", "/AUTO"})).file, "/AUTO");
    EXPECT_EQ(std::get<OpenCommand>(Parsed({"--open", "/AUTO.cfg"})).file, "/AUTO.cfg");
    EXPECT_EQ(std::get<OpenCommand>(Parsed({"--open"})).file, "");
    const std::vector<std::vector<std::string>> others = {{"/AUTO", "--create"},
                                                          {"a.cfg", "--open"},
                                                          {"--open=a.cfg"},
                                                          {"x", "--check", "a.cfg"},
                                                          {"new.cfg", "--write-defaults"},
                                                          {"--write-defaults=new"},
                                                          {"--Create"},
                                                          {"--creat"},
                                                          {"--create=1"},
                                                          {"create"}};
    for (const auto& arguments : others) {
        EXPECT_TRUE(std::holds_alternative<StartCommand>(Parsed(arguments)))
            << testing::PrintToString(arguments);
    }
}

TEST(ParseCommandLine, TakesTheOptionsOfCreateInAnyOrder) {
    const CreateCommand all =
        Created({"--quiet", "--output=-", "--folder", "/b", "--theme", "Ocean", "--columns", "Artist|Title",
                 "--folder", "/a", "--modern", "--settings", "my.cfg"});
    EXPECT_EQ(all.settingsFile, "my.cfg");
    EXPECT_EQ(all.folders, (std::vector<std::string>{"/b", "/a"}));
    EXPECT_EQ(all.outputFile, "-");
    EXPECT_EQ(all.modern, true);
    EXPECT_EQ(all.columns, "Artist|Title");
    EXPECT_EQ(all.theme, "Ocean");
    EXPECT_TRUE(all.quiet);

    const CreateCommand none = Created({});
    EXPECT_EQ(none.settingsFile, std::nullopt);
    EXPECT_TRUE(none.folders.empty());
    EXPECT_EQ(none.outputFile, std::nullopt);
    EXPECT_EQ(none.modern, std::nullopt);
    EXPECT_EQ(none.columns, std::nullopt);
    EXPECT_EQ(none.theme, std::nullopt);
    EXPECT_FALSE(none.quiet);

    EXPECT_EQ(Created({"--classic"}).modern, false);
    EXPECT_EQ(Created({"--modern", "--modern"}).modern, true);
    EXPECT_EQ(Created({"--folder", "-strange"}).folders.front(), "-strange");
    EXPECT_EQ(Created({"--folder", "/AUTO"}).folders.front(), "/AUTO");
}

TEST(ParseCommandLine, ExplainsCreateWithAHelpOption) {
    for (const auto& arguments : std::vector<std::vector<std::string>>{
             {"--create", "--help"}, {"--create", "--quiet", "--help", "x"}}) {
        EXPECT_TRUE(std::holds_alternative<PrintCommand>(Parsed(arguments)))
            << testing::PrintToString(arguments);
    }
}

TEST(ParseCommandLine, NamesWhatIsWrong) {
    const struct {
        std::vector<std::string> arguments;
        const char* text;
    } rows[] = {
        {{"--create", "--colour"}, "unknown option --colour"},
        {{"--create", "--c"}, "unknown option --c"}, // could be --classic or --columns
        {{"--create", "-x"}, "unknown option -x"},
        {{"--create", "-xq"}, "unknown option -x"},
        {{"--create", "/AUTO"}, "unexpected argument /AUTO"},
        {{"--create", "~/Music"}, "unexpected argument ~/Music"},
        {{"--create", ""}, "unexpected argument "},
        {{"--create", "-"}, "unexpected argument -"},
        {{"--create", "--", "x"}, "unexpected argument x"},
        {{"--create", "--folder"}, "--folder needs a value: DIR"},
        {{"--create", "--folder", "--quiet"}, "--folder needs a value: DIR"},
        {{"--create", "--folder", ""}, "--folder needs a value: DIR"},
        {{"--create", "--folder="}, "--folder needs a value: DIR"},
        {{"--create", "--output"}, "--output needs a value: FILE"},
        {{"--create", "--settings"}, "--settings needs a value: FILE"},
        {{"--create", "--columns"}, "--columns needs a value: LIST"},
        {{"--create", "--theme"}, "--theme needs a value: NAME"},
        {{"--create", "--quiet=1"}, "--quiet takes no value"},
        {{"--create", "--output", "a", "--output", "b"}, "--output is given twice"},
        {{"--create", "--settings", "a", "--settings", "a"}, "--settings is given twice"},
        {{"--create", "--theme", "a", "--theme", "b"}, "--theme is given twice"},
        {{"--create", "--columns", "Artist", "--columns", "Title"}, "--columns is given twice"},
        {{"--create", "--modern", "--classic"}, "--modern and --classic exclude each other"},
        {{"--create", "--classic", "--modern"}, "--modern and --classic exclude each other"},
        {{"--check"}, "--check needs a value: FILE"},
        {{"--check", ""}, "--check needs a value: FILE"},
        {{"--check", "a.cfg", "b.cfg"}, "unexpected argument b.cfg"},
        {{"--check", "--all"}, "unknown option --all"},
        {{"--write-defaults"}, "--write-defaults needs a value: FILE"},
        {{"--write-defaults", ""}, "--write-defaults needs a value: FILE"},
        {{"--write-defaults", "a.cfg", "/AUTO"}, "unexpected argument /AUTO"},
    };
    for (const auto& row : rows) {
        const Command command = Parsed(row.arguments);
        const auto* const wrong = std::get_if<WrongUse>(&command);
        ASSERT_NE(wrong, nullptr) << testing::PrintToString(row.arguments);
        EXPECT_EQ(wrong->text, row.text);
    }
}

TEST(HelpText, NamesEachOptionAndIsAtMost80ColumnsWide) {
    const std::string help = HelpText();
    for (const CreateOption& option : kCreateOptions) {
        EXPECT_NE(help.find("\n  --" + std::string(option.name)), std::string::npos) << option.name;
    }
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);) {
        EXPECT_LE(line.size(), 80U) << line;
    }
}

} // namespace
} // namespace tunedex
