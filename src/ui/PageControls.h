// Factories for the controls of the options dialog and the layout editor, with object names and accessible
// names.
#pragma once

#include <QString>

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace tunedex {

// A caption ("&Size...") without mnemonic and ellipsis, as a screen reader speaks it.
QString SpokenText(const QString& textWithMnemonic);

// The accessible name is the spoken form of the caption.
QCheckBox* MakeCheckBox(const QString& objectName, const QString& textWithMnemonic,
                        const QString& description);
QRadioButton* MakeOption(const QString& objectName, const QString& textWithMnemonic,
                         const QString& description);
// Not an auto-default button: Enter presses it only if it is the window's default.
QPushButton* MakeButton(const QString& objectName, const QString& textWithMnemonic,
                        const QString& description);

// The object name of an element of a control array: "txtColour(3)".
QString ArrayName(const QString& objectName, int index);

} // namespace tunedex
