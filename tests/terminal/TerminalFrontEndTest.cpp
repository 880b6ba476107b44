#include "TerminalFrontEnd.h"

#include "Fakes.h"
#include "Functions.h"
#include "Interrupts.h"
#include "OrdinaryUser.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <fcntl.h>
#include <pty.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace tunedex {
namespace {

// A front end that reads answers from a file and writes to a pipe or a pseudo-terminal.
class TerminalFrontEndTest : public testing::Test {
  public:
    ~TerminalFrontEndTest() override {
        for (const int descriptor : {input_, read_, write_}) {
            if (descriptor >= 0) {
                close(descriptor);
            }
        }
    }

  protected:
    void Input(const std::string& bytes) {
        input_ = open(folder_.Write("input", bytes).c_str(), O_RDONLY | O_CLOEXEC);
        ASSERT_GE(input_, 0);
    }
    void OutputToPipe() {
        std::array<int, 2> ends{};
        ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
        read_ = ends[0];
        write_ = ends[1];
    }
    void OutputToTerminal(unsigned short columns) {
        const winsize size{24, columns, 0, 0};
        ASSERT_EQ(openpty(&read_, &write_, nullptr, nullptr, &size), 0);
        fcntl(read_, F_SETFL, O_NONBLOCK);
    }
    std::string Written() const {
        std::string text;
        std::array<char, 4096> buffer{};
        for (ssize_t got = 0; (got = read(read_, buffer.data(), buffer.size())) > 0;) {
            text.append(buffer.data(), static_cast<std::size_t>(got));
        }
        return text;
    }

