#include "OpenHelp.h"

#include "QtText.h"
#include "TerminalText.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QUrl>

#include <filesystem>
#include <system_error>

namespace tunedex {
namespace {

void OpenUrl(const QUrl& url, const Application& application, WindowInterface& ui, QWidget& owner) {
    if (!QDesktopServices::openUrl(url)) {
        const QString text =
            QCoreApplication::translate("tunedex::OpenHelp", "No program could be found to open\r\n%1");
        ui.ShowMessage(owner, text.arg(url.toDisplayString()), kOkExclamation, ToQt(application.errorTitle));
    }
}

// Percent-encodes the bytes: QUrl::fromLocalFile() loses bytes that are not UTF-8.
QUrl UrlOf(const std::string& path) {
    const std::string absolute = std::filesystem::absolute(path).string();
    return QUrl::fromEncoded("file://" + QByteArray::fromStdString(absolute).toPercentEncoding("/"));
}

} // namespace

void OpenHelp(const Application& application, WindowInterface& ui, QWidget& owner) {
    if (application.helpFile.empty()) {
        ui.ShowMessage(owner,
                       QCoreApplication::translate("tunedex::OpenHelp", "The help file could not be found!"),
                       kOkExclamation, ToQt(application.errorTitle));
        return;
    }
    OpenUrl(UrlOf(application.helpFile), application, ui, owner);
}

void OpenPath(const std::string& path, const Application& application, WindowInterface& ui, QWidget& owner) {
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        const QString text =
            QCoreApplication::translate("tunedex::OpenHelp", "%1\r\ndoes not exist any more!");
        ui.ShowMessage(owner, text.arg(ToQtDisplay(TerminalText(path))), kOkExclamation,
                       ToQt(application.errorTitle));
        return;
    }
    OpenUrl(UrlOf(path), application, ui, owner);
}

void OpenAddress(const QString& address, const Application& application, WindowInterface& ui,
                 QWidget& owner) {
    OpenUrl(QUrl(address), application, ui, owner);
}

} // namespace tunedex
