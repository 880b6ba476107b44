#include "ListJob.h"

#include "DefaultSettings.h"
#include "Fakes.h"
#include "Mp3Builder.h"
#include "OrdinaryUser.h"
#include "TestFolder.h"
#include "Text.h"
#include "UniqueFd.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <new>
#include <string>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace tunedex {
namespace {

namespace fs = std::filesystem;
using Message = test::FakeUserInterface::Message;
using Messages = std::vector<Message>;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

class ListJob : public testing::Test {
  protected:
    ListJob() {
        folder_.Make("program");
        folder_.Make("music");
        folder_.Make("out");
        application_.programFolder = folder_ / "program/";
        application_.settings = DefaultSettings();
        application_.settings.Spanning = 0;
        application_.settings.ActiveColumns = "Artist|Title";
        application_.settings.Merge = 0;
        application_.statistics = {"2026-11-21", 1, 4, 40};
        ui_.fields.inputFolder = folder_ / "music";
        ui_.fields.outputFile = folder_ / "out/list.txt";
        ui_.fields.windowTitle = "%C files";
        ui_.fields.pageTitle = "%C titles";
        ui_.fields.pageFooter = "%N";
    }

    void AddTrack(const std::string& name, const std::string& artist) {
        folder_.Write("music/" + name, test::Audio(8192) + test::Id3v1Tag({"T", artist, "", "", ""}));
    }
    void AddTracks(int count) {
        for (int i = 0; i < count; ++i) {
            AddTrack("t" + std::to_string(i) + ".mp3", "Artist " + std::to_string(count - i));
        }
    }
    bool Run() { return CreateList(application_, ui_).Written(); }
    std::string List(const std::string& name = "out/list.txt") const {
        return test::ReadBytes(folder_ / name);
    }

    bool Said(const std::string& status) const {
        const auto& statuses = ui_.monitor.statuses;
        return std::find(statuses.begin(), statuses.end(), status) != statuses.end();
    }
    // Abort is pressed once this status is shown, and stays pressed.
    void AbortFrom(const std::string& status) {
        ui_.monitor.abortWhen = [this, status] {
            begun_ = begun_ || Said(status);
            return begun_;
        };
    }
    // The run ended before any file or window was opened.
    void ExpectRefused(const Messages& messages) {
        EXPECT_FALSE(Run());
        EXPECT_EQ(ui_.messages, messages);
        EXPECT_EQ(ui_.shown, 0);
        EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 4, 40}));
    }
    static Messages Trapped(const std::string& error) {
        return {{"An unexpected error occurred. The error was: \r\n\r\nError number " + error, 48, "Error"}};
    }

    const test::TestFolder folder_;
    test::FakeApplication fake_{folder_.Path()};
    test::FakeUserInterface ui_;
    Application& application_ = fake_.application;
    bool begun_ = false; // whether Abort has been pressed
};

TEST_F(ListJob, ReturnsTheFirstPageAndWhatItWrote) {
    AddTracks(5);
    application_.settings.Spanning = 2;
    ui_.fields.outputFile = folder_ / "out/list";
    const RunOutcome pages = CreateList(application_, ui_);
    EXPECT_TRUE(pages.Written());
    EXPECT_EQ(pages.tracks, 5);
    EXPECT_EQ(pages.pages, 3);
    EXPECT_EQ(pages.file, folder_ / "out/list.001.htm");
    EXPECT_FALSE(pages.Incomplete());
    ui_.fields.outputFile = folder_ / "out/list.txt";
    const RunOutcome text = CreateList(application_, ui_);
    EXPECT_EQ(text.pages, 1);
    EXPECT_EQ(text.file, folder_ / "out/list.txt");
}

TEST_F(ListJob, ReturnsWhatItDidNotReadAndHowManyTagsAreModern) {
    AddTracks(2);
    folder_.Write("music/b.mp3", test::Id3v2Tag({{"TIT2", "\3title"}}) + test::Audio(8192));
    fs::create_directory(folder_ / "music/Live.mp3");
    application_.settings.Recurse = false;
    application_.settings.Modern = true;
    const RunOutcome modern = CreateList(application_, ui_);
    EXPECT_TRUE(modern.Written());
    EXPECT_TRUE(modern.modern);
    EXPECT_EQ(modern.tracks, 3);
    EXPECT_EQ(modern.unreadFiles, 1U);
    EXPECT_EQ(modern.unreadFolders, 0U);
    EXPECT_EQ(modern.modernTags, 0);
    fs::remove(folder_ / "music/Live.mp3");
    application_.settings.Modern = false;
    const RunOutcome classic = CreateList(application_, ui_);
    EXPECT_EQ(classic.modernTags, 1);
    EXPECT_FALSE(classic.Incomplete());
}

