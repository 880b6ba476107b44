#include "NumberBox.h"

#include "Controls.h"
#include "Numbers.h"
#include "QtText.h"
#include "RunTimeError.h"

#include <limits>

namespace tunedex {

NumberBox::NumberBox(const QString& objectName, const QString& accessibleName, const QString& description) {
    setMaxLength(std::numeric_limits<int>::max());
    NameControl(*this, objectName, accessibleName, description);
    KeepLeftToRight(*this);
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!IsNumeric()) {
            selectAll();
        }
    });
}

void NumberBox::SetNumber(std::int16_t number) {
    setText(QString::number(number));
}

bool NumberBox::IsNumeric() const {
    return tunedex::IsNumeric(FromQt(text()));
}

bool NumberBox::HoldsSetting() const {
    try {
        Number();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

std::int16_t NumberBox::Number() const {
    return ToInt16(RequireNumber(FromQt(text())));
}

} // namespace tunedex
