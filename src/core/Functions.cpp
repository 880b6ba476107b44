#include "Functions.h"

#include "Application.h"
#include "Numbers.h"
#include "Product.h"
#include "Text.h"

namespace tunedex {

int ShowMessage(UserInterface& ui, std::string_view text, int buttons, std::string_view title) {
    return ui.ShowMessage(text, buttons, title.empty() ? kProductTitle : title);
}

std::string UnexpectedErrorText(const RunTimeError& error) {
    return "An unexpected error occurred. The error was: \r\n\r\nError number " +
           std::to_string(error.Number()) + " - " + error.Description();
}

void ReportError(std::string errorTemplate, std::string_view file, std::string_view folder,
                 const RunTimeError& error, const Application& application, UserInterface& ui, LogFile* log) {
    // One after the other: a folder whose name holds "%N" gets its own number in.
    if (!folder.empty()) {
        errorTemplate = ReplaceAll(errorTemplate, "%D", folder);
    }
    if (!file.empty()) {
        errorTemplate = ReplaceAll(errorTemplate, "%F", file);
    }
    errorTemplate = ReplaceAll(errorTemplate, "%N", std::to_string(error.Number()));
    errorTemplate = ReplaceAll(errorTemplate, "%S", error.Description());
    const std::string opening = "An error occurred ";
    if (application.settings.ErrorWarnings) {
        errorTemplate = ReplaceAll(errorTemplate, R"(\n)", "\r\n");
        ShowMessage(ui, opening + errorTemplate, kOkExclamation, application.errorTitle);
    }
    if (application.settings.ErrorLog && log != nullptr) {
        // With warnings off the line keeps its "\n" as two characters; with warnings on its parts run
        // together. People's scripts read both.
        log->WriteLine(opening + ReplaceAll(errorTemplate, "\r\n", ""));
    }
}

void PauseSeconds(std::int16_t seconds, Clock& clock) {
    clock.Sleep(std::chrono::milliseconds(ToInt32(static_cast<double>(seconds) * 1000)));
}

} // namespace tunedex