TEST_F(ListJob, ReturnsNoFileOfARunThatWroteNone) {
    EXPECT_EQ(CreateList(application_, ui_).file, "");
    AddTracks(2);
    AbortFrom("Sorting information...");
    const RunOutcome aborted = CreateList(application_, ui_);
    EXPECT_FALSE(aborted.Written());
    EXPECT_EQ(aborted.file, "");
}

TEST_F(ListJob, ShowsItsPhasesInOrderAndWritesTheList) {
    AddTrack("a.mp3", "Zappa");
    AddTrack("b.MP3", "Abba");
    EXPECT_TRUE(Run());
    EXPECT_EQ(ui_.monitor.statuses,
              (std::vector<std::string>{"Searching for MP3 files...", "Retrieving MPEG/ID3 information...",
                                        "Retrieving MPEG/ID3 information (1/2)...",
                                        "Retrieving MPEG/ID3 information (2/2)...", "Sorting information...",
                                        "Writing information...", "Operation complete!"}));
    EXPECT_EQ(ui_.monitor.maximum, 2);
    EXPECT_EQ(List(), "Artist\tTitle\r\nAbba\tT\r\nZappa\tT\r\n");
    EXPECT_EQ(fake_.clock.slept, std::chrono::seconds(1));
    EXPECT_EQ(ui_.shown, 1);
    EXPECT_EQ(ui_.closed, 1);
    EXPECT_TRUE(ui_.messages.empty());
    EXPECT_EQ(ui_.enabled, 0) << "closing the progress window enables the windows";
}

TEST_F(ListJob, PausesOneSecondBeforeTheProgressWindowCloses) {
    AddTracks(1);
    int closedWhenWriting = -1;
    ui_.monitor.abortWhen = [&] {
        closedWhenWriting = ui_.closed;
        return false;
    };
    EXPECT_TRUE(Run());
    EXPECT_EQ(closedWhenWriting, 0);
    EXPECT_EQ(ui_.monitor.statuses.back(), "Operation complete!");
}

TEST_F(ListJob, ShowsAutomaticModeInTheProgressCaptionFromTheReadPhaseOn) {
    AddTracks(2);
    EXPECT_TRUE(Run());
    EXPECT_EQ(ui_.caption, "");
    application_.automaticMode = true;
    bool early = false;
    ui_.monitor.abortWhen = [&] {
        early =
            early || (ui_.monitor.statuses.back() == "Searching for MP3 files..." && !ui_.caption.empty());
        return false;
    };
    ui_.monitor.statuses.clear();
    EXPECT_TRUE(Run());
    EXPECT_FALSE(early);
    EXPECT_EQ(ui_.caption, "Tunedex (Automatic Mode)");
}

TEST_F(ListJob, KeepsFolderOrderWithoutSorting) {
    AddTracks(12);
    application_.settings.SortOrder = 0;
    application_.settings.ActiveColumns = "Filename";
    EXPECT_TRUE(Run());
    std::string expected = "Filename\r\n";
    for (const fs::directory_entry& entry : fs::directory_iterator(folder_ / "music")) {
        expected += entry.path().filename().string() + "\r\n";
    }
    EXPECT_EQ(List(), expected);
    EXPECT_TRUE(Said("Sorting information..."));
}

TEST_F(ListJob, SortsDescendingWhenSet) {
    AddTrack("a.mp3", "Abba");
    AddTrack("b.mp3", "Zappa");
    application_.settings.SortOrder = 2;
    EXPECT_TRUE(Run());
    EXPECT_EQ(List(), "Artist\tTitle\r\nZappa\tT\r\nAbba\tT\r\n");
}

TEST_F(ListJob, WalksSubfoldersOnlyWhenSet) {
    AddTrack("a.mp3", "Abba");
    AddTrack("sub/b.mp3", "Zappa");
    application_.settings.Recurse = false;
    EXPECT_TRUE(Run());
    EXPECT_EQ(List(), "Artist\tTitle\r\nAbba\tT\r\n");
    application_.settings.Recurse = true;
    EXPECT_TRUE(Run());
    EXPECT_EQ(List(), "Artist\tTitle\r\nAbba\tT\r\nZappa\tT\r\n");
}

TEST_F(ListJob, WritesTheSameBytesTwice) {
    AddTracks(30);
    for (const char* name : {"out/list.txt", "out/list.htm", "out/list.m3u"}) {
        ui_.fields.outputFile = folder_ / name;
        ASSERT_TRUE(Run());
        const std::string first = List(name);
        ASSERT_TRUE(Run());
        EXPECT_EQ(List(name), first);
    }
}

