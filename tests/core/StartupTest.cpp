#include "Startup.h"

#include "DefaultSettings.h"
#include "Fakes.h"
#include "ListJob.h"
#include "Mp3Builder.h"
#include "OrdinaryUser.h"
#include "Raises.h"
#include "TestFolder.h"
#include "Version.h"

#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tunedex {
namespace {

using Message = test::FakeUserInterface::Message;

class StartUpTest : public testing::Test {
  protected:
    void Start(const std::vector<std::string>& arguments = {}) { StartUp(fake_.application, ui_, arguments); }

    const test::TestFolder folder_;
    test::FakeApplication fake_{folder_.Path()};
    test::FakeUserInterface ui_;
    Application& application_ = fake_.application;
};

TEST_F(StartUpTest, StartsWithDefaultsWithoutAnyFile) {
    application_.abortRequested = true;
    Start();
    Settings defaults = DefaultSettings();
    EXPECT_EQ(application_.settings, defaults);
    EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 0, 0}));
    EXPECT_EQ(application_.programFolder, folder_.Path());
    EXPECT_FALSE(application_.automaticMode);
    EXPECT_EQ(application_.errorTitle, "Error!");
    EXPECT_FALSE(application_.abortRequested);
    EXPECT_TRUE(ui_.messages.empty());
    EXPECT_EQ(fake_.faults.str(), "");
    EXPECT_FALSE(folder_.Exists("stats.lst"));
    EXPECT_FALSE(folder_.Exists("Tunedex.cfg"));
}

TEST_F(StartUpTest, SetsModeAndErrorTitleFromTheArguments) {
    Start({"/auto"});
    EXPECT_TRUE(application_.automaticMode);
    EXPECT_EQ(application_.errorTitle, "Tunedex Error! (Automatic Mode)");
    Start({"list.cfg"});
    EXPECT_FALSE(application_.automaticMode);
    EXPECT_EQ(application_.errorTitle, "Error!");
}

TEST_F(StartUpTest, AppendsASeparatorToTheInstallationPath) {
    fake_.registry.values["InstallationPath"] = folder_.Path().substr(0, folder_.Path().size() - 1);
    Start();
    EXPECT_EQ(application_.programFolder, folder_.Path());
}

TEST_F(StartUpTest, CountsTheStart) {
    folder_.Write("stats.lst", "\"15/11/2026\"\r\n9\r\n2\r\n57\r\n");
    Start();
    EXPECT_EQ(application_.statistics, (Statistics{"15/11/2026", 10, 2, 57}));
}

TEST_F(StartUpTest, ReportsMalformedStatisticsAndResetsThem) {
    struct Row {
        const char* bytes;
        const char* error;
    };
    const std::vector<Row> rows = {
        {"", "62 - Input past end of file"},
        {"\"x\"\r\n1\r\n2\r\n", "62 - Input past end of file"},
        {"\"x\"\r\nmany\r\n2\r\n3\r\n", "13 - Type mismatch"},
        {"\"\r\n1\r\n2\r\n3\r\n", "5 - Invalid procedure call or argument"},
        {"\"x\"\r\n1\r\n2\r\n3000000000\r\n", "6 - Overflow"},
    };
    for (const Row& row : rows) {
        folder_.Write("stats.lst", row.bytes);
        ui_.messages.clear();
        Start({"/AUTO"});
        EXPECT_EQ(ui_.messages,
                  (std::vector<Message>{
                      {std::string("An unexpected error occurred. The error was: \r\n\r\nError number ") +
                           row.error,
                       48, "Tunedex Error! (Automatic Mode)"}}));
        EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 0, 0}));
        EXPECT_EQ(test::ReadBytes(folder_ / "stats.lst"), row.bytes);
    }
}

