// Reports run-time errors of a window's commands.
#pragma once

#include "WindowInterface.h"

#include <functional>
#include <string_view>

class QWidget;

namespace tunedex {

// Runs `command`. Shows the run-time error it raises in a message box owned by `owner`. Returns whether it
// raised none.
bool RunOrShowError(WindowInterface& ui, QWidget& owner, std::string_view title,
                    const std::function<void()>& command);

} // namespace tunedex
