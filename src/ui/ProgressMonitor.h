// Passes a run's progress to the progress window: stores every report, paints at most 30 times a second.
#pragma once

#include "Application.h"
#include "RunMonitor.h"

#include <QCoreApplication>
#include <QString>

#include <chrono>
#include <string>
#include <string_view>

namespace tunedex {

class frmProgress;

class ProgressMonitor final : public RunMonitor {
    Q_DECLARE_TR_FUNCTIONS(tunedex::ProgressMonitor)

  public:
    explicit ProgressMonitor(Application& application) : application_(application) {}

    // Resets all values and shows later ones in `window`; null for no window.
    void SetWindow(frmProgress* window);

    void SetStatus(std::string_view text) override;
    void SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                          std::string_view after) override;
    void SetMaximum(std::int32_t maximum) override;
    void SetPosition(std::int32_t position) override;
    void SetFound(std::int32_t count) override;
    bool AbortRequested() override;

    // The current status text in English, painted or not.
    std::string StatusText() const;

  private:
    using SteadyClock = std::chrono::steady_clock;

    void Paint();
    QString ShownStatus() const;
    QString Details() const;

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
    std::int32_t found_ = 0; // in the search
    SteadyClock::time_point phaseStart_{};

    SteadyClock::time_point nextTurn_{};
};

} // namespace tunedex
