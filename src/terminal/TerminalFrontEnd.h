// The terminal front end: status and messages on standard error, answers from standard input.
#pragma once

#include "AnswerInput.h"
#include "Application.h"
#include "TerminalOutput.h"
#include "UserInterface.h"

#include <chrono>
#include <string>
#include <string_view>

namespace tunedex {

class TerminalFrontEnd final : public UserInterface, public RunMonitor {
  public:
    // Reads answers from the descriptor `input` and writes to the descriptor `output`: on a terminal a
    // progress bar on one line, otherwise a line per phase and one per second within it.
    TerminalFrontEnd(Application& application, int input, int output);

    MainFields Fields() const override { return fields_; }
    void FillFields(const MainFields& fields) override { fields_ = fields; }
    void TakeControls(Settings& settings) override;
    // Prints title and text and reads the answer, asking again after an invalid one. If the input has ended
    // or a signal has arrived, returns the safe answer: OK if it is the only button, else No or Cancel.
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override;
    // On a terminal, replaces control characters, line breaks and bidirectional formatting characters.
    std::string NameInMessage(std::string_view name) const override;
    void FocusAndSelect(MainField /*field*/) override {}
    void EnableWindows() override {}
    RunMonitor& ShowProgress() override;
    void SetProgressCaption(std::string_view /*caption*/) override {}
    void CloseProgress() override;

    void SetStatus(std::string_view text) override;
    void SetCountedStatus(std::string_view before, std::int32_t count, std::int32_t total,
                          std::string_view after) override;
    void SetMaximum(std::int32_t maximum) override { maximum_ = maximum; }
    void SetPosition(std::int32_t position) override { position_ = position; }
    bool AbortRequested() override;

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

    Application& application_;
    AnswerInput input_;
    const TerminalOutput output_;
    MainFields fields_;
    bool open_ = false;
    Status status_;
    bool unpainted_ = false;
    std::int32_t maximum_ = 0;
    std::int32_t position_ = 0;
    std::chrono::steady_clock::time_point lastPaint_;
    std::uint32_t calls_ = 0;
};

} // namespace tunedex
