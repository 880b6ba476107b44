#include "QSettingsRegistry.h"

#include "Product.h"
#include "Text.h"

#include <QByteArray>
#include <QStringList>
#include <QVariant>

namespace tunedex {
namespace {

QString KeyOf(std::string_view name) {
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

} // namespace

QSettingsRegistry::QSettingsRegistry()
    : settings_(QString::fromLatin1(kCompanyName), QString::fromLatin1(kProductTitle)) {}

std::string QSettingsRegistry::Read(std::string_view name) const {
    const QVariant value = settings_.value(KeyOf(name));
    switch (value.typeId()) {
    case QMetaType::QByteArray:
        return value.toByteArray().toStdString();
    case QMetaType::QStringList: // an unquoted comma in a hand-edited file
        return value.toStringList().join(u',').toStdString();
    default:
        return value.toString().toStdString();
    }
}

void QSettingsRegistry::Write(std::string_view name, std::string_view text) {
    const QByteArray bytes(text.data(), static_cast<qsizetype>(text.size()));
    // A QString cannot hold a path with invalid UTF-8; a QByteArray round-trips.
    settings_.setValue(KeyOf(name), IsValidUtf8(text) ? QVariant(QString::fromUtf8(bytes)) : QVariant(bytes));
    settings_.sync();
}

} // namespace tunedex