TEST_F(ListJob, ChoosesTheFormatByExtension) {
    AddTracks(1);
    struct Row {
        const char* outputFile;
        const char* written;
        const char* beginning;
    };
    const std::vector<Row> rows = {
        {"list.htm", "list.htm", "<!DOCTYPE"},     {"list.Htm", "list.Htm", "<!DOCTYPE"},
        {"list.HTML", "list.HTML", "<!DOCTYPE"},   {"list.xml", "list.xml.htm", "<!DOCTYPE"},
        {"list", "list.htm", "<!DOCTYPE"},         {"txt", "txt.htm", "<!DOCTYPE"},
        {"m3u", "m3u.htm", "<!DOCTYPE"},           {"a.txt.bak", "a.txt.bak.htm", "<!DOCTYPE"},
        {"list.TXT", "list.TXT", "Artist\tTitle"}, {"list.text", "list.text.txt", "Artist\tTitle"},
        {"list.M3u", "list.M3u", "#EXTM3U\r\n"},   {"a.htm.m3u", "a.htm.m3u", "#EXTM3U\r\n"},
    };
    for (const Row& row : rows) {
        fs::remove_all(folder_ / "out");
        folder_.Make("out");
        ui_.fields.outputFile = folder_ / "out/" + row.outputFile;
        EXPECT_TRUE(Run()) << row.outputFile;
        ASSERT_TRUE(folder_.Exists(std::string("out/") + row.written)) << row.outputFile;
        EXPECT_TRUE(List(std::string("out/") + row.written).starts_with(row.beginning)) << row.outputFile;
        EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "out"), fs::directory_iterator()), 1);
    }
}

TEST_F(ListJob, RefusesAMissingInputFolder) {
    ui_.fields.inputFolder = folder_ / "none";
    application_.settings.Directory = "before";
    ExpectRefused({{"The specified directory does not exist!", 48, "Error!"}});
    EXPECT_EQ(ui_.focused, std::vector<MainField>{MainField::InputFolder});
    EXPECT_EQ(application_.settings.Directory, "before");
}

TEST_F(ListJob, RefusesAFileAsInputFolder) {
    AddTracks(1);
    ui_.fields.inputFolder = folder_ / "music/t0.mp3";
    ExpectRefused({{"The specified directory does not exist!", 48, "Error!"}});
}

TEST_F(ListJob, UsesTheErrorTitleOfTheModeForRefusals) {
    application_.errorTitle = "Tunedex Error! (Automatic Mode)";
    ui_.fields.inputFolder = folder_ / "none";
    ExpectRefused({{"The specified directory does not exist!", 48, "Tunedex Error! (Automatic Mode)"}});
}

TEST_F(ListJob, RefusesAnEmptyInputFolder) {
    ui_.fields.inputFolder = ""; // the current folder passes the folder test
    ExpectRefused({{"No input directory specified!", 48, "Error!"}});
    EXPECT_TRUE(ui_.focused.empty());
}

TEST_F(ListJob, RefusesAnEmptyFolderList) {
    ui_.fields.multipleFolders = true;
    for (const char* value : {"%MULT%", ""}) {
        application_.settings.Directory = value;
        ui_.messages.clear();
        ExpectRefused({{"No input directories specified!", 48, "Error!"}});
        EXPECT_EQ(application_.settings.Directory, value);
    }
}

TEST_F(ListJob, RefusesAnEmptyOutputFile) {
    ui_.fields.outputFile = "";
    application_.settings.OutputFile = "taken over by the field";
    ExpectRefused({{"No output file specified!", 48, "Error!"}});
}

TEST_F(ListJob, ValidatesTheInputBeforeTheOutput) {
    ui_.fields.inputFolder = "";
    ui_.fields.outputFile = "";
    ExpectRefused({{"No input directory specified!", 48, "Error!"}});
    ui_.fields.inputFolder = folder_ / "none";
    ui_.messages.clear();
    ExpectRefused({{"The specified directory does not exist!", 48, "Error!"}});
}

const Message kCreateQuestion = {"The output directory does not exist!\r\n\r\nDo you want to create it?", 52,
                                 "Error!"};

TEST_F(ListJob, CreatesTheOutputFolderOnlyIfTheAnswerIsYes) {
    AddTracks(1);
    ui_.fields.outputFile = folder_ / "new/list.txt";
    for (const int answer : {kAnswerNo, kAnswerCancel, kAnswerOk}) {
        ui_.answers = {answer};
        ui_.messages.clear();
        ui_.focused.clear();
        ExpectRefused({kCreateQuestion});
        EXPECT_EQ(ui_.focused, std::vector<MainField>{MainField::OutputFile});
        EXPECT_FALSE(folder_.Exists("new"));
    }
}

