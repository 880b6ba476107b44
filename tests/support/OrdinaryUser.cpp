#include "OrdinaryUser.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <gtest/gtest.h>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Defined only in coverage builds.
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier): the compiler's own names
[[gnu::weak]] int __llvm_profile_write_file();
[[gnu::weak]] void __llvm_profile_set_filename(const char* pattern);
// NOLINTEND(bugprone-reserved-identifier)
}

namespace tunedex::test {

namespace fs = std::filesystem;

namespace {

constexpr unsigned kNobody = 65534;

void GiveAway(const std::string& path) {
    if (lchown(path.c_str(), kNobody, kNobody) != 0) {
        throw std::runtime_error("cannot give away " + path);
    }
}

// _exit writes no coverage data, and a child with another user id cannot write to its parent's file. The
// limits restore what a check may have lowered too far for this write.
void WriteCoverage(const rlimit& descriptors, const rlimit& length) {
    const char* const pattern = std::getenv("LLVM_PROFILE_FILE");
    if (&__llvm_profile_write_file == nullptr || pattern == nullptr) {
        return;
    }
    setrlimit(RLIMIT_NOFILE, &descriptors);
    setrlimit(RLIMIT_FSIZE, &length);
    const std::string own = std::string(pattern) + "-" + std::to_string(getpid());
    __llvm_profile_set_filename(own.c_str());
    (void)__llvm_profile_write_file();
}

[[noreturn]] void RunAndExit(const std::function<void()>& check) {
    rlimit descriptors{};
    rlimit length{};
    getrlimit(RLIMIT_NOFILE, &descriptors);
    getrlimit(RLIMIT_FSIZE, &length);
    try {
        check();
    } catch (const std::exception& error) {
        ADD_FAILURE() << "raised: " << error.what();
    }
    std::fflush(nullptr);
    WriteCoverage(descriptors, length);
    _exit(testing::Test::HasFailure() ? 1 : 0);
}

} // namespace

void InChild(const std::function<void()>& check) {
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child < 0) {
        throw std::runtime_error("no child process");
    }
    if (child == 0) {
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            std::signal(signal, SIG_DFL);
        }
        RunAndExit(check);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "failed in the child process; see its output above";
}

void AsOrdinaryUser(const TestFolder& folder, const std::function<void()>& check) {
    if (geteuid() != 0) {
        check();
        return;
    }
    GiveAway(folder.Path().substr(0, folder.Path().size() - 1));
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder.Path())) {
        GiveAway(entry.path().string());
    }
    InChild([&] {
        if (setgid(kNobody) != 0 || setuid(kNobody) != 0) {
            throw std::runtime_error("cannot become an ordinary user");
        }
        check();
    });
}

} // namespace tunedex::test