    const test::TestFolder folder_;
    test::FakeApplication fake_{folder_.Path()};
    int input_ = -1;
    int read_ = -1;
    int write_ = -1;
};

TEST_F(TerminalFrontEndTest, PrintsTitleAndTextOfAMessageAndReadsTheAnswer) {
    Input("y\n");
    OutputToPipe();
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    EXPECT_EQ(frontEnd.ShowMessage("One.\r\n\r\nTwo?", kYesNoExclamation, "Title"), kAnswerYes);
    EXPECT_EQ(Written(), "Title\nOne.\n\nTwo?\nYes or No? [No] ");
}

TEST_F(TerminalFrontEndTest, AcceptsButtonNamesAndTheirPrefixesInAnyCase) {
    struct Row {
        int buttons;
        const char* input;
        int answer;
    };
    const std::vector<Row> rows = {
        {kYesNoExclamation, "y\n", kAnswerYes},    {kYesNoExclamation, "YES\n", kAnswerYes},
        {kYesNoExclamation, " Ye \n", kAnswerYes}, {kYesNoExclamation, "n\n", kAnswerNo},
        {kYesNoExclamation, "\n", kAnswerNo},      {kYesNoExclamation, "x\nyesss\ny\n", kAnswerYes},
        {kYesNoQuestion, "no\n", kAnswerNo},       {kOkCancelQuestion, "o\n", kAnswerOk},
        {kOkCancelQuestion, "ok\n", kAnswerOk},    {kOkCancelQuestion, "c\n", kAnswerCancel},
        {kOkCancelQuestion, "\n", kAnswerCancel},  {kOkExclamation, "\n", kAnswerOk},
        {kOkInformation, "anything\n", kAnswerOk},
    };
    for (const Row& row : rows) {
        Input(row.input);
        OutputToPipe();
        TerminalFrontEnd frontEnd(fake_.application, input_, write_);
        EXPECT_EQ(frontEnd.ShowMessage("?", row.buttons, "t"), row.answer) << row.buttons << row.input;
        close(input_);
        close(read_);
        close(write_);
    }
    input_ = read_ = write_ = -1;
}

TEST_F(TerminalFrontEndTest, GivesTheSafeAnswerAtTheEndOfInput) {
    for (const char* input : {"", "y", "maybe\n"}) { // a line without a line end is no answer
        Input(input);
        OutputToPipe();
        TerminalFrontEnd frontEnd(fake_.application, input_, write_);
        EXPECT_EQ(frontEnd.ShowMessage("?", kYesNoExclamation, "t"), kAnswerNo) << input;
        EXPECT_EQ(frontEnd.ShowMessage("?", kOkCancelQuestion, "t"), kAnswerCancel);
        EXPECT_EQ(frontEnd.ShowMessage("?", kOkExclamation, "t"), kAnswerOk);
        close(input_);
        close(read_);
        close(write_);
    }
    input_ = read_ = write_ = -1;
}

TEST_F(TerminalFrontEndTest, AnswersSeveralMessagesFromTheLinesOfItsInput) {
    Input("\ny\nn\n");
    OutputToPipe();
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    EXPECT_EQ(frontEnd.ShowMessage("1", kOkExclamation, "t"), kAnswerOk);
    EXPECT_EQ(frontEnd.ShowMessage("2", kYesNoExclamation, "t"), kAnswerYes);
    EXPECT_EQ(frontEnd.ShowMessage("3", kYesNoExclamation, "t"), kAnswerNo);
}

TEST_F(TerminalFrontEndTest, AsksAgainAfterAnAnswerThatIsTooLong) {
    const std::string longest(AnswerInput::kLongestAnswer, 'x');
    Input(longest + "\n" + longest + "y\n\n" + std::string(100'000, 'y') + "\ny\nnext\n");
    OutputToPipe();
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    EXPECT_EQ(frontEnd.ShowMessage("1", kOkExclamation, "t"), kAnswerOk);
    EXPECT_EQ(Written(), "t\n1\n[OK] ") << "the longest valid answer";
    EXPECT_EQ(frontEnd.ShowMessage("2", kOkExclamation, "t"), kAnswerOk);
    EXPECT_EQ(Written(), "t\n2\n[OK] [OK] ");
    EXPECT_EQ(frontEnd.ShowMessage("3", kYesNoExclamation, "t"), kAnswerYes);
    EXPECT_EQ(Written(), "t\n3\nYes or No? [No] Yes or No? [No] ");
    std::string rest(16, '\0');
    rest.resize(static_cast<std::size_t>(std::max<ssize_t>(read(input_, rest.data(), rest.size()), 0)));
    EXPECT_EQ(rest, "next\n") << "input after the answer is not consumed";
}

TEST_F(TerminalFrontEndTest, TreatsInputWithoutAnAnswerAsEnded) {
    std::string wrong;
    while (wrong.size() < AnswerInput::kMostPerQuestion) {
        wrong += "maybe\n";
    }
    const std::string zeros(AnswerInput::kMostPerQuestion + 10, '\0');
    for (const std::string& bytes : {zeros, wrong + "maybe\n"}) {
        Input(bytes);
        const int output = open("/dev/null", O_WRONLY | O_CLOEXEC);
        TerminalFrontEnd frontEnd(fake_.application, input_, output);
        EXPECT_EQ(frontEnd.ShowMessage("?", kYesNoExclamation, "t"), kAnswerNo);
        EXPECT_EQ(lseek(input_, 0, SEEK_CUR), AnswerInput::kMostPerQuestion);
        EXPECT_EQ(frontEnd.ShowMessage("?", kOkCancelQuestion, "t"), kAnswerCancel);
        EXPECT_EQ(frontEnd.ShowMessage("?", kOkExclamation, "t"), kAnswerOk);
        EXPECT_EQ(lseek(input_, 0, SEEK_CUR), AnswerInput::kMostPerQuestion) << "nothing more is read";
        close(output);
        close(input_);
    }
    input_ = -1;
}

TEST_F(TerminalFrontEndTest, WritesEachPhaseAndItsLastStateOnSeparateLines) {
    OutputToPipe();
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    RunMonitor& monitor = frontEnd.ShowProgress();
    monitor.SetStatus("Searching...");
    monitor.SetMaximum(2);
    monitor.SetStatus("Reading...");
    monitor.SetPosition(1);
    monitor.SetCountedStatus("Reading (", 1, 2, ")...");
    monitor.SetPosition(2);
    monitor.SetCountedStatus("Reading (", 2, 2, ")...");
    monitor.SetStatus("Done!");
    frontEnd.CloseProgress();
    EXPECT_EQ(Written(), "Searching...\nReading...\nReading (2/2)...\nDone!\n");
}

TEST_F(TerminalFrontEndTest, ShowsNothingWhileTheProgressIsClosed) {
    OutputToPipe();
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    RunMonitor& monitor = frontEnd.ShowProgress();
    frontEnd.CloseProgress();
    monitor.SetStatus("Reading...");
    monitor.SetMaximum(2);
    monitor.SetPosition(1);
    for (int i = 0; i < 100; ++i) {
        monitor.SetCountedStatus("Reading (", i, 100, ")...");
    }
    frontEnd.CloseProgress();
    EXPECT_EQ(Written(), "");
}

TEST_F(TerminalFrontEndTest, EndsTheStatusBeforeAMessage) {
    Input("");
    OutputToPipe();
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    RunMonitor& monitor = frontEnd.ShowProgress();
    monitor.SetStatus("Reading...");
    monitor.SetCountedStatus("Reading (", 7, 9, ")...");
    frontEnd.ShowMessage("text", kOkExclamation, "Error!");
    EXPECT_EQ(Written(), "Reading...\nReading (7/9)...\nError!\ntext\n[OK] \n");
}

TEST_F(TerminalFrontEndTest, DrawsABarOnOneLineOfATerminal) {
    OutputToTerminal(80);
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    RunMonitor& monitor = frontEnd.ShowProgress();
    monitor.SetStatus("Searching...");
    monitor.SetMaximum(4);
    monitor.SetPosition(1);
    monitor.SetStatus("Reading...");
    monitor.SetPosition(4);
    monitor.SetCountedStatus("Reading (", 4, 4, ")...");
    frontEnd.CloseProgress();
    EXPECT_EQ(Written(), "\rSearching...\x1b[K\r\n"
                         "\r[#####...............] Reading...\x1b[K"
                         "\r[####################] Reading (4/4)...\x1b[K\r\n");
}

TEST_F(TerminalFrontEndTest, CutsTheStatusToTheTerminalsWidth) {
    OutputToTerminal(10);
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    frontEnd.ShowProgress().SetStatus("Searching for MP3 files...");
    EXPECT_EQ(Written(), "\rSearching\x1b[K");
}

TEST_F(TerminalFrontEndTest, ReplacesControlCharactersOnATerminal) {
    Input("");
    OutputToTerminal(80);
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    frontEnd.ShowMessage("a\x1b[2J\a\tb\x7F é", kOkExclamation, "t\x1b");
    EXPECT_EQ(Written(), "t?\r\na?[2J??b? é\r\n[OK] \r\n");
}

TEST_F(TerminalFrontEndTest, StartsATerminalLineOnlyAtCrLf) {
    Input("");
    OutputToTerminal(80);
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    frontEnd.ShowMessage("One\nline\rfor\u2028all\r\n\r\nTwo", kOkExclamation, "t\r\nu");
    EXPECT_EQ(Written(), "t??u\r\nOne?line?for?all\r\n\r\nTwo\r\n[OK] \r\n");
}

TEST_F(TerminalFrontEndTest, ReplacesLineBreaksInNamesOnATerminal) {
    const std::string name = "a\r\nb\nc\\nd\u2029e\u202Ef";
    const RunTimeError error(ErrorNumber::PathFileAccess);
    fake_.application.settings.ErrorWarnings = true;
    for (const bool terminal : {true, false}) {
        Input("");
        if (terminal) {
            OutputToTerminal(80);
        } else {
            OutputToPipe();
        }
        TerminalFrontEnd frontEnd(fake_.application, input_, write_);
        ReportError(R"(scanning: \n%D)", "", name, error, fake_.application, frontEnd, nullptr);
        ReportError(R"(decoding: \n%F)", name, "", error, fake_.application, frontEnd, nullptr);
        const std::string shown =
            terminal ? "\r\na??b?c?d?e?f\r\n[OK] \r\n" : "\na\nb\nc\nd\u2029e\u202Ef\n[OK] \n";
        const std::string title = terminal ? "Error!\r\n" : "Error!\n";
        std::string expected;
        for (const char* step : {"scanning", "decoding"}) {
            expected.append(title).append("An error occurred ").append(step).append(": ").append(shown);
        }
        EXPECT_EQ(Written(), expected);
        close(input_);
        close(read_);
        close(write_);
    }
    input_ = read_ = write_ = -1;
}

TEST_F(TerminalFrontEndTest, CutsAStatusOnlyBetweenCharacters) {
    OutputToTerminal(8);
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    frontEnd.ShowProgress().SetStatus("abcdeéèê");
    EXPECT_EQ(Written(), "\rabcdeé\x1b[K");
    frontEnd.SetStatus("abcdefé"); // the second byte of "é" does not fit
    EXPECT_EQ(Written(), "\r\n\rabcdef\x1b[K");
}

TEST_F(TerminalFrontEndTest, WritesNamesUnchangedToAPipe) {
    Input("");
    OutputToPipe();
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    frontEnd.ShowMessage("a\tb \xFF", kOkExclamation, "t");
    EXPECT_EQ(Written(), "t\na\tb \xFF\n[OK] \n");
}

TEST_F(TerminalFrontEndTest, ReturnsTheFieldsAndStoresThemInTheSettings) {
    TerminalFrontEnd frontEnd(fake_.application, input_, write_);
    MainFields fields;
    fields.multipleFolders = true;
    fields.inputFolder = "/music";
    fields.outputFile = "/list.htm";
    fields.windowTitle = "w";
    fields.pageTitle = "p";
    fields.pageFooter = "f";
    frontEnd.FillFields(fields);
    EXPECT_EQ(frontEnd.Fields().inputFolder, "/music");
    EXPECT_TRUE(frontEnd.Fields().multipleFolders);
    Settings settings;
    settings.Directory = "before";
    settings.SizeType = 7;
    frontEnd.TakeControls(settings);
    Settings expected;
    expected.Directory = "before";
    expected.SizeType = 7;
    expected.OutputFile = "/list.htm";
    expected.WindowTitle = "w";
    expected.PageTitle = "p";
    expected.PageFooter = "f";
    expected.DocumentType = "HTML";
    EXPECT_EQ(settings, expected);
}

TEST_F(TerminalFrontEndTest, SurvivesAReaderThatCloses) {
    OutputToPipe();
    close(read_);
    read_ = -1;
    test::InChild([&] {
        std::signal(SIGPIPE, SIG_IGN);
        TerminalFrontEnd frontEnd(fake_.application, input_, write_);
        frontEnd.ShowProgress().SetStatus("Searching...");
        EXPECT_EQ(frontEnd.ShowMessage("?", kYesNoExclamation, "t"), kAnswerNo);
    });
}

TEST_F(TerminalFrontEndTest, TreatsASignalAsAbort) {
    OutputToPipe();
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        test::InChild([&] {
            CatchInterrupts();
            TerminalFrontEnd frontEnd(fake_.application, input_, write_);
            EXPECT_FALSE(frontEnd.AbortRequested());
            EXPECT_FALSE(fake_.application.abortRequested);
            std::raise(signal);
            EXPECT_TRUE(frontEnd.AbortRequested());
            EXPECT_TRUE(fake_.application.abortRequested);
            // Later questions are answered as at the end of the input.
            Input("y\n");
            TerminalFrontEnd asking(fake_.application, input_, write_);
            EXPECT_EQ(asking.ShowMessage("?", kYesNoExclamation, "t"), kAnswerNo);
        });
    }
}

} // namespace
} // namespace tunedex