TEST_F(StartUpTest, FillsTheFieldsFromTheDefaultSettingsFile) {
    folder_.Write("Tunedex.cfg",
                  "Directory=/music\r\nOutputFile=/list.htm\r\nWindowTitle=w\r\nPageTitle=p\r\n"
                  "PageFooter=f\r\n");
    Start({"other.cfg"});
    EXPECT_FALSE(ui_.fields.multipleFolders);
    EXPECT_EQ(ui_.fields.inputFolder, "/music");
    EXPECT_EQ(ui_.fields.outputFile, "/list.htm");
    EXPECT_EQ(ui_.fields.windowTitle, "w");
    EXPECT_EQ(ui_.fields.pageTitle, "p");
    EXPECT_EQ(ui_.fields.pageFooter, "f");
    EXPECT_EQ(application_.settings.Spanning, 0) << "an existing file replaces all defaults";
}

TEST_F(StartUpTest, KeepsAStoredFolderList) {
    folder_.Write("Tunedex.cfg", "Directory=%MULT%/a%||%/b\r\n");
    Start();
    EXPECT_TRUE(ui_.fields.multipleFolders);
    EXPECT_EQ(ui_.fields.inputFolder, "");
    EXPECT_EQ(application_.settings.Directory, "%MULT%/a%||%/b");
}

TEST_F(StartUpTest, ReportsFaultyLinesWithoutAMessage) {
    folder_.Write("Tunedex.cfg", "Recurse\r\nPageTitle=p\r\n");
    Start();
    EXPECT_EQ(fake_.faults.str(), folder_ / "Tunedex.cfg" + ":1: line skipped: no \"=\" in it\n");
    EXPECT_TRUE(ui_.messages.empty());
    EXPECT_EQ(application_.settings.PageTitle, "p");
}

TEST_F(StartUpTest, RaisesTheErrorOfASettingsFileThatCannotBeRead) {
    ASSERT_EQ(mkfifo((folder_ / "Tunedex.cfg").c_str(), 0600), 0);
    EXPECT_EQ(test::RaisedBy([&] { Start(); }), 53);
}

TEST_F(StartUpTest, FindsTheHelpFile) {
    const std::string help = folder_.Write("Help.html", "x");
    Start();
    EXPECT_EQ(application_.helpFile, help);
}

TEST_F(StartUpTest, LoadsTheDefaultsThatItWrites) {
    WriteDefaultSettings(application_, folder_ / "new");
    Settings settings;
    EXPECT_EQ(LoadSettings(settings, folder_ / "new.cfg", folder_.Path(), {}, fake_.faults),
              LoadOutcome::Loaded);
    EXPECT_EQ(settings, DefaultSettings());
    EXPECT_EQ(fake_.faults.str(), "");
    EXPECT_EQ(test::RaisedBy([&] { WriteDefaultSettings(application_, folder_ / "none/new.cfg"); }), 76);
    EXPECT_EQ(test::RaisedBy([&] { WriteDefaultSettings(application_, ""); }), 52);
}

TEST(StampNow, HasVersionDateAndTimeInTheUsersFormats) {
    const test::TestFolder folder;
    const test::FakeApplication fake(folder.Path());
    const FileStamp stamp = StampNow(fake.application);
    EXPECT_EQ(stamp.version, kVersionText);
    EXPECT_EQ(stamp.date, "2026-11-21");
    EXPECT_EQ(stamp.time, "14:05");
}

TEST(TakeLayoutControls, LeavesOnlyTheThreeDocumentTypes) {
    const std::vector<std::pair<const char*, const char*>> rows = {
        {"XHTML", "XHTML"}, {"HTML", "HTML"},   {"HTML5", "HTML5"}, {"xhtml", "HTML"},
        {"", "HTML"},       {"XHTML ", "HTML"}, {"html5", "HTML"},  {"HTML5 ", "HTML"},
        {" HTML5", "HTML"}, {"HTML 5", "HTML"}, {"XHTML5", "HTML"}, {"HTML51", "HTML"}};
    for (const auto& [before, after] : rows) {
        Settings settings;
        settings.DocumentType = before;
        settings.SizeType = 7; // no option button has this number, so it is kept
        settings.SortOrder = 9;
        settings.Merge = -1;
        TakeLayoutControls(settings);
        EXPECT_EQ(settings.DocumentType, after) << before;
        EXPECT_EQ(settings.SizeType, 7);
        EXPECT_EQ(settings.SortOrder, 9);
        EXPECT_EQ(settings.Merge, -1);
    }
}

