#include "CommandLine.h"

#include "Text.h"

#include <gtest/gtest.h>

#include <string>
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

TEST(InformationText, ExistsOnlyForASingleExactArgument) {
    EXPECT_TRUE(InformationText({"--help"}).has_value());
    EXPECT_TRUE(InformationText({"--version"}).has_value());
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
        EXPECT_FALSE(InformationText(arguments).has_value()) << (arguments.empty() ? "" : arguments.front());
    }
}

TEST(DefaultsFile, IsTheFileOfTheOptionAsTheOnlyArguments) {
    EXPECT_EQ(DefaultsFile({"--write-defaults", "new.cfg"}), "new.cfg");
    EXPECT_EQ(DefaultsFile({"--write-defaults", "/AUTO"}), "/AUTO");
    EXPECT_EQ(DefaultsFile({"--write-defaults", ""}), "");
    const std::vector<std::vector<std::string>> others = {{},
                                                          {"--write-defaults"},
                                                          {"new.cfg", "--write-defaults"},
                                                          {"--write-defaults", "new.cfg", "/AUTO"},
                                                          {"--write-defaults=new.cfg", ""},
                                                          {"--Write-Defaults", "new.cfg"}};
    for (const auto& arguments : others) {
        EXPECT_EQ(DefaultsFile(arguments), std::nullopt) << (arguments.empty() ? "" : arguments.front());
    }
}

TEST(InformationText, ShowsTheVersionWithItsBuildNumber) {
    EXPECT_EQ(InformationText({"--version"}), "Tunedex 1.0.0\n");
}

TEST(InformationText, HelpFitsInEightyColumns) {
    const std::string text = *InformationText({"--help"});
    EXPECT_TRUE(text.ends_with("read\n")) << "the last line is whole";
    EXPECT_TRUE(IsAscii(text));
    for (const std::string& line : Split(text, "\n")) {
        EXPECT_LE(line.size(), 80U) << line;
        EXPECT_FALSE(line.ends_with(" ")) << line;
    }
}

} // namespace
} // namespace tunedex