TEST_F(ListJob, CreatesEveryMissingLevelOfTheOutputFolder) {
    AddTracks(1);
    ui_.fields.outputFile = folder_ / "out/a/b/c/list.txt";
    ui_.answers = {kAnswerYes};
    EXPECT_TRUE(Run());
    EXPECT_EQ(ui_.messages, Messages{kCreateQuestion});
    EXPECT_EQ(List("out/a/b/c/list.txt"), "Artist\tTitle\r\nArtist 1\tT\r\n");
}

TEST_F(ListJob, ReportsAnOutputFolderThatCannotBeCreated) {
    folder_.Write("out/file", "x");
    ui_.fields.outputFile = folder_ / "out/file/list.txt";
    ui_.answers = {kAnswerYes};
    EXPECT_FALSE(Run());
    ASSERT_EQ(ui_.messages.size(), 2U);
    ui_.messages.erase(ui_.messages.begin());
    // A file of that name exists, so mkdir fails.
    EXPECT_EQ(ui_.messages.front().title, "Error");
    EXPECT_EQ(ui_.messages.front().buttons, 48);
    EXPECT_TRUE(
        ui_.messages.front().text.starts_with("An unexpected error occurred. The error was: \r\n\r\n"));
    EXPECT_EQ(ui_.shown, 0);
}

TEST_F(ListJob, ReportsAnOutputFolderThatTheUserMayNotCreate) {
    AddTracks(1);
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_EQ(chmod((folder_ / "out").c_str(), 0555), 0);
        ui_.fields.outputFile = folder_ / "out/a/list.txt";
        ui_.answers = {kAnswerYes};
        EXPECT_FALSE(Run());
        EXPECT_EQ(ui_.messages, (Messages{kCreateQuestion, Trapped("75 - Path/File access error").front()}));
    });
}

TEST_F(ListJob, WritesABareNameIntoTheCurrentFolder) {
    AddTracks(1);
    ui_.fields.outputFile = "list.txt";
    test::InChild([&] {
        ASSERT_EQ(chdir((folder_ / "out").c_str()), 0);
        EXPECT_TRUE(Run());
        EXPECT_TRUE(ui_.messages.empty());
    });
    EXPECT_TRUE(folder_.Exists("out/list.txt"));
}

const char* const kFolderNotExamined = "An error occurred verifying your input directory.\r\n\r\n"
                                       "This could be because you do not have permission\r\n"
                                       "to access the directory, or you may be attempting\r\n"
                                       "to use a non-existent network share.";

TEST_F(ListJob, ExplainsWhyAFolderCouldNotBeExamined) {
    ASSERT_EQ(symlink("self", (folder_ / "self").c_str()), 0);
    application_.errorTitle = "Tunedex Error! (Automatic Mode)";
    ui_.fields.inputFolder = folder_ / "self";
    ExpectRefused({{kFolderNotExamined, 48, "Error"}});
    ui_.fields.inputFolder = folder_ / "music";
    ui_.fields.outputFile = folder_ / "self/list.txt";
    ui_.messages.clear();
    ExpectRefused({{kFolderNotExamined, 48, "Error"}});
}

TEST_F(ListJob, ExplainsAFolderWithoutPermission) {
    folder_.Make("closed/music");
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_EQ(chmod((folder_ / "closed").c_str(), 0), 0);
        ui_.fields.inputFolder = folder_ / "closed/music";
        ExpectRefused({{kFolderNotExamined, 48, "Error"}});
    });
}

TEST_F(ListJob, ReportsThatNothingWasFoundAndKeepsTheStatistics) {
    folder_.Write("music/readme.txt", "x");
    EXPECT_FALSE(Run());
    EXPECT_EQ(ui_.messages,
              (Messages{{"No MP3 files were found\r\nin the directory specified.", 64, "No MP3 files!"}}));
    EXPECT_EQ(ui_.enabled, 1);
    EXPECT_EQ(ui_.closed, 0) << "the progress window stays open";
    EXPECT_EQ(ui_.monitor.statuses, std::vector<std::string>{"Searching for MP3 files..."});
    EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 4, 40}));
    EXPECT_EQ(application_.settings.Directory, folder_ / "music");
    EXPECT_FALSE(folder_.Exists("out/list.txt"));
}

