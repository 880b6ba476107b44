// A text box for a whole number of the settings.
#pragma once

#include <QLineEdit>

#include <cstdint>

namespace tunedex {

// Takes any text: what is no number is selected as a whole as soon as it is typed, so that the next key
// replaces it.
class NumberBox : public QLineEdit {
    Q_OBJECT

  public:
    NumberBox(const QString& objectName, const QString& accessibleName, const QString& description);

    void SetNumber(std::int16_t number);

    // Whether the text is numeric, blanks around it aside; it may still be too large for a setting.
    bool IsNumeric() const;
    // Whether it is numeric and fits a setting.
    bool HoldsSetting() const;
    // The number, rounded half to even. Raises error 13 for a text that is not numeric, 6 for one that does
    // not fit.
    std::int16_t Number() const;
};

} // namespace tunedex
