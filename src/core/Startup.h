// The start-up sequence, and the commands that a front end calls.
#pragma once

#include "Application.h"
#include "ListJob.h"
#include "UserInterface.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// Finds program folder and help file, loads statistics and default settings, and fills the fields of the main
// window. Malformed statistics are reported in a message box and reset. Raises the error of a program folder
// that cannot be created or a settings file that cannot be read; the program cannot start then.
void StartUp(Application& application, UserInterface& ui, const std::vector<std::string>& arguments);

// The main window's fields for these settings.
MainFields FieldsFor(const Settings& settings);

// Copies the main window's fields into the settings: output file and the three titles.
void TakeMainFields(Settings& settings, const MainFields& fields);
// The effect of the layout editor's controls on settings. Required: every document type except exactly
// "XHTML" and "HTML5" becomes "HTML".
void TakeLayoutControls(Settings& settings);

// The Create List command: takes the folder field, loads the entity table and runs the list job.
RunOutcome CreateListCommand(Application& application, UserInterface& ui);

// Saves the settings to `path` with SaveSettings. Returns a message, titled kUnsavedSettingsTitle, that names
// the settings that could not be saved; empty when all were.
std::string SaveSettingsCommand(const Application& application, const std::string& path);
inline constexpr const char* kUnsavedSettingsTitle = "Settings";

// Writes the default settings to the file `path`; adds the extension ".cfg" if it is missing. Raises the
// error of a file that cannot be written, 52 for an empty path.
void WriteDefaultSettings(const Application& application, const std::string& path);

// Saves the statistics when an interactive program ends. Required: an unattended run does not save them.
void SaveStatisticsAtExit(const Application& application);

} // namespace tunedex
