// What a folder forbids, it forbids to ordinary users: root may do everything.
#pragma once

#include "TestFolder.h"

#include <functional>

namespace tunedex::test {

// Runs `check` as a user without special rights who owns all of `folder`: as root in a child process, else
// right here. The check's failed expectations fail the test.
void AsOrdinaryUser(const TestFolder& folder, const std::function<void()>& check);

// Runs `check` in a child process, so that what it changes (environment, limits, signals) ends with it. Its
// failed expectations fail the test.
void InChild(const std::function<void()>& check);

} // namespace tunedex::test
