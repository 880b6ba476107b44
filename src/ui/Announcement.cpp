#include "Announcement.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QString>
#include <QWidget>

namespace tunedex {

namespace {

const auto kAnnouncer = QStringLiteral("announcer");

// Qt 6.4 passes no alerts on to AT-SPI. Screen readers speak a notification that is shown.
QAccessibleInterface* MakeNotification(const QString& /*className*/, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    return widget != nullptr && widget->objectName() == kAnnouncer
               ? new QAccessibleWidget(widget, QAccessible::Notification)
               : nullptr;
}

QWidget* MakeAnnouncer(QWidget& window) {
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(MakeNotification), true);
    auto* announcer = new QWidget(&window);
    announcer->setObjectName(kAnnouncer);
    announcer->setAttribute(Qt::WA_TransparentForMouseEvents);
    announcer->resize(1, 1);
    return announcer;
}

} // namespace

void Announce(const QWidget& widget, const QString& text) {
    QWidget* window = widget.window();
    if (text.isEmpty() || !window->isVisible()) {
        return;
    }
    if (auto* announcer = window->findChild<QWidget*>(kAnnouncer, Qt::FindDirectChildrenOnly)) {
        announcer->setAccessibleName(text);
        QAccessibleEvent shown(announcer, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&shown);
    } else {
        announcer = MakeAnnouncer(*window);
        announcer->setAccessibleName(text);
        announcer->show(); // sends the event
    }
}

} // namespace tunedex