TEST_F(ListJob, UsesTheWordDirectoriesForSeveralFolders) {
    ui_.fields.multipleFolders = true;
    application_.settings.Directory = "%MULT%" + folder_ / "music" + "%||%" + folder_ / "out";
    EXPECT_FALSE(Run());
    EXPECT_EQ(ui_.messages,
              (Messages{{"No MP3 files were found\r\nin the directories specified.", 64, "No MP3 files!"}}));
}

TEST_F(ListJob, IgnoresTheFolderFieldForSeveralFolders) {
    AddTrack("one/a.mp3", "Abba");
    AddTrack("two/b.mp3", "Zappa");
    ui_.fields.multipleFolders = true;
    ui_.fields.inputFolder = "/none";
    const std::string value = "%MULT%" + folder_ / "music/one" + "%||%" + folder_ / "music/two";
    application_.settings.Directory = value;
    EXPECT_TRUE(Run());
    EXPECT_EQ(List(), "Artist\tTitle\r\nAbba\tT\r\nZappa\tT\r\n");
    EXPECT_EQ(application_.settings.Directory, value);
}

TEST_F(ListJob, DoesNotTouchTheLogWhenItIsOff) {
    AddTracks(1);
    EXPECT_TRUE(Run());
    EXPECT_FALSE(folder_.Exists("program/Tunedex.log"));
    folder_.Write("program/Tunedex.log", "old");
    EXPECT_TRUE(Run());
    EXPECT_EQ(List("program/Tunedex.log"), "old");
}

TEST_F(ListJob, TruncatesTheLogAtTheStartOfEveryValidRun) {
    AddTracks(1);
    application_.settings.ErrorLog = true;
    folder_.Write("program/Tunedex.log", "old");
    ui_.fields.outputFile = "";
    EXPECT_FALSE(Run());
    EXPECT_EQ(List("program/Tunedex.log"), "old");
    ui_.fields.outputFile = folder_ / "out/list.txt";
    EXPECT_TRUE(Run());
    EXPECT_EQ(List("program/Tunedex.log"), "");
    fs::remove_all(folder_ / "music");
    folder_.Make("music");
    folder_.Write("program/Tunedex.log", "old");
    EXPECT_FALSE(Run()) << "no files found";
    EXPECT_EQ(List("program/Tunedex.log"), "");
}

TEST_F(ListJob, EndsWhenTheLogCannotBeOpened) {
    AddTracks(1);
    application_.settings.ErrorLog = true;
    folder_.Make("program/Tunedex.log");
    ExpectRefused(Trapped("75 - Path/File access error"));
    EXPECT_FALSE(folder_.Exists("out/list.txt"));
}

TEST_F(ListJob, ReportsAFolderThatCannotBeReadAndContinues) {
    AddTrack("a.mp3", "Abba");
    folder_.Make("music/closed");
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_EQ(chmod((folder_ / "music/closed").c_str(), 0), 0);
        application_.settings.ErrorLog = true;
        EXPECT_TRUE(Run());
        const Message message = {"An error occurred scanning the directory: \r\n\r\n" +
                                     folder_ / "music/closed" + "\r\n\r\n75: Path/File access error",
                                 48, "Error!"};
        EXPECT_EQ(ui_.messages, (Messages{message, message})) << "once per walk";
        const std::string line = "An error occurred scanning the directory: " + folder_ / "music/closed" +
                                 "75: Path/File access error\r\n";
        EXPECT_EQ(List("program/Tunedex.log"), line + line);
        EXPECT_EQ(List(), "Artist\tTitle\r\nAbba\tT\r\n");
        EXPECT_EQ(application_.statistics.ListsCreated, 5);
    });
}

TEST_F(ListJob, ReportsAFileWhoseHeadersCannotBeDecodedAndListsIt) {
    folder_.Write("music/junk.mp3", std::string(5000, 'x') + test::Id3v1Tag({"J", "Junk", "", "", ""}));
    application_.settings.ErrorLog = true;
    EXPECT_TRUE(Run());
    EXPECT_EQ(ui_.messages,
              (Messages{{"An error occurred decoding the headers of: \r\n\r\n" + folder_ / "music/junk.mp3",
                         48, "Error!"}}));
    EXPECT_EQ(List("program/Tunedex.log"),
              "An error occurred decoding the headers of: " + folder_ / "music/junk.mp3" + "\r\n");
    EXPECT_EQ(List(), "Artist\tTitle\r\nJunk\tJ\r\n");
    // With warnings off, the log shows line breaks as two characters.
    application_.settings.ErrorWarnings = false;
    ui_.messages.clear();
    EXPECT_TRUE(Run());
    EXPECT_TRUE(ui_.messages.empty());
    EXPECT_EQ(List("program/Tunedex.log"),
              R"(An error occurred decoding the headers of: \n\n)" + folder_ / "music/junk.mp3" + "\r\n");
}

