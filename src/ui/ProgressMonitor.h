// What a run reports, on its way to the progress window: stored at once, painted now and then.
#pragma once

#include "Application.h"
#include "RunMonitor.h"

#include <chrono>
#include <string>
#include <string_view>

namespace tunedex {

class frmProgress;

class ProgressMonitor final : public RunMonitor {
  public:
    explicit ProgressMonitor(Application& application) : application_(application) {}

    // From here on texts and numbers are shown in that window, beginning with empty ones; null for none.
    void SetWindow(frmProgress* window);

    void SetStatus(std::string_view text) override;
    void SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                          std::string_view after) override;
    void SetMaximum(std::int32_t maximum) override;
    void SetPosition(std::int32_t position) override;
    bool AbortRequested() override;

    // The text that is shown, or would be.
    std::string StatusText() const;

  private:
    using SteadyClock = std::chrono::steady_clock;

    void Paint();

    Application& application_;
    frmProgress* window_ = nullptr;
    bool changed_ = false;

    bool counted_ = false;
    std::string status_;
    std::string_view before_;
    std::string_view after_;
    std::int32_t count_ = 0;
    std::int32_t total_ = 0;
    std::int32_t maximum_ = 0;
    std::int32_t position_ = 0;

    SteadyClock::time_point nextTurn_{};
};

} // namespace tunedex
