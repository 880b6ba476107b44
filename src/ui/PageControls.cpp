#include "PageControls.h"

#include "WidgetHelpers.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace tunedex {

QString SpokenText(const QString& textWithMnemonic) {
    return QString(textWithMnemonic).remove(u'&').remove(u"..."_s);
}

QCheckBox* MakeCheckBox(const QString& objectName, const QString& textWithMnemonic,
                        const QString& description) {
    auto* box = new QCheckBox(textWithMnemonic);
    NameControl(*box, objectName, SpokenText(textWithMnemonic), description);
    return box;
}

QRadioButton* MakeOption(const QString& objectName, const QString& textWithMnemonic,
                         const QString& description) {
    auto* option = new QRadioButton(textWithMnemonic);
    NameControl(*option, objectName, SpokenText(textWithMnemonic), description);
    return option;
}

QPushButton* MakeButton(const QString& objectName, const QString& textWithMnemonic,
                        const QString& description) {
    auto* button = new QPushButton(textWithMnemonic);
    NameControl(*button, objectName, SpokenText(textWithMnemonic), description);
    button->setAutoDefault(false);
    return button;
}

QString ArrayName(const QString& objectName, int index) {
    return objectName + u'(' + QString::number(index) + u')';
}

} // namespace tunedex
