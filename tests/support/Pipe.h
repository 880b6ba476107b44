// A pipe for tests.
#pragma once

#include "UniqueFd.h"

#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace tunedex::test {

struct Pipe {
    UniqueFd reader;
    UniqueFd writer;
};

// `flags` as for pipe2(). Fails the test when no pipe can be created.
inline Pipe MakePipe(int flags) {
    std::array<int, 2> ends{-1, -1};
    EXPECT_EQ(pipe2(ends.data(), flags), 0);
    return {UniqueFd(ends[0]), UniqueFd(ends[1])};
}

} // namespace tunedex::test
