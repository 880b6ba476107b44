// What a long phase of a run needs of its surroundings: somewhere to show how far it is, and whether to stop.
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
    // The same for `before` + `count` + "/" + `total` + `after`, set for every single file: implementations
    // store the numbers and make the text when they paint. The two texts must be literals or live as long as
    // the run.
    virtual void SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                                  std::string_view after) = 0;
    virtual void SetMaximum(std::int32_t maximum) = 0;
    virtual void SetPosition(std::int32_t position) = 0;
    // Lets pending input be handled, if there is any, and tells whether the user has asked to stop. Cheap
    // enough to be asked for every file.
    virtual bool AbortRequested() = 0;
};

} // namespace tunedex
