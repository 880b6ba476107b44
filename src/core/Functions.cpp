#include "Functions.h"

#include "Application.h"
#include "Numbers.h"
#include "Product.h"
#include "Text.h"

namespace tunedex {

namespace {

// Required: placeholders are replaced one after another, so "%N" in a folder name is replaced too. Do not
// "fix".
std::string ExpandTemplate(std::string_view errorTemplate, std::string_view folder, std::string_view file,
                           const RunTimeError& error) {
    std::string text(errorTemplate);
    if (!folder.empty()) {
        text = ReplaceAll(text, "%D", folder);
    }
    if (!file.empty()) {
        text = ReplaceAll(text, "%F", file);
    }
    text = ReplaceAll(text, "%N", std::to_string(error.Number()));
    return ReplaceAll(text, "%S", error.Description());
}

} // namespace

int ShowMessage(UserInterface& ui, std::string_view text, int buttons, std::string_view title) {
    return ui.ShowMessage(text, buttons, title.empty() ? kProductTitle : title);
}

std::string UnexpectedErrorText(const RunTimeError& error) {
    return "An unexpected error occurred. The error was: \r\n\r\nError number " +
           std::to_string(error.Number()) + " - " + error.Description();
}

void ReportError(std::string_view errorTemplate, std::string_view file, std::string_view folder,
                 const RunTimeError& error, const Application& application, UserInterface& ui, LogFile* log) {
    const std::string opening = "An error occurred ";
    const bool warnings = application.settings.ErrorWarnings;
    if (warnings) {
        const std::string text =
            ExpandTemplate(errorTemplate, ui.NameInMessage(folder), ui.NameInMessage(file), error);
        ui.ShowReport(opening + ReplaceAll(text, kTemplateLineBreak, "\r\n"), application.errorTitle);
    }
    if (application.settings.ErrorLog && log != nullptr) {
        // Required: with warnings off the line keeps its "\n" as two characters; with warnings on its parts
        // run together. Do not "fix": scripts read both forms.
        std::string line = ExpandTemplate(errorTemplate, folder, file, error);
        if (warnings) {
            line = ReplaceAll(line, kTemplateLineBreak, "\r\n");
        }
        log->WriteLine(opening + ReplaceAll(line, "\r\n", ""));
    }
}

void PauseSeconds(std::int16_t seconds, Clock& clock) {
    clock.Sleep(std::chrono::milliseconds(ToInt32(static_cast<double>(seconds) * 1000)));
}

} // namespace tunedex
