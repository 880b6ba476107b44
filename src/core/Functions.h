// How the program talks to the user and waits.
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

// Shows a message and returns the button pressed; an empty title becomes the program's name.
int ShowMessage(UserInterface& ui, std::string_view text, int buttons, std::string_view title);

// The text of the message box for an error that nobody expected.
std::string UnexpectedErrorText(const RunTimeError& error);

// A line break within an error template: two characters, a backslash and an n.
inline constexpr std::string_view kTemplateLineBreak = R"(\n)";

// Turns a template with the placeholders %D %F %N %S into a message and sends it to a message box
// (ErrorWarnings), to the log (ErrorLog), to both or to neither. kTemplateLineBreak is a line break in the
// box, also where a name brings it in. The box shows names as UserInterface::NameInMessage returns them, the
// log as they are. Empty `folder` and `file` leave their placeholders as they are. Raises the error of a log
// line that cannot be written.
void ReportError(std::string_view errorTemplate, std::string_view file, std::string_view folder,
                 const RunTimeError& error, const Application& application, UserInterface& ui, LogFile* log);

// Returns after that many seconds. Raises error 6 when their milliseconds do not fit 32 bits.
void PauseSeconds(std::int16_t seconds, Clock& clock);

} // namespace tunedex
