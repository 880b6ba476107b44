#include "Announcement.h"

#include "WindowTest.h"

#include <QAccessible>
#include <QImage>
#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace tunedex;

namespace {

// The names of the notifications in a window, which screen readers speak when one is shown.
QStringList Notifications(QWidget& window) {
    QStringList found;
    QAccessibleInterface* object = QAccessible::queryAccessibleInterface(&window);
    for (int i = 0; i < object->childCount(); ++i) {
        if (object->child(i)->role() == QAccessible::Notification && !object->child(i)->state().invisible) {
            found += object->child(i)->text(QAccessible::Name);
        }
    }
    return found;
}

} // namespace

class AnnouncementTest : public QObject {
    Q_OBJECT

  private slots:
    void AWindowHasOneNotificationWithTheLastText() {
        QWidget window;
        QLineEdit field(&window);
        window.show();
        Announce(field, u"Saved."_s);
        QCOMPARE(Notifications(window), QStringList{u"Saved."_s});
        Announce(window, u"1 folder"_s);
        QCOMPARE(Notifications(window), QStringList{u"1 folder"_s});
    }

    void EmptyTextsAndHiddenWindowsAreSilent() {
        QWidget window;
        Announce(window, u"Saved."_s);
        window.show();
        Announce(window, QString());
        QCOMPARE(Notifications(window), QStringList());
    }

    void NothingIsDrawnOrMovedAndTheFocusStays() {
        QWidget window;
        auto* layout = new QVBoxLayout(&window);
        auto* field = new QLineEdit(u"Text"_s);
        layout->addWidget(field);
        window.show();
        window.activateWindow();
        field->setFocus();
        const QImage before = window.grab().toImage();
        Announce(window, u"Saved."_s);
        QCOMPARE(window.grab().toImage(), before);
        QCOMPARE(window.focusWidget(), field);
        QCOMPARE(window.childAt(0, 0), nullptr);
    }
};

TUNEDEX_WINDOW_TEST(AnnouncementTest)
#include "AnnouncementTest.moc"
