// What the front ends without windows have in common.
#pragma once

#include "Application.h"
#include "TerminalOutput.h"
#include "UserInterface.h"

#include <string>
#include <string_view>

namespace tunedex {

class WindowlessFrontEnd : public UserInterface, public RunMonitor {
  public:
    MainFields Fields() const override { return fields_; }
    void FillFields(const MainFields& fields) override { fields_ = fields; }
    void TakeControls(Settings& settings) override;
    // On a terminal, replaces control characters, line breaks and bidirectional formatting characters.
    std::string NameInMessage(std::string_view name) const override;
    void FocusAndSelect(MainField /*field*/) override {}
    void EnableWindows() override {}
    void SetProgressCaption(std::string_view /*caption*/) override {}
    bool AbortRequested() override;

  protected:
    // `output`: the descriptor of status and messages.
    WindowlessFrontEnd(Application& application, int output) : output_(output), application_(application) {}

    const TerminalOutput output_;

  private:
    Application& application_;
    MainFields fields_;
};

} // namespace tunedex
