// The front end without a screen: status and messages on standard error, answers from standard input.
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
    // Reads answers from the descriptor `input` and writes to `output`. A terminal gets a progress bar on one
    // line; anything else a line for each phase, and one a second within it.
    TerminalFrontEnd(Application& application, int input, int output);

    MainFields Fields() const override { return fields_; }
    void FillFields(const MainFields& fields) override { fields_ = fields; }
    void TakeControls(Settings& settings) override;
    // Prints title and text and reads the answer; a line that is none asks again. When the input has ended or
    // a signal has arrived, the answer is the safe one: OK where there is no other button, else No or Cancel.
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override;
    // On a terminal without control characters, line breaks and marks of writing direction.
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
        std::string_view before; // the whole text of a phase is in text
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
