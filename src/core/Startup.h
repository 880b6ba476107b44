// The start-up sequence, and the commands that a front end passes on.
#pragma once

#include "Application.h"
#include "UserInterface.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tunedex {

// Finds the program's folder and help file, loads statistics and default settings, and fills the main
// window's fields. Malformed statistics are reported in a message box and counted anew. Raises the error of a
// program folder that cannot be made or a settings file that cannot be read: the program cannot start then.
void StartUp(Application& application, UserInterface& ui, const std::vector<std::string>& arguments);

// The fields that the settings stand for.
MainFields FieldsFor(const Settings& settings);

// Takes the main window's fields into the settings: output file and the three titles.
void TakeMainFields(Settings& settings, const MainFields& fields);
// What passing through the layout editor's controls does to settings: the document type becomes "XHTML" when
// it is exactly that, else "HTML".
void TakeLayoutControls(Settings& settings);

// The Create List command: folder field, entity table, then the list job. Whether the list was written.
bool CreateListCommand(Application& application, UserInterface& ui);

// Saves the settings to `path` as SaveSettings does. Returns the text of the message, titled
// kUnsavedSettingsTitle, that names the settings that could not be saved; empty when all were.
std::string SaveSettingsCommand(const Application& application, const std::string& path);
inline constexpr const char* kUnsavedSettingsTitle = "Settings";

// Saves the statistics; the end of an interactive program.
void SaveStatisticsAtExit(const Application& application);

} // namespace tunedex
