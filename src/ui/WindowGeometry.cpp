#include "WindowGeometry.h"

#include "Product.h"
#include "QtText.h"

#include <QSettings>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

// The registry's store; the windows have a group of their own in it.
QSettings WindowStore() {
    return QSettings(ToQt(kCompanyName), ToQt(kProductTitle));
}

QString GeometryKey(const QWidget& window) {
    return u"Windows/"_s + window.objectName();
}

} // namespace

void RestoreWindowGeometry(QWidget& window) {
    const QByteArray geometry = WindowStore().value(GeometryKey(window)).toByteArray();
    if (!geometry.isEmpty()) {
        window.restoreGeometry(geometry);
    }
}

void SaveWindowGeometry(const QWidget& window) {
    WindowStore().setValue(GeometryKey(window), window.saveGeometry());
}

} // namespace tunedex
