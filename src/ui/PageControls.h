// The controls that the options dialog and the layout editor's pages are made of, named for code and for
// assistive technology.
#pragma once

#include <QString>

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace tunedex {

// A text with a mnemonic ("&Size...") as it is spoken.
QString SpokenText(const QString& textWithMnemonic);

// The control's text is its accessible name.
QCheckBox* MakeCheckBox(const QString& objectName, const QString& textWithMnemonic,
                        const QString& description);
QRadioButton* MakeOption(const QString& objectName, const QString& textWithMnemonic,
                         const QString& description);
// A button that Enter presses only when it is the window's default.
QPushButton* MakeButton(const QString& objectName, const QString& textWithMnemonic,
                        const QString& description);

// The name of one control of an array: "txtColour(3)".
QString ArrayName(const QString& objectName, int index);

} // namespace tunedex
