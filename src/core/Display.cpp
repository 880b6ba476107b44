#include "Display.h"

#include "Product.h"
#include "TerminalText.h"

#include <cstdlib>

namespace tunedex {

std::vector<DisplayVariable> DisplayVariables() {
    std::vector<DisplayVariable> variables;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const char* value = std::getenv(name);
        if (value != nullptr && *value != '\0') {
            variables.push_back({name, value});
        }
    }
    return variables;
}

std::string UnusableDisplayText(const std::vector<DisplayVariable>& variables) {
    std::string text = std::string(kProductTitle) + " could not open the display.\n";
    std::string command = "env";
    for (const DisplayVariable& variable : variables) {
        text += variable.name + " is \"" + TerminalText(variable.value) + "\".\n";
        command += " -u " + variable.name;
    }
    return text + "To make the list without a display: " + command + " tunedex /AUTO\n";
}

} // namespace tunedex
