#include "ErrorMessage.h"

#include "Functions.h"
#include "RunTimeError.h"

namespace tunedex {

bool RunOrShowError(WindowInterface& ui, QWidget& owner, std::string_view title,
                    const std::function<void()>& command) {
    try {
        command();
        return true;
    } catch (const RunTimeError& error) {
        ui.ShowMessage(owner, UnexpectedErrorText(error), kOkExclamation, title);
        return false;
    }
}

} // namespace tunedex
