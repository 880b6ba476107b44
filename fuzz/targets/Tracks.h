// Comparison of records, and fakes of what a listing needs.
#pragma once

#include "Clock.h"
#include "RunMonitor.h"
#include "TrackInfo.h"

#include <string>

namespace tunedex::fuzz {

// Aborts if the records differ in any field.
void RequireEqualTracks(const TrackInfo& track, const TrackInfo& expected, const char* what);

// A fixed clock, and a monitor that ignores everything.
class StoppedClock final : public Clock {
  public:
    std::tm LocalTime() const override;
    void Sleep(std::chrono::milliseconds /*duration*/) override {}
};

class SilentMonitor final : public RunMonitor {
  public:
    void SetStatus(std::string_view /*text*/) override {}
    void SetCountedStatus(std::string_view /*before*/, std::int32_t /*count*/, std::int32_t /*total*/,
                          std::string_view /*after*/) override {}
    void SetMaximum(std::int32_t /*maximum*/) override {}
    void SetPosition(std::int32_t /*position*/) override {}
    bool AbortRequested() override { return false; }
};

} // namespace tunedex::fuzz
