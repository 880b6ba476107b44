// Tests with exhausted resources, and with file names that contain terminal control characters.
#include "Fakes.h"
#include "Startup.h"
#include "TerminalFrontEnd.h"
#include "TestFolder.h"
#include "UniqueFd.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace tunedex::test {
namespace {

// During its lifetime the process cannot open further descriptors.
class NoFreeDescriptor {
  public:
    NoFreeDescriptor() {
        getrlimit(RLIMIT_NOFILE, &before_);
        const UniqueFd lowest(dup(STDERR_FILENO));
        rlimit now = before_;
        now.rlim_cur = static_cast<rlim_t>(lowest.Get());
        setrlimit(RLIMIT_NOFILE, &now);
    }
    NoFreeDescriptor(const NoFreeDescriptor&) = delete;
    NoFreeDescriptor& operator=(const NoFreeDescriptor&) = delete;
    ~NoFreeDescriptor() { setrlimit(RLIMIT_NOFILE, &before_); }

  private:
    rlimit before_{};
};

constexpr const char* kOldStatistics = "\"2020-01-01\"\r\n700\r\n30\r\n9000\r\n";

TEST(KeptFiles, AnUnreadableStatisticsFileIsNotReplacedAtExit) {
    const TestFolder folder;
    const std::string path = folder.Write("stats.lst", kOldStatistics);
    FakeApplication fake(folder.Path());
    FakeUserInterface ui;
    {
        // A sanitizer opens a descriptor when it first inspects a class: trigger that for the classes of a
        // start that reports an error.
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

TEST(KeptFiles, AMalformedStatisticsFileIsReplacedAtExit) {
    const TestFolder folder;
    const std::string path = folder.Write("stats.lst", "\"2020-01-01\"\r\nmany\r\n30\r\n9000\r\n");
    FakeApplication fake(folder.Path());
    FakeUserInterface ui;
    StartUp(fake.application, ui, {});
    EXPECT_EQ(ui.messages.size(), 1U);
    SaveStatisticsAtExit(fake.application);
    EXPECT_EQ(ReadBytes(path), "\"2026-11-21\"\r\n1\r\n0\r\n0\r\n");
}

TEST(Terminal, IsNotControlledByNamesInAMessage) {
    const UniqueFd master(posix_openpt(O_RDWR | O_NOCTTY));
    if (!master || grantpt(master.Get()) != 0 || unlockpt(master.Get()) != 0) {
        GTEST_SKIP() << "no pseudo-terminal available";
    }
    UniqueFd terminal(open(ptsname(master.Get()), O_RDWR | O_NOCTTY));
    ASSERT_TRUE(terminal);
    const UniqueFd noInput(open("/dev/null", O_RDONLY));
    const TestFolder folder;
    FakeApplication fake(folder.Path());
    {
        // The front end opens the terminal again; read() below reports the end only after that one is closed,
        // too.
        TerminalFrontEnd frontEnd(fake.application, noInput.Get(), terminal.Get());
        frontEnd.ShowMessage("a\x1b[2Jb\xC2\x9B"
                             "2Jc\x9B"
                             "2Jd\a\re\x7F\xC3\xA9\xE9",
                             kOkExclamation, "Error");
    }
    terminal.Reset();
    // Read until the end; the kernel may split the output.
    std::string shown;
    std::array<char, 512> piece{};
    for (ssize_t length = 1; length > 0;) {
        length = read(master.Get(), piece.data(), piece.size());
        shown.append(piece.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
    }
    EXPECT_EQ(shown, "Error\r\na?[2Jb?2Jc?2Jd??e?\xC3\xA9\xE9\r\n[OK] \r\n");
}

} // namespace
} // namespace tunedex::test
