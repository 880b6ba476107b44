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

QWidget* AnnouncerOf(QWidget& window) {
    auto* announcer = window.findChild<QWidget*>(kAnnouncer, Qt::FindDirectChildrenOnly);
    if (announcer == nullptr) {
        [[maybe_unused]] static const bool installed = (QAccessible::installFactory(MakeNotification), true);
        announcer = new QWidget(&window);
        announcer->setObjectName(kAnnouncer);
        announcer->setAttribute(Qt::WA_TransparentForMouseEvents);
        announcer->resize(1, 1);
        announcer->show();
    }
    return announcer;
}

} // namespace

void Announce(const QWidget& widget, const QString& text) {
    QWidget* window = widget.window();
    if (text.isEmpty() || !window->isVisible()) {
        return;
    }
    QWidget* announcer = AnnouncerOf(*window);
    announcer->setAccessibleName(text);
    QAccessibleEvent shown(announcer, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&shown);
}

} // namespace tunedex
