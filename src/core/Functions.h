// Messages, error reports and pauses.
#pragma once

#include "Clock.h"
#include "LogFile.h"
#include "RunTimeError.h"
#include "UserInterface.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tunedex {

struct Application;

inline constexpr std::string_view kLogFileName = "Tunedex.log"; // in the program folder

// Shows a message and returns the button pressed; an empty title becomes the program's name.
int ShowMessage(UserInterface& ui, std::string_view text, int buttons, std::string_view title);

// The message for an unexpected error.
std::string UnexpectedErrorText(const RunTimeError& error);

// The line break of an error template: two characters, a backslash and an n.
inline constexpr std::string_view kTemplateLineBreak = R"(\n)";

// Expands the placeholders %D %F %N %S of a template and sends the text to a message box (ErrorWarnings), to
// the log (ErrorLog), to both or to neither. In the box, kTemplateLineBreak becomes a line break, even within
// a name. The box shows names through UserInterface::NameInMessage, the log unchanged. When `folder` or
// `file` is empty, its placeholder stays. Raises the error of a failed log write.
void ReportError(std::string_view errorTemplate, std::string_view file, std::string_view folder,
                 const RunTimeError& error, const Application& application, UserInterface& ui, LogFile* log);

// Raises error 6 when the milliseconds do not fit 32 bits.
void PauseSeconds(std::int16_t seconds, Clock& clock);

} // namespace tunedex
