#include "Controls.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QShortcut>

#include <limits>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

// A label that is grey while its control is.
class FollowingLabel final : public QLabel {
  public:
    FollowingLabel(QWidget& control, const QString& text) : QLabel(text) {
        setBuddy(&control);
        control.installEventFilter(this);
        setEnabled(control.isEnabled());
    }

  protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange) {
            setEnabled(static_cast<QWidget*>(object)->isEnabled());
        }
        return QLabel::eventFilter(object, event);
    }
};

} // namespace

void NameControl(QWidget& control, const QString& objectName, const QString& accessibleName,
                 const QString& description) {
    control.setObjectName(objectName);
    control.setAccessibleName(accessibleName);
    control.setAccessibleDescription(description);
    control.setToolTip(description);
}

QString SpokenText(const QString& textWithMnemonic) {
    static const QRegularExpression appendedMnemonic(u"\\(&.\\)"_s); // of languages without Latin letters
    return QString(textWithMnemonic).remove(appendedMnemonic).remove(u'&').remove(u"..."_s);
}

QString ArrayName(const QString& objectName, int index) {
    return objectName + u'(' + QString::number(index) + u')';
}

void KeepLeftToRight(QWidget& control) {
    control.setLayoutDirection(Qt::LeftToRight);
}

QLabel* MakeLabelFor(QWidget& control, const QString& textWithMnemonic) {
    return new FollowingLabel(control, textWithMnemonic);
}

QLineEdit* MakeTextField(const QString& objectName, const QString& accessibleName,
                         const QString& description) {
    auto* field = new QLineEdit;
    field->setMaxLength(std::numeric_limits<int>::max());
    NameControl(*field, objectName, accessibleName, description);
    return field;
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
                        const QString& description, const QString& accessibleName) {
    auto* button = new QPushButton(textWithMnemonic);
    NameControl(*button, objectName, accessibleName.isEmpty() ? SpokenText(textWithMnemonic) : accessibleName,
                description);
    button->setAutoDefault(false);
    return button;
}

void SetTabOrders(const QList<QWidget*>& controls) {
    for (qsizetype i = 0; i + 1 < controls.size(); ++i) {
        QWidget::setTabOrder(controls[i], controls[i + 1]);
    }
}

void PressOnHelpKey(QWidget& window, QAbstractButton& button) {
    auto* key = new QShortcut(QKeySequence::HelpContents, &window);
    QObject::connect(key, &QShortcut::activated, &button, &QAbstractButton::click);
}

void FocusAndSelectAll(QLineEdit& field) {
    field.window()->activateWindow(); // after a message box the window manager may activate another one
    field.setFocus(Qt::OtherFocusReason);
    field.selectAll();
}

void EnableOrPassFocus(QWidget& control, bool enabled, QWidget& heir) {
    if (!enabled && control.hasFocus()) {
        heir.setFocus();
    }
    control.setEnabled(enabled);
}

} // namespace tunedex
