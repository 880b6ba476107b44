#include "Interrupts.h"

#include "OrdinaryUser.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tunedex {
namespace {

constexpr std::array<int, 3> kSignals = {SIGINT, SIGTERM, SIGHUP};

TEST(Interrupts, ASignalIsRemembered) {
    for (const int signal : kSignals) {
        test::InChild([&] {
            CatchInterrupts();
            EXPECT_FALSE(Interrupted());
            std::raise(signal);
            EXPECT_TRUE(Interrupted());
        });
    }
}

TEST(Interrupts, IgnoredSignalsStayIgnoredIndividually) {
    for (const int ignored : kSignals) {
        test::InChild([&] {
            std::signal(ignored, SIG_IGN);
            CatchInterrupts();
            std::raise(ignored);
            std::raise(ignored);
            EXPECT_FALSE(Interrupted()) << ignored;
            std::raise(ignored == SIGTERM ? SIGINT : SIGTERM);
            EXPECT_TRUE(Interrupted()) << ignored;
        });
    }
}

TEST(Interrupts, TheSecondSignalEndsTheProgram) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        std::signal(SIGINT, SIG_DFL); // ignored in the background of a script
        CatchInterrupts();
        std::raise(SIGINT);
        std::raise(SIGINT);
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGINT);
}

TEST(Interrupts, ASignalEndsAWaitForInput) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    test::InChild([&] {
        CatchInterrupts();
        std::raise(SIGHUP);
        EXPECT_FALSE(WaitForInput(ends[0]));
        EXPECT_FALSE(PauseUnlessInterrupted(std::chrono::minutes(10)));
    });
    ASSERT_EQ(write(ends[1], "x", 1), 1);
    EXPECT_TRUE(WaitForInput(ends[0]));
    EXPECT_TRUE(WaitForInput(-1)) << "the read reports the error";
    close(ends[0]);
    close(ends[1]);
}

// The kernel may deliver a signal to a reader thread while the main thread waits for an answer.
TEST(Interrupts, ASignalThatAnotherThreadReceivesEndsAWaitForInput) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    test::InChild([&] {
        CatchInterrupts();
        std::thread receiver([] { pthread_kill(pthread_self(), SIGINT); });
        EXPECT_FALSE(WaitForInput(ends[0]));
        receiver.join();
    });
    close(ends[0]);
    close(ends[1]);
}

TEST(Interrupts, AfterASignalWaitForOutputReturnsAtOnce) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK), 0);
    test::InChild([&] {
        CatchInterrupts();
        std::raise(SIGTERM);
        EXPECT_TRUE(WaitForOutput(ends[1]));
        while (write(ends[1], "x", 1) == 1) {
        }
        EXPECT_FALSE(WaitForOutput(ends[1]));
    });
    close(ends[0]);
    close(ends[1]);
}

} // namespace
} // namespace tunedex
