// How a long phase of a run shows progress and learns that it should stop.
#pragma once

#include <cstdint>
#include <string_view>

namespace tunedex {

class RunMonitor {
  public:
    RunMonitor() = default;
    RunMonitor(const RunMonitor&) = delete;
    RunMonitor& operator=(const RunMonitor&) = delete;
    virtual ~RunMonitor() = default;

    // The text of the status label.
    virtual void SetStatus(std::string_view text) = 0;
    // Sets the status to `before` + `count` + "/" + `total` + `after`. Called for every file: implementations
    // store the numbers and format them when they paint. Both texts must be literals or outlive the run.
    virtual void SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                                  std::string_view after) = 0;
    virtual void SetMaximum(std::int32_t maximum) = 0;
    virtual void SetPosition(std::int32_t position) = 0;
    // The number of files found so far, while their total is unknown. Called for every file.
    virtual void SetFound(std::int32_t /*count*/) {}
    // Processes pending input, if any, and returns whether the user asked to stop. Cheap enough to call for
    // every file.
    virtual bool AbortRequested() = 0;
};

} // namespace tunedex
