// The front end as the windows themselves use it.
#pragma once

#include "UserInterface.h"

class QWidget;

namespace tunedex {

class WindowInterface : public UserInterface {
  public:
    using UserInterface::ShowMessage;

    // As above, for a message that `owner` raises: the box stays in front of that window and gives the focus
    // back to it. For a hidden owner, its nearest visible parent owns the box.
    virtual int ShowMessage(QWidget& owner, std::string_view text, int buttons, std::string_view title) = 0;
};

} // namespace tunedex
