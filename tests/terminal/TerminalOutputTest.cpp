#include "TerminalOutput.h"

#include "Interrupts.h"
#include "OrdinaryUser.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <ostream>
#include <pty.h>
#include <string>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace tunedex {
namespace {

using OutputEnds = std::array<int, 2>; // read end, write end

OutputEnds OpenPipe() {
    OutputEnds ends{};
    EXPECT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    return ends;
}

OutputEnds OpenSockets() {
    OutputEnds ends{};
    EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
    return ends;
}

OutputEnds OpenTerminal() {
    OutputEnds ends{};
    EXPECT_EQ(openpty(ends.data(), &ends[1], nullptr, nullptr, nullptr), 0);
    return ends;
}

struct Kind {
    const char* name;
    OutputEnds (*open)();

    friend std::ostream& operator<<(std::ostream& stream, const Kind& kind) { return stream << kind.name; }
};

class TerminalOutputTest : public testing::TestWithParam<Kind> {
  public:
    ~TerminalOutputTest() override {
        close(ends_[0]);
        close(ends_[1]);
    }

  protected:
    const OutputEnds ends_ = GetParam().open();
};

TEST_P(TerminalOutputTest, WaitsForAReaderAndWritesEverything) {
    const std::string text(300'000, 'x'); // exceeds every kernel buffer
    std::string got;
    std::thread reader([&] {
        std::array<char, 1000> piece{};
        while (got.size() < text.size()) {
            const ssize_t length = read(ends_[0], piece.data(), piece.size());
            ASSERT_GT(length, 0);
            got.append(piece.data(), static_cast<std::size_t>(length));
        }
    });
    TerminalOutput(ends_[1]).Write(text);
    reader.join();
    EXPECT_EQ(got, text);
}

TEST_P(TerminalOutputTest, DropsUnreadOutputAfterASignal) {
    test::InChild([&] {
        CatchInterrupts();
        std::raise(SIGTERM);
        const TerminalOutput output(ends_[1]);
        output.Write("said");
        output.Write(std::string(1'000'000, 'x')); // must not block
        std::array<char, 4> start{};
        EXPECT_EQ(read(ends_[0], start.data(), start.size()), 4);
        EXPECT_EQ(std::string(start.data(), start.size()), "said") << "writes what does not block";
    });
}

// The file description of standard error is shared with the shell.
TEST_P(TerminalOutputTest, LeavesTheFileStatusFlagsUnchanged) {
    const int before = fcntl(ends_[1], F_GETFL);
    {
        const TerminalOutput output(ends_[1]);
        output.Write("x");
        EXPECT_EQ(fcntl(ends_[1], F_GETFL), before);
    }
    EXPECT_EQ(fcntl(ends_[1], F_GETFL), before) << "and the descriptor is open";
}

INSTANTIATE_TEST_SUITE_P(Kinds, TerminalOutputTest,
                         testing::Values(Kind{"Pipe", OpenPipe}, Kind{"Socket", OpenSockets},
                                         Kind{"Terminal", OpenTerminal}),
                         [](const auto& info) { return info.param.name; });

TEST(TerminalOutput, DistinguishesATerminalFromAPipe) {
    const OutputEnds terminal = OpenTerminal();
    const OutputEnds pipe = OpenPipe();
    EXPECT_TRUE(TerminalOutput(terminal[1]).IsTerminal());
    EXPECT_FALSE(TerminalOutput(pipe[1]).IsTerminal());
    EXPECT_EQ(TerminalOutput(pipe[1]).Columns(), 0U);
    for (const int descriptor : {terminal[0], terminal[1], pipe[0], pipe[1]}) {
        close(descriptor);
    }
    TerminalOutput(-1).Write("to nobody");
}

} // namespace
} // namespace tunedex