TEST_F(ListJob, CountsTheListAndItsFiles) {
    AddTracks(3);
    EXPECT_TRUE(Run());
    EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 5, 43}));
    // The count is that of the search, even if a file vanishes before it is read.
    ui_.monitor.statuses.clear();
    bool removed = false;
    ui_.monitor.abortWhen = [&] {
        if (!removed && ui_.monitor.statuses.back() != "Searching for MP3 files...") {
            removed = fs::remove(folder_ / "music/t0.mp3");
        }
        return false;
    };
    Run();
    EXPECT_TRUE(removed);
    EXPECT_EQ(application_.statistics.FilesHandled, 46);
}

TEST_F(ListJob, ReportsStatisticsThatOverflow) {
    AddTracks(2);
    application_.statistics = {"x", 1, kMost, 0};
    Run();
    EXPECT_EQ(ui_.messages, Trapped("6 - Overflow"));
    EXPECT_EQ(application_.statistics, (Statistics{"x", 1, kMost, 0}));
    EXPECT_EQ(ui_.closed, 0) << "the error trap closes no window";
    EXPECT_TRUE(folder_.Exists("out/list.txt"));
    application_.statistics = {"x", 1, 0, kMost - 1};
    ui_.messages.clear();
    Run();
    EXPECT_EQ(ui_.messages, Trapped("6 - Overflow"));
    EXPECT_EQ(application_.statistics, (Statistics{"x", 1, 1, kMost - 1}));
    application_.statistics = {"x", 1, 0, kMost - 2};
    ui_.messages.clear();
    Run();
    EXPECT_TRUE(ui_.messages.empty());
    EXPECT_EQ(application_.statistics, (Statistics{"x", 1, 1, kMost}));
}

TEST_F(ListJob, KeepsTheWritersChangesOutOfTheSettings) {
    AddTracks(1);
    ui_.fields.outputFile = folder_ / "out/list"; // the writer appends ".htm" and expands the titles
    EXPECT_TRUE(Run());
    Settings expected = application_.settings;
    EXPECT_TRUE(folder_.Exists("out/list.htm"));
    EXPECT_EQ(application_.settings.OutputFile, folder_ / "out/list");
    EXPECT_EQ(application_.settings.WindowTitle, "%C files");
    EXPECT_EQ(application_.settings.PageTitle, "%C titles");
    EXPECT_EQ(application_.settings.PageFooter, "%N");
    EXPECT_EQ(application_.settings.ActiveColumns, "Artist|Title");
    EXPECT_EQ(ui_.fields.outputFile, folder_ / "out/list");
    // Whatever the outcome.
    ui_.monitor.statuses.clear();
    AbortFrom("Writing information...");
    EXPECT_FALSE(Run());
    EXPECT_EQ(application_.settings, expected);
    ui_.monitor.abortWhen = nullptr;
    folder_.Make("out/other.htm");
    ui_.fields.outputFile = expected.OutputFile = folder_ / "out/other";
    EXPECT_FALSE(Run());
    EXPECT_EQ(application_.settings, expected);
}

TEST_F(ListJob, ReadsTheControlsBeforeItValidates) {
    AddTracks(1);
    application_.settings.DocumentType = "xhtml";
    application_.settings.SizeType = 7;
    application_.settings.PageTitle = "stale";
    EXPECT_TRUE(Run());
    EXPECT_EQ(application_.settings.DocumentType, "HTML");
    EXPECT_EQ(application_.settings.SizeType, 7);
    EXPECT_EQ(application_.settings.PageTitle, "%C titles");
    EXPECT_EQ(application_.settings.Directory, folder_ / "music");
}

TEST_F(ListJob, ClearsTheAbortOfThePreviousRun) {
    AddTracks(1);
    application_.abortRequested = true;
    EXPECT_TRUE(Run());
    EXPECT_FALSE(application_.abortRequested);
}

class AbortedListJob : public ListJob {
  protected:
    AbortedListJob() {
        AddTracks(20);
        folder_.Write("out/list.txt", "old");
        application_.settings.ErrorLog = true;
    }
    void ExpectAborted() {
        EXPECT_FALSE(Run());
        EXPECT_TRUE(begun_);
        EXPECT_TRUE(ui_.messages.empty());
        EXPECT_FALSE(Said("Operation complete!"));
        EXPECT_EQ(fake_.clock.slept, std::chrono::seconds(0));
        EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 4, 40}));
        EXPECT_GE(ui_.closed, 1) << "the phase closes the progress window";
        EXPECT_EQ(List("program/Tunedex.log"), "");
        EXPECT_EQ(application_.settings.OutputFile, folder_ / "out/list.txt");
    }
};

