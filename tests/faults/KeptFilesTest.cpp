// What has to hold when the system is short of something, and against what a name can do to a terminal.
#include "Fakes.h"
#include "Startup.h"
#include "TerminalFrontEnd.h"
#include "TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tunedex::test {
namespace {

// As long as it lives the process gets no further descriptor.
class NoFreeDescriptor {
  public:
    NoFreeDescriptor() {
        getrlimit(RLIMIT_NOFILE, &before_);
        const int lowest = dup(STDERR_FILENO);
        close(lowest);
        rlimit now = before_;
        now.rlim_cur = static_cast<rlim_t>(lowest);
        setrlimit(RLIMIT_NOFILE, &now);
    }
    NoFreeDescriptor(const NoFreeDescriptor&) = delete;
    NoFreeDescriptor& operator=(const NoFreeDescriptor&) = delete;
    ~NoFreeDescriptor() { setrlimit(RLIMIT_NOFILE, &before_); }

  private:
    rlimit before_{};
};

constexpr const char* kOldStatistics = "\"2020-01-01\"\r\n700\r\n30\r\n9000\r\n";

TEST(KeptFiles, AStatisticsFileThatCouldNotBeReadIsNotReplacedAtTheEnd) {
    const TestFolder folder;
    const std::string path = folder.Write("stats.lst", kOldStatistics);
    FakeApplication fake(folder.Path());
    FakeUserInterface ui;
    {
        // A sanitizer takes a descriptor of its own to look at a class for the first time: those of a start
        // that has to tell of an error.
        const TestFolder other;
        other.Write("stats.lst", "malformed");
        FakeApplication first(other.Path());
        StartUp(first.application, ui, {});
        ASSERT_EQ(ui.messages.size(), 1U);
        ui.messages.clear();
    }
    {
        const NoFreeDescriptor none;
        StartUp(fake.application, ui, {});
    }
    ASSERT_EQ(ui.messages.size(), 1U);
    EXPECT_NE(ui.messages[0].text.find("67 - Too many files"), std::string::npos) << ui.messages[0].text;
    EXPECT_EQ(fake.application.statistics.TimesStarted, 1);
    SaveStatisticsAtExit(fake.application);
    EXPECT_EQ(ReadBytes(path), kOldStatistics);
}

TEST(KeptFiles, AMalformedStatisticsFileIsReplacedAtTheEnd) {
    const TestFolder folder;
    const std::string path = folder.Write("stats.lst", "\"2020-01-01\"\r\nmany\r\n30\r\n9000\r\n");
    FakeApplication fake(folder.Path());
    FakeUserInterface ui;
    StartUp(fake.application, ui, {});
    EXPECT_EQ(ui.messages.size(), 1U);
    SaveStatisticsAtExit(fake.application);
    EXPECT_EQ(ReadBytes(path), "\"2026-11-21\"\r\n1\r\n0\r\n0\r\n");
}

TEST(Terminal, IsNotSteeredByTheNamesInAMessage) {
    const int master = posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) {
        GTEST_SKIP() << "there is no terminal to be had";
    }
    const int terminal = open(ptsname(master), O_RDWR | O_NOCTTY);
    ASSERT_GE(terminal, 0);
    const int noInput = open("/dev/null", O_RDONLY);
    const TestFolder folder;
    FakeApplication fake(folder.Path());
    {
        // It opens the terminal a second time: the reading below ends only once that is closed, too.
        TerminalFrontEnd frontEnd(fake.application, noInput, terminal);
        frontEnd.ShowMessage("a\x1b[2Jb\xC2\x9B"
                             "2Jc\x9B"
                             "2Jd\a\re\x7F\xC3\xA9\xE9",
                             kOkExclamation, "Error");
    }
    close(noInput);
    close(terminal);
    // In as many pieces as the system pleases, until nothing more can come.
    std::string shown;
    std::array<char, 512> piece{};
    for (ssize_t length = 1; length > 0;) {
        length = read(master, piece.data(), piece.size());
        shown.append(piece.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
    }
    EXPECT_EQ(shown, "Error\r\na?[2Jb?2Jc?2Jd??e?\xC3\xA9\xE9\r\n[OK] \r\n");
    close(master);
}

} // namespace
} // namespace tunedex::test
