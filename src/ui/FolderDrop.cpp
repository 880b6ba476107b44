#include "FolderDrop.h"

#include "FileSystem.h"
#include "Path.h"
#include "RunTimeError.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <utility>

namespace tunedex {
namespace {

bool IsFolder(const std::string& path) {
    try {
        return !path.empty() && FolderExists(path);
    } catch (const RunTimeError&) {
        return false; // cannot be examined
    }
}

// Decodes the URL's bytes directly: QUrl::toLocalFile() loses bytes that are not UTF-8.
std::string NativePath(const QUrl& url) {
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

} // namespace

std::vector<std::string> FoldersIn(const QMimeData& data) {
    std::vector<std::string> folders;
    for (const QUrl& url : data.urls()) {
        if (!url.isLocalFile()) {
            continue;
        }
        const std::string path = WithoutSeparator(NativePath(url), PathStyle::Native());
        if (IsFolder(path)) {
            folders.push_back(path);
        }
    }
    return folders;
}

FolderDrop::FolderDrop(QWidget& target, Receiver receiver)
    : QObject(&target), receiver_(std::move(receiver)) {
    target.setAcceptDrops(true);
    target.installEventFilter(this);
}

bool FolderDrop::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        break;
    default:
        return QObject::eventFilter(watched, event);
    }
    auto* drag = static_cast<QDropEvent*>(event);
    const std::vector<std::string> folders = FoldersIn(*drag->mimeData());
    drag->setAccepted(!folders.empty());
    if (!folders.empty()) {
        drag->setDropAction(Qt::CopyAction); // a move would let the file manager delete the folder
        if (event->type() == QEvent::Drop) {
            receiver_(folders);
        }
    }
    return true;
}

} // namespace tunedex
