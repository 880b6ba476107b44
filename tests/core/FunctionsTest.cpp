#include "Functions.h"

#include "Fakes.h"
#include "Raises.h"
#include "TestFolder.h"
#include "Text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace tunedex {
namespace {

using Message = test::FakeUserInterface::Message;

constexpr const char* kWalkTemplate = R"(scanning the directory: \n\n%D\n\n%N: %S)";
constexpr const char* kDecodeTemplate = R"(decoding the headers of: \n\n%F)";
const RunTimeError kPathNotFound(ErrorNumber::PathNotFound);

TEST(ShowMessage, ForwardsItsArgumentsAndReturnsTheButton) {
    test::FakeUserInterface ui;
    ui.answers = {kAnswerYes, kAnswerNo};
    EXPECT_EQ(ShowMessage(ui, "text", kYesNoExclamation, "title"), 6);
    EXPECT_EQ(ShowMessage(ui, "other", kOkInformation, "t"), 7);
    EXPECT_EQ(ui.messages, (std::vector<Message>{{"text", 52, "title"}, {"other", 64, "t"}}));
}

TEST(ShowMessage, UsesTheProgramNameForAnEmptyTitle) {
    test::FakeUserInterface ui;
    ShowMessage(ui, "text", kOkExclamation, "");
    EXPECT_EQ(ui.messages, (std::vector<Message>{{"text", 48, "Tunedex"}}));
}

TEST(MessageCodes, HaveTheirFixedValues) {
    EXPECT_EQ(kOkExclamation, 48);
    EXPECT_EQ(kYesNoExclamation, 52);
    EXPECT_EQ(kOkInformation, 64);
    EXPECT_EQ(kOkCancelQuestion, 33);
    EXPECT_EQ(kAnswerYes, 6);
}

class ReportErrorTest : public testing::Test {
  protected:
    // The log's content after a report, without its line end.
    std::string Report(bool warnings, bool logging, const std::string& errorTemplate, const std::string& file,
                       const std::string& folder) {
        fake_.application.settings.ErrorWarnings = warnings;
        fake_.application.settings.ErrorLog = logging;
        ui_.messages.clear();
        std::optional<LogFile> log;
        if (logging) {
            log.emplace(folder_ / "Tunedex.log");
        }
        ReportError(errorTemplate, file, folder, kPathNotFound, fake_.application, ui_,
                    log ? &*log : nullptr);
        return logging ? test::ReadBytes(folder_ / "Tunedex.log") : "";
    }

    const test::TestFolder folder_;
    test::FakeApplication fake_{folder_.Path()};
    test::FakeUserInterface ui_;
};

TEST_F(ReportErrorTest, DoesNothingWithWarningsAndLogOff) {
    Report(false, false, kWalkTemplate, "", "/music");
    EXPECT_TRUE(ui_.messages.empty());
    EXPECT_FALSE(folder_.Exists("Tunedex.log"));
}

TEST_F(ReportErrorTest, ShowsFiveLinesAndLogsThemJoined) {
    EXPECT_EQ(Report(true, true, kWalkTemplate, "", R"(C:\Music)"),
              "An error occurred scanning the directory: C:\\Music76: Path not found\r\n");
    EXPECT_EQ(ui_.messages,
              (std::vector<Message>{{"An error occurred scanning the directory: \r\n\r\nC:\\Music\r\n\r\n76: "
                                     "Path not found",
                                     48, "Error!"}}));
}

TEST_F(ReportErrorTest, LogsLineBreaksAsTwoCharactersWithWarningsOff) {
    EXPECT_EQ(Report(false, true, kWalkTemplate, "", "/music"),
              R"(An error occurred scanning the directory: \n\n/music\n\n76: Path not found)"
              "\r\n");
    EXPECT_TRUE(ui_.messages.empty());
}

TEST_F(ReportErrorTest, OnlyShowsTheBoxWithTheLogOff) {
    Report(true, false, kDecodeTemplate, "/music/a.mp3", "");
    EXPECT_EQ(ui_.messages,
              (std::vector<Message>{
                  {"An error occurred decoding the headers of: \r\n\r\n/music/a.mp3", 48, "Error!"}}));
    EXPECT_FALSE(folder_.Exists("Tunedex.log"));
}

TEST_F(ReportErrorTest, KeepsThePlaceholdersOfEmptyNames) {
    EXPECT_EQ(Report(false, true, "%D %F %N %S %X", "", ""),
              "An error occurred %D %F 76 Path not found %X\r\n");
    EXPECT_EQ(Report(false, true, "%D %F", "/a.mp3", ""), "An error occurred %D /a.mp3\r\n");
    EXPECT_EQ(Report(false, true, "%D %F", "", "/m"), "An error occurred /m %F\r\n");
}

TEST_F(ReportErrorTest, ReplacesAllPlaceholdersOneKindAfterAnother) {
    EXPECT_EQ(Report(false, true, "%D%D %N%N", "", "/m"), "An error occurred /m/m 7676\r\n");
    // A later placeholder within a name is replaced too.
    EXPECT_EQ(Report(false, true, "%D", "/f", "/%N%S%F"), "An error occurred /76Path not found/f\r\n");
    EXPECT_EQ(Report(false, true, "%F", "/%D.mp3", "/m"), "An error occurred /%D.mp3\r\n");
}

TEST_F(ReportErrorTest, ShowsNamesAsTheFrontEndFormatsThemAndLogsThemUnchanged) {
    ui_.shownNames = "shown";
    EXPECT_EQ(Report(true, true, "%F", "raw", ""), "An error occurred raw\r\n");
    EXPECT_EQ(ui_.messages, (std::vector<Message>{{"An error occurred shown", 48, "Error!"}}));
    EXPECT_EQ(Report(true, true, "%D", "", "raw"), "An error occurred raw\r\n");
    EXPECT_EQ(ui_.messages, (std::vector<Message>{{"An error occurred shown", 48, "Error!"}}));
}

TEST_F(ReportErrorTest, UsesTheErrorTitleOfTheMode) {
    fake_.application.errorTitle = "Tunedex Error! (Automatic Mode)";
    Report(true, false, kWalkTemplate, "", "/m");
    ASSERT_EQ(ui_.messages.size(), 1U);
    EXPECT_EQ(ui_.messages.front().title, "Tunedex Error! (Automatic Mode)");
}

TEST_F(ReportErrorTest, RaisesTheErrorOfALogThatIsFull) {
    fake_.application.settings.ErrorLog = true;
    LogFile full("/dev/full");
    EXPECT_EQ(test::RaisedBy([&] { ReportError("x", "", "", kPathNotFound, fake_.application, ui_, &full); }),
              61);
}

TEST(UnexpectedErrorText, ShowsNumberAndDescription) {
    EXPECT_EQ(UnexpectedErrorText(kPathNotFound),
              "An unexpected error occurred. The error was: \r\n\r\nError number 76 - Path not found");
}

TEST(PauseSeconds, SleepsForSeconds) {
    for (const std::int16_t seconds : {std::int16_t{0}, std::int16_t{1}, std::int16_t{32767}}) {
        test::FakeClock clock;
        PauseSeconds(seconds, clock);
        EXPECT_EQ(clock.slept, std::chrono::seconds(seconds));
    }
}

} // namespace
} // namespace tunedex