TEST_F(AbortedListJob, EndsAtOnceWhenAbortedWhileReading) {
    AbortFrom("Retrieving MPEG/ID3 information...");
    ExpectAborted();
    EXPECT_FALSE(Said("Sorting information..."));
    EXPECT_EQ(List(), "old");
}

TEST_F(AbortedListJob, EndsAtOnceWhenAbortedBetweenFiles) {
    AbortFrom("Retrieving MPEG/ID3 information (7/20)...");
    ExpectAborted();
    EXPECT_FALSE(Said("Sorting information..."));
    EXPECT_EQ(List(), "old");
}

TEST_F(AbortedListJob, EndsAtOnceWhenAbortedWhileSorting) {
    AbortFrom("Sorting information...");
    ExpectAborted();
    EXPECT_FALSE(Said("Writing information..."));
    EXPECT_EQ(List(), "old");
}

TEST_F(AbortedListJob, KeepsThePartialListWhenAbortedWhileWriting) {
    AbortFrom("Writing information...");
    ExpectAborted();
    EXPECT_EQ(List(), "Artist\tTitle\r\n");
}

TEST_F(AbortedListJob, ContinuesAfterAnAbortedSearchAndEndsInTheReadPhase) {
    // Not at the first entry: nothing may have been found yet.
    ui_.monitor.abortWhen = [this] {
        begun_ = begun_ || ui_.monitor.asked >= 10;
        return begun_;
    };
    ExpectAborted();
    EXPECT_EQ(ui_.monitor.statuses.back(), "Retrieving MPEG/ID3 information...");
    EXPECT_EQ(List(), "old");
}

TEST_F(ListJob, ReportsThatNothingWasFoundEvenIfTheSearchWasAborted) {
    folder_.Write("music/readme.txt", "x");
    ui_.monitor.abort = true;
    EXPECT_FALSE(Run());
    EXPECT_EQ(ui_.messages,
              (Messages{{"No MP3 files were found\r\nin the directory specified.", 64, "No MP3 files!"}}));
}

TEST_F(ListJob, KeepsTheOldListWhenAWriterFails) {
    folder_.Write("music/junk.mp3", std::string(5000, 'x'));
    application_.settings.ErrorWarnings = false;
    ui_.fields.outputFile = folder_.Write("out/list.m3u", "old");
    EXPECT_FALSE(Run()) << "a playlist needs a duration, which this file lacks";
    EXPECT_EQ(ui_.messages, Trapped("5 - Invalid procedure call or argument"));
    EXPECT_EQ(List("out/list.m3u"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "out"), fs::directory_iterator()), 1);
    EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 4, 40}));
}

TEST_F(ListJob, ReportsAListThatCannotBeWritten) {
    AddTracks(1);
    const auto expectTrapped = [&](const std::string& error) {
        ui_.messages.clear();
        EXPECT_FALSE(Run());
        EXPECT_EQ(ui_.messages, Trapped(error));
        EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 4, 40}));
    };
    folder_.Make("out/folder.txt");
    ui_.fields.outputFile = folder_ / "out/folder.txt";
    expectTrapped("75 - Path/File access error");
    ui_.fields.outputFile = folder_ / "out/full.txt";
    ASSERT_EQ(symlink("/dev/full", (folder_ / "out/full.txt").c_str()), 0);
    expectTrapped("61 - Disk full");
    test::AsOrdinaryUser(folder_, [&] {
        ASSERT_EQ(chmod((folder_ / "out").c_str(), 0555), 0);
        ui_.fields.outputFile = folder_ / "out/new.txt";
        expectTrapped("75 - Path/File access error");
    });
}

TEST_F(ListJob, ReportsOutOfMemoryAndKeepsTheOldList) {
    AddTracks(3);
    for (const char* phase : {"Searching", "Retrieving", "Sorting", "Writing"}) {
        ui_.messages.clear();
        ui_.monitor.statuses.clear();
        ui_.fields.outputFile = folder_.Write("out/list.txt", "old");
        ui_.monitor.abortWhen = [&] {
            if (ui_.monitor.statuses.back().starts_with(phase)) {
                throw std::bad_alloc();
            }
            return false;
        };
        EXPECT_FALSE(Run()) << phase;
        EXPECT_EQ(ui_.messages, Trapped("7 - Out of memory")) << phase;
        EXPECT_EQ(List(), "old");
        EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "out"), fs::directory_iterator()), 1);
        EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 4, 40}));
    }
}

