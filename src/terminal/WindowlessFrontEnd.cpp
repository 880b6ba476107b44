#include "WindowlessFrontEnd.h"

#include "Functions.h"
#include "Interrupts.h"
#include "Startup.h"
#include "TerminalText.h"
#include "Text.h"

namespace tunedex {

void WindowlessFrontEnd::TakeControls(Settings& settings) {
    TakeMainFields(settings, fields_);
    TakeLayoutControls(settings);
}

std::string WindowlessFrontEnd::NameInMessage(std::string_view name) const {
    if (!output_.IsTerminal()) {
        return std::string(name);
    }
    return TerminalText(ReplaceAll(name, kTemplateLineBreak, "?"));
}

bool WindowlessFrontEnd::AbortRequested() {
    if (Interrupted()) {
        application_.abortRequested = true;
    }
    return application_.abortRequested;
}

} // namespace tunedex
