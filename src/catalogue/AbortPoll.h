// Lets the long steps of a sort end early.
#pragma once

#include "RunMonitor.h"

#include <cstdint>

namespace tunedex {

// Raised within a sort when the user asks to abort.
struct SortAborted {};

// Polls for an abort at the first step and then every few thousand: responsive, at no measurable cost.
class AbortPoll {
  public:
    explicit AbortPoll(RunMonitor& monitor) : monitor_(monitor) {}

    void Step() {
        if ((steps_++ & 0x1FFFU) == 0) {
            Ask();
        }
    }
    // For a step over a long text, which takes as long as many short ones.
    void Ask() {
        if (monitor_.AbortRequested()) {
            throw SortAborted();
        }
    }

  private:
    RunMonitor& monitor_;
    std::uint32_t steps_ = 0;
};

} // namespace tunedex