TEST_F(ListJob, ReportsATooLongFileNameAsErrorFiftyTwo) {
    AddTracks(1);
    ui_.fields.outputFile = folder_ / "out/" + std::string(251, 'n') + ".txt";
    EXPECT_TRUE(Run());
    ui_.fields.outputFile = folder_ / "out/" + std::string(252, 'n') + ".txt";
    EXPECT_FALSE(Run());
    EXPECT_EQ(ui_.messages, (Messages{{kFolderNotExamined, 48, "Error"}})) << "the message of error 52";
}

TEST_F(ListJob, RefusesAnOutputLinkToATrackBeforeAnythingIsOpened) {
    AddTracks(1);
    application_.settings.ErrorLog = true;
    const std::string audio = List("music/t0.mp3");
    struct Row {
        const char* outputFile;
        const char* link; // the name that the writer will use
    };
    for (const Row& row : {Row{"list", "list.htm"}, Row{"list.txt", "list.txt"},
                           Row{"list.text", "list.text.txt"}, Row{"list.m3u", "list.m3u"}}) {
        for (const char* const target : {"../music/t0.mp3", "../music/new.MP3"}) {
            fs::remove(folder_ / "out/" + row.link);
            ASSERT_EQ(symlink(target, (folder_ / "out/" + row.link).c_str()), 0);
            ui_.fields.outputFile = folder_ / "out/" + row.outputFile;
            ui_.messages.clear();
            ExpectRefused(Trapped("75 - Path/File access error"));
        }
    }
    EXPECT_FALSE(folder_.Exists("program/Tunedex.log"));
    EXPECT_EQ(List("music/t0.mp3"), audio);
    EXPECT_FALSE(folder_.Exists("music/new.MP3"));
}

// A FIFO whose reader never reads; full when less than about a page is free.
class UnreadFifo {
  public:
    explicit UnreadFifo(const std::string& path)
        : made_(mkfifo(path.c_str(), 0666)), reader_(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {
        EXPECT_EQ(made_, 0);
    }

    bool IsFull() const {
        int bytes = 0;
        return ioctl(reader_.Get(), FIONREAD, &bytes) == 0 && bytes > 60000;
    }

  private:
    int made_;
    UniqueFd reader_;
};

TEST_F(ListJob, AbortEndsTheWriteToAFullListingFifo) {
    AddTracks(1);
    ui_.fields.pageTitle = std::string(1'000'000, 'x');
    for (const char* const name : {"out/list.htm", "out/list.txt", "out/list.m3u"}) {
        const UnreadFifo fifo(folder_ / name);
        ui_.fields.outputFile = folder_ / name;
        // A text list has no title to fill the FIFO, so it needs many tracks with a long folder path.
        if (std::string_view(name) == "out/list.txt") {
            AddTracks(1200);
            application_.settings.ActiveColumns = "Full Path|Folder Path|Filename";
        }
        ui_.monitor.abortWhen = [&] { return fifo.IsFull(); };
        EXPECT_FALSE(Run()) << name;
        EXPECT_TRUE(fifo.IsFull()) << name;
        EXPECT_TRUE(ui_.messages.empty()) << name;
        EXPECT_EQ(application_.statistics, (Statistics{"2026-11-21", 1, 4, 40}));
        EXPECT_FALSE(Said("Operation complete!"));
    }
}

TEST_F(ListJob, AbortEndsTheWriteToAFullLogFifo) {
    for (int i = 0; i < 600; ++i) {
        folder_.Write("music/" + std::string(200, 'n') + std::to_string(i) + ".mp3", "no audio");
    }
    application_.settings.ErrorLog = true;
    application_.settings.ErrorWarnings = false;
    const UnreadFifo fifo(folder_ / "program/Tunedex.log");
    ui_.monitor.abortWhen = [&] { return fifo.IsFull(); };
    EXPECT_FALSE(Run());
    EXPECT_TRUE(fifo.IsFull());
    EXPECT_TRUE(ui_.messages.empty());
    EXPECT_FALSE(folder_.Exists("out/list.txt"));
}

TEST_F(ListJob, EndsWhenTheLogIsAFifoWithoutAReader) {
    AddTracks(1);
    application_.settings.ErrorLog = true;
    ASSERT_EQ(mkfifo((folder_ / "program/Tunedex.log").c_str(), 0666), 0);
    ExpectRefused(Trapped("57 - Device I/O error"));
}

} // namespace
} // namespace tunedex
