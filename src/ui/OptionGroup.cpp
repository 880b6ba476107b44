#include "OptionGroup.h"

#include <QAbstractButton>

namespace tunedex {

OptionGroup::OptionGroup(QObject* parent) : QButtonGroup(parent) {}

void OptionGroup::Select(std::int16_t number) {
    // An exclusive group would not let go of its last selected button.
    setExclusive(false);
    for (QAbstractButton* option : buttons()) {
        option->setChecked(id(option) == number);
    }
    setExclusive(true);
}

void OptionGroup::Store(std::int16_t& setting) const {
    if (checkedButton() != nullptr) {
        setting = static_cast<std::int16_t>(checkedId());
    }
}

} // namespace tunedex
