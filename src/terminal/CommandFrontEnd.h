// The front end of --create: asks nothing, prints messages as one line each, and shows one line of progress.
#pragma once

#include "ProgressText.h"
#include "WindowlessFrontEnd.h"

#include <chrono>
#include <string>
#include <string_view>

namespace tunedex {

class CommandFrontEnd final : public WindowlessFrontEnd {
  public:
    struct Style {
        bool progress = false; // needs a terminal that can rewrite a line
        bool colours = false;
    };

    CommandFrontEnd(Application& application, int output, Style style)
        : WindowlessFrontEnd(application, output), style_(style) {}

    // Prints a line of its own, behind "Tunedex: ". A line break in it becomes a blank.
    void Print(std::string_view text);

    // Prints the text and returns the safe answer: OK if it is the only button, else No or Cancel.
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override;
    RunMonitor& ShowProgress() override { return *this; }
    void CloseProgress() override { Clear(); }

    void SetStatus(std::string_view text) override;
    void SetCountedStatus(std::string_view /*before*/, std::int32_t /*count*/, std::int32_t /*total*/,
                          std::string_view /*after*/) override {}
    void SetMaximum(std::int32_t maximum) override { maximum_ = maximum; }
    void SetPosition(std::int32_t position) override { SetDone(position, maximum_); }
    void SetFound(std::int32_t count) override { SetDone(count, 0); }

  private:
    using Time = std::chrono::steady_clock::time_point;

    void SetDone(std::int32_t done, std::int32_t total);
    void Paint(Time now);
    void Clear();

    const Style style_;
    std::string status_;
    std::int32_t maximum_ = 0;
    std::int32_t done_ = 0;
    std::int32_t total_ = 0;
    std::uint32_t calls_ = 0;
    Time phaseStart_;
    Time lastPaint_;
    bool painted_ = false;
};

// What the environment and the descriptor allow: no progress without a terminal or with TERM=dumb, no colours
// with NO_COLOR.
CommandFrontEnd::Style StyleFor(int output, bool quiet);

} // namespace tunedex
