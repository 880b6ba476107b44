// Time of day and sleeping, behind an interface so that tests can control both.
#pragma once

#include <chrono>
#include <ctime>

namespace tunedex {

class Clock {
  public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    // The current local date and time.
    virtual std::tm LocalTime() const = 0;
    virtual void Sleep(std::chrono::milliseconds duration) = 0;
};

class SystemClock final : public Clock {
  public:
    std::tm LocalTime() const override;
    void Sleep(std::chrono::milliseconds duration) override;
};

} // namespace tunedex
