// The front end without a screen: status and messages on standard error, answers from standard input.
#pragma once

#include "Application.h"
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
    // Prints title and text and reads the answer. Where the input ends or the user interrupts, the answer is
    // the safe one: OK where there is nothing else, otherwise No or Cancel.
    int ShowMessage(std::string_view text, int buttons, std::string_view title) override;
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

    // Lets Ctrl-C, a hang-up and a request to terminate abort the run as the Abort button does; a second one
    // ends the program.
    static void CatchSignals();

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
    void Print(std::string_view text) const;
    // One line of input without its end; nothing where the input ends or a signal interrupts.
    bool ReadLine(std::string& line) const;

    Application& application_;
    const int input_;
    const int output_;
    const bool isTerminal_;
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
