#include "OpenHelp.h"

#include "QtText.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

#include <filesystem>

namespace tunedex {
namespace {

void OpenUrl(const QUrl& url, const Application& application, WindowInterface& ui, QWidget& owner) {
    if (!QDesktopServices::openUrl(url)) {
        const QString text =
            QCoreApplication::translate("tunedex::OpenHelp", "No program could be found to open\r\n%1");
        ui.ShowMessage(owner, text.arg(url.toDisplayString()), kOkExclamation, ToQt(application.errorTitle));
    }
}

} // namespace

void OpenHelp(const Application& application, WindowInterface& ui, QWidget& owner) {
    if (application.helpFile.empty()) {
        ui.ShowMessage(owner,
                       QCoreApplication::translate("tunedex::OpenHelp", "The help file could not be found!"),
                       kOkExclamation, ToQt(application.errorTitle));
        return;
    }
    // Percent-encodes the bytes: QUrl::fromLocalFile() loses bytes that are not UTF-8.
    const std::string absolute = std::filesystem::absolute(application.helpFile).string();
    const QByteArray path = QByteArray::fromStdString(absolute).toPercentEncoding("/");
    OpenUrl(QUrl::fromEncoded("file://" + path), application, ui, owner);
}

void OpenAddress(const QString& address, const Application& application, WindowInterface& ui,
                 QWidget& owner) {
    OpenUrl(QUrl(address), application, ui, owner);
}

} // namespace tunedex
