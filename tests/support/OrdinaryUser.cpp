#include "OrdinaryUser.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <gtest/gtest.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace tunedex::test {

namespace fs = std::filesystem;

namespace {

constexpr unsigned kNobody = 65534;

void GiveAway(const std::string& path) {
    if (lchown(path.c_str(), kNobody, kNobody) != 0) {
        throw std::runtime_error("cannot give away " + path);
    }
}

[[noreturn]] void RunAndExit(const std::function<void()>& check) {
    try {
        check();
    } catch (const std::exception& error) {
        ADD_FAILURE() << "raised: " << error.what();
    }
    std::fflush(nullptr);
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
        RunAndExit(check);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "failed in the child process: what it printed stands above";
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
