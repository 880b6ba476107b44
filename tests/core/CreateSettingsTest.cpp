#include "CreateSettings.h"

#include "DefaultSettings.h"
#include "ExitStatus.h"
#include "Fakes.h"
#include "FolderSetting.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

namespace tunedex {
namespace {

class PrepareSettingsTest : public testing::Test {
  protected:
    PrepareSettingsTest() {
        music_ = folder_.Make("music");
        command_.folders = {music_};
        command_.outputFile = folder_ / "list.txt";
    }

    std::optional<Refusal> Prepare() { return PrepareSettings(fake_.application, command_); }
    // Prepares and expects a refusal.
    void ExpectRefusal(int status, const std::string& text) {
        const std::optional<Refusal> refusal = Prepare();
        ASSERT_TRUE(refusal.has_value()) << text;
        EXPECT_EQ(refusal->status, status) << text;
        EXPECT_EQ(refusal->text, text);
    }
    const Settings& Prepared() {
        const std::optional<Refusal> refusal = Prepare();
        EXPECT_FALSE(refusal.has_value()) << refusal->text;
        return fake_.application.settings;
    }

    const test::TestFolder folder_;
    test::FakeApplication fake_{folder_.Path()};
    std::string music_;
    CreateCommand command_;
};

TEST_F(PrepareSettingsTest, StartsWithModernDefaultsWithoutAnyFile) {
    Settings expected = DefaultSettings();
    expected.Modern = true;
    expected.Directory = music_;
    expected.OutputFile = folder_ / "list.txt";
    EXPECT_EQ(Prepared(), expected);
    EXPECT_FALSE(folder_.Exists("Tunedex.cfg"));
    EXPECT_FALSE(folder_.Exists("stats.lst"));
}

TEST_F(PrepareSettingsTest, TakesTheDefaultSettingsFileAsItIs) {
    folder_.Write("Tunedex.cfg", "Merge=1\r\nActiveColumns=Title\r\n");
    const Settings& settings = Prepared();
    EXPECT_EQ(settings.Merge, 1);
    EXPECT_EQ(settings.ActiveColumns, "Title");
    EXPECT_FALSE(settings.Modern);
}

TEST_F(PrepareSettingsTest, TakesANamedSettingsFileInstead) {
    folder_.Write("Tunedex.cfg", "Merge=1\r\n");
    command_.settingsFile = folder_.Write("other", "Merge=2\r\nModern=1\r\nno setting\r\n");
    EXPECT_EQ(Prepared().Merge, 2);
    EXPECT_TRUE(fake_.application.settings.Modern);
    EXPECT_EQ(fake_.faults.str(), folder_ / "other" + ":3: line skipped: no \"=\" in it\n");
}

TEST_F(PrepareSettingsTest, RefusesASettingsFileThatCannotBeRead) {
    command_.settingsFile = folder_ / "missing.cfg";
    ExpectRefusal(kExitCannotStart, "no such settings file: " + folder_ / "missing.cfg");
    command_.settingsFile = folder_.Path() + std::string(300, 'x');
    ExpectRefusal(kExitCannotStart, "the settings file cannot be read: " + *command_.settingsFile +
                                        ": Bad file name or number");
}

TEST_F(PrepareSettingsTest, ChangesTheSettingsByOptions) {
    folder_.Write("Tunedex.cfg", "Modern=1\r\nMerge=2\r\nActiveColumns=Number\r\n");
    command_.modern = false;
    command_.columns = "artist|Title";
    const Settings& settings = Prepared();
    EXPECT_FALSE(settings.Modern);
    EXPECT_EQ(settings.ActiveColumns, "artist|Title");
    EXPECT_EQ(settings.Merge, 0);
}

TEST_F(PrepareSettingsTest, ChecksTheColumnsOfTheStyleThatTheRunHas) {
    command_.columns = "Artist|Track";
    EXPECT_EQ(Prepared().ActiveColumns, "Artist|Track");
    command_.columns = "Artist||Title";
    ExpectRefusal(kExitCannotStart, "no such column: ");
    command_.columns = "Artist|Artists";
    ExpectRefusal(kExitCannotStart, "no such column: Artists");
    command_.columns = "Artist|Track";
    command_.modern = false;
    ExpectRefusal(kExitCannotStart, "only a modern list has the column: Track");
}

TEST_F(PrepareSettingsTest, TakesAThemeByNameOrPath) {
    folder_.Write("Themes/Deep Blue.THM", "Colour(1)=112233\r\nTableBorder=7\r\nModern=0\r\n");
    const std::string path = folder_.Write("mine.thm", "Colour(1)=445566\r\n");
    for (const auto& [theme, colour] : {std::pair<std::string, std::string>{"Deep Blue", "112233"},
                                        {"deep blue", "112233"},
                                        {path, "445566"}}) {
        command_.theme = theme;
        EXPECT_EQ(Prepared().Colour[1], colour) << theme;
        EXPECT_TRUE(fake_.application.settings.Modern);
    }
    command_.theme = "Pale Blue";
    ExpectRefusal(kExitCannotStart, "no such theme: Pale Blue");
    command_.theme = folder_ / "none.thm";
    ExpectRefusal(kExitCannotStart, "no such theme: " + folder_ / "none.thm");
}

TEST_F(PrepareSettingsTest, MakesAListOfSeveralFolders) {
    const std::string second = folder_.Make("second");
    command_.folders = {music_, second};
    EXPECT_EQ(FoldersOf(Prepared().Directory), (std::vector<std::string>{music_, second}));
    const std::string odd = folder_.Make("a%||%b");
    command_.folders = {odd};
    EXPECT_EQ(Prepared().Directory, odd);
    command_.folders = {music_, odd};
    ExpectRefusal(kExitFailure, "a folder whose name holds %||% can be listed only alone");
}

TEST_F(PrepareSettingsTest, NamesAFolderThatIsNone) {
    const std::string file = folder_.Write("file", "x");
    for (const std::string& folder : {folder_ / "missing", file}) {
        command_.folders = {music_, folder};
        ExpectRefusal(kExitFailure, "no such folder: " + folder);
    }
    command_.folders.clear();
    ExpectRefusal(kExitCannotStart, "no folder to list; name it with --folder");
    folder_.Write("Tunedex.cfg", "Directory=/nowhere/music\r\n");
    ExpectRefusal(kExitFailure, "no such folder: /nowhere/music");
    folder_.Write("Tunedex.cfg", "Directory=" + music_ + "\r\n");
    EXPECT_EQ(Prepared().Directory, music_);
}

TEST_F(PrepareSettingsTest, NamesAnOutputThatCannotBe) {
    command_.outputFile = folder_ / "none/list.htm";
    ExpectRefusal(kExitFailure, "no such folder for the list: " + folder_ / "none");
    command_.outputFile = music_ + "/";
    ExpectRefusal(kExitCannotStart, "--output names a folder, not a file: " + music_ + "/");
    command_.outputFile.reset();
    ExpectRefusal(kExitCannotStart, "no file to write; name it with --output");
    folder_.Write("Tunedex.cfg", "OutputFile=list.htm\r\n");
    EXPECT_EQ(Prepared().OutputFile, "list.htm");
}

TEST_F(PrepareSettingsTest, MakesPathsAbsolute) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(music_);
    const std::string here = std::filesystem::current_path();
    command_.folders = {"."};
    command_.outputFile = "../list.m3u";
    const Settings settings = Prepared();
    std::filesystem::current_path(before);
    EXPECT_EQ(settings.Directory, here);
    EXPECT_EQ(settings.OutputFile, std::filesystem::path(here).parent_path() / "list.m3u");
}

TEST_F(PrepareSettingsTest, WritesOnePageToStandardOutput) {
    for (const char* output : {"-", "-.htm", "-.html", "-.txt", "-.csv", "-.m3u", "-.m3u8"}) {
        EXPECT_TRUE(IsStandardOutput(output));
        command_.outputFile = output;
        EXPECT_EQ(Prepared().OutputFile, output);
        EXPECT_EQ(fake_.application.settings.Spanning, 0);
    }
    command_.modern = false;
    for (const char* output : {"-.csv", "-.m3u8"}) {
        command_.outputFile = output;
        ExpectRefusal(kExitCannotStart, std::string("only a modern list has this format: ") + output);
    }
    for (const char* output : {"", "--", "-.pdf", "./-", "-.CSV", "list.htm"}) {
        EXPECT_FALSE(IsStandardOutput(output)) << output;
    }
}

} // namespace
} // namespace tunedex
