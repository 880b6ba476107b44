#include "OptionGroup.h"

#include <QAbstractButton>

namespace tunedex {

OptionGroup::OptionGroup(QObject* parent) : QButtonGroup(parent) {}

void OptionGroup::Select(std::int16_t number) {
    // Qt does not uncheck the selected button of an exclusive group.
    setExclusive(false);
    for (QAbstractButton* option : buttons()) {
        option->setChecked(id(option) == number);
    }
    setExclusive(true);
    LetTabStopAt(checkedButton() != nullptr ? checkedButton() : buttons().value(0));
}

// Qt does the same, but only once a button has had the focus.
void OptionGroup::LetTabStopAt(const QAbstractButton* stop) {
    for (QAbstractButton* option : buttons()) {
        option->setFocusPolicy(option == stop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void OptionGroup::Store(std::int16_t& setting) const {
    if (checkedButton() != nullptr) {
        setting = static_cast<std::int16_t>(checkedId());
    }
}

} // namespace tunedex
