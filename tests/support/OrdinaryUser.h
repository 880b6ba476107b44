// Runs checks of file permissions, which do not apply to root.
#pragma once

#include "TestFolder.h"

#include <functional>

namespace tunedex::test {

// Runs `check` as an unprivileged user who owns all of `folder`: in a child process if the test runs as root,
// otherwise directly. Failed expectations fail the test.
void AsOrdinaryUser(const TestFolder& folder, const std::function<void()>& check);

// Runs `check` in a child process, so that its changes (environment, limits, signals) end with it. The
// signals that end the program have their default action, also in the background of a script, where SIGINT is
// ignored. Failed expectations fail the test.
void InChild(const std::function<void()>& check);

} // namespace tunedex::test