class CommandTest : public StartUpTest {
  protected:
    CommandTest() {
        folder_.Write("music/a.mp3", test::Audio(8192) + test::Id3v1Tag({"Rock & <Roll>", "", "", "", ""}));
        folder_.Make("out");
        application_.settings = DefaultSettings();
        application_.settings.Spanning = 0;
        application_.programFolder = folder_.Path();
        ui_.fields.inputFolder = folder_ / "music";
        ui_.fields.outputFile = folder_ / "out/list.htm";
    }
    bool Create() { return CreateListCommand(application_, ui_).Written(); }
};

TEST_F(CommandTest, ReloadsTheEntityTableEachTime) {
    ASSERT_TRUE(Create());
    EXPECT_NE(test::ReadBytes(folder_ / "out/list.htm").find("Rock & <Roll>"), std::string::npos);
    folder_.Write("html_entities.lst", "38\t&amp;\r\n60\t&lt;\r\n");
    ASSERT_TRUE(Create());
    EXPECT_NE(test::ReadBytes(folder_ / "out/list.htm").find("Rock &amp; &lt;Roll>"), std::string::npos);
}

TEST_F(CommandTest, ReportsFaultyEntityLinesAndContinues) {
    folder_.Write("html_entities.lst", "38 &amp;\r\n60\t&lt;\r\n");
    ASSERT_TRUE(Create());
    EXPECT_EQ(fake_.faults.str(), folder_ / "html_entities.lst" + ":1: line skipped: no TAB in it\n");
    EXPECT_NE(test::ReadBytes(folder_ / "out/list.htm").find("Rock & &lt;Roll>"), std::string::npos);
}

TEST_F(CommandTest, ReportsAnUnreadableEntityTableAndCreatesNoList) {
    ASSERT_EQ(mkfifo((folder_ / "html_entities.lst").c_str(), 0600), 0);
    EXPECT_FALSE(Create());
    EXPECT_EQ(ui_.messages,
              (std::vector<Message>{
                  {"An unexpected error occurred. The error was: \r\n\r\nError number 53 - File not found",
                   48, "Error"}}));
    EXPECT_EQ(ui_.shown, 0);
}

TEST_F(CommandTest, UsesTheFolderFieldUnlessAFolderListIsSet) {
    ui_.fields.outputFile = ""; // the run ends at validation
    application_.settings.Directory = "/before";
    Create();
    EXPECT_EQ(application_.settings.Directory, folder_ / "music");
    application_.settings.Directory = "%MULT%/a";
    ui_.fields.multipleFolders = true;
    Create();
    EXPECT_EQ(application_.settings.Directory, "%MULT%/a");
}

TEST_F(CommandTest, SavesTheStatisticsOnlyAtExit) {
    const char* const before = "\"15/11/2026\"\r\n9\r\n2\r\n57\r\n";
    folder_.Write("stats.lst", before);
    application_.statistics = LoadStatistics(folder_ / "stats.lst", "today");
    ASSERT_TRUE(Create());
    EXPECT_EQ(test::ReadBytes(folder_ / "stats.lst"), before);
    SaveStatisticsAtExit(application_);
    EXPECT_EQ(test::ReadBytes(folder_ / "stats.lst"), "\"15/11/2026\"\r\n10\r\n3\r\n58\r\n");
}

TEST_F(StartUpTest, FirstStartCreatesTheStatisticsFileAtExit) {
    Start();
    SaveStatisticsAtExit(application_);
    EXPECT_EQ(test::ReadBytes(folder_ / "stats.lst"), "\"2026-11-21\"\r\n1\r\n0\r\n0\r\n");
}

} // namespace
} // namespace tunedex
