// The front end's interface for its windows.
#pragma once

#include "QtText.h"
#include "UserInterface.h"

#include <QString>

class QWidget;

namespace tunedex {

class WindowInterface : public UserInterface {
  public:
    using UserInterface::ShowMessage;

    // Shows the message box in front of `owner`, which gets the focus back afterwards. If `owner` is hidden,
    // its nearest visible parent owns the box.
    virtual int ShowMessage(QWidget& owner, std::string_view text, int buttons, std::string_view title) = 0;

    // The same for texts from tr().
    int ShowMessage(QWidget& owner, const QString& text, int buttons, const QString& title) {
        return ShowMessage(owner, FromQt(text), buttons, FromQt(title));
    }
};

} // namespace tunedex
