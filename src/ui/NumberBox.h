// A text box for a 16-bit number setting.
#pragma once

#include <QLineEdit>

#include <cstdint>

namespace tunedex {

// Accepts any text, but selects all of it as soon as it is not numeric, so that the next key replaces it.
class NumberBox : public QLineEdit {
    Q_OBJECT

  public:
    NumberBox(const QString& objectName, const QString& accessibleName, const QString& description);

    void SetNumber(std::int16_t number);

    // Whether the text is a number, ignoring blanks around it. It may still be out of the 16-bit range.
    bool IsNumeric() const;
    // Whether the text is a number within the 16-bit range.
    bool HoldsSetting() const;
    // The number, rounded half to even. Raises error 13 if the text is not numeric, 6 if it is out of range.
    std::int16_t Number() const;
};

} // namespace tunedex
