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

// Turns a template with the placeholders %D %F %N %S into a message and sends it to a message box
// (ErrorWarnings), to the log (ErrorLog), to both or to neither. "\n" in a template, two characters, is a
// line break in the box. Empty `folder` and `file` leave their placeholders as they stand. Raises the error
// of a log line that cannot be written.
void ReportError(std::string errorTemplate, std::string_view file, std::string_view folder,
                 const RunTimeError& error, const Application& application, UserInterface& ui, LogFile* log);

// Returns after that many seconds. Raises error 6 when their milliseconds do not fit 32 bits.
void PauseSeconds(std::int16_t seconds, Clock& clock);

} // namespace tunedex
