// The settings of a run that the command line describes.
#pragma once

#include "Application.h"
#include "CommandLine.h"

#include <optional>
#include <string>

namespace tunedex {

// Why a run cannot start.
struct Refusal {
    int status;
    std::string text; // one line, without a line end
};

// Finds the program folder and sets application.settings: those of the command's settings file, else of the
// default settings file, else the default settings with modern tags and lists; then the command's options.
// Folders and output file become absolute. For an output to standard output, Spanning becomes 0 and
// OutputFile only names the format. Raises the error of a program folder that cannot be created.
std::optional<Refusal> PrepareSettings(Application& application, const CreateCommand& command);

// Whether this output file of --create means standard output: "-", or "-" and the extension of a format.
bool IsStandardOutput(const std::string& outputFile);

} // namespace tunedex
