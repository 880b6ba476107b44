// The terminal front end: status and messages on standard error, answers from standard input.
#pragma once

#include "AnswerInput.h"
#include "WindowlessFrontEnd.h"

#include <chrono>
#include <string>
#include <string_view>

namespace tunedex {

class TerminalFrontEnd final : public WindowlessFrontEnd {
  public:
    // Reads answers from the descriptor `input` and writes to the descriptor `output`: on a terminal a
    // progress bar on one line, otherwise a line per phase and one per second within it.
    TerminalFrontEnd(Application& application, int input, int output);

    // Prints title and text and reads the answer, asking again after an invalid one. If the input has ended
    // or a signal has arrived, returns the safe answer: OK if it is the only button, else No or Cancel.
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override;
    RunMonitor& ShowProgress() override;
    void CloseProgress() override;

    void SetStatus(std::string_view text) override;
    void SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                          std::string_view after) override;
    void SetMaximum(std::int32_t maximum) override { maximum_ = maximum; }
    void SetPosition(std::int32_t position) override { position_ = position; }

  private:
    struct Status {
        std::string_view before; // before and after the count; uncounted statuses use `text`
        std::string_view after;
        std::string text;
        std::int32_t count = 0;
        std::int32_t total = 0;
        bool counted = false;
    };

    std::string StatusText() const;
    std::string Bar() const;
    void Paint();
    void FinishStatus();
    std::string MessageText(std::string_view text, std::string_view title) const;

    AnswerInput input_;
    bool open_ = false;
    Status status_;
    bool unpainted_ = false;
    std::int32_t maximum_ = 0;
    std::int32_t position_ = 0;
    std::chrono::steady_clock::time_point lastPaint_;
    std::uint32_t calls_ = 0;
};

} // namespace tunedex
