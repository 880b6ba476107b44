#include "FolderPortal.h"

#include "QtText.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRandomGenerator>
#include <QWidget>

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

namespace tunedex {
namespace {

const QString kService = u"org.freedesktop.portal.Desktop"_s;
const QString kObject = u"/org/freedesktop/portal/desktop"_s;
const QString kFileChooser = u"org.freedesktop.portal.FileChooser"_s;
const QString kRequest = u"org.freedesktop.portal.Request"_s;
constexpr uint kFirstVersionWithFolders = 3;
constexpr int kPatience = 3000; // milliseconds for an answer that needs no user
constexpr uint kChosen = 0;
constexpr uint kCancelled = 1;

// Keeps input from the windows of the program while another program shows a dialog for it.
class InputBlock final : public QObject {
  public:
    InputBlock() { QCoreApplication::instance()->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* /*object*/, QEvent* event) override {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::DragEnter:
        case QEvent::Drop:
        case QEvent::TouchBegin:
            return true;
        case QEvent::Close:
            event->ignore();
            return true;
        default:
            return false;
        }
    }
};

// The reply of the call, without blocking the event loop.
QDBusMessage Reply(const QDBusConnection& bus, const QDBusMessage& call) {
    const QDBusPendingCallWatcher watcher(bus.asyncCall(call, kPatience));
    if (!watcher.isFinished()) {
        QEventLoop loop;
        QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return watcher.reply();
}

// 0 if there is no portal.
uint PortalVersion(const QDBusConnection& bus) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(kService, kObject, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    call << kFileChooser << u"version"_s;
    const QDBusMessage reply = Reply(bus, call);
    return reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty()
               ? reply.arguments().constFirst().value<QDBusVariant>().variant().toUInt()
               : 0;
}

// The path of a file URI as bytes, which need not be UTF-8.
std::string PathOfUri(const QString& uri) {
    const QByteArray rest = uri.toUtf8().mid(static_cast<qsizetype>(std::string_view("file://").size()));
    std::string path =
        QByteArray::fromPercentEncoding(rest.mid(std::max<qsizetype>(rest.indexOf('/'), 0))).toStdString();
    if (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

QVariantMap OptionsFor(const PortalQuestion& question, const QString& token) {
    QVariantMap options{
        {u"handle_token"_s, token},
        {u"accept_label"_s, QCoreApplication::translate("tunedex::Dialogs", "&OK").replace(u'&', u'_')},
        {u"modal"_s, true},
        {u"directory"_s, true},
        {u"multiple"_s, question.several}};
    if (QFileInfo(ToQt(question.start)).isDir()) {
        options.insert(u"current_folder"_s,
                       QByteArray(question.start.c_str(), static_cast<qsizetype>(question.start.size()) + 1));
    }
    return options;
}

// One question to the portal, and its answer.
class Request final : public QObject {
    Q_OBJECT

  public:
    explicit Request(const QDBusConnection& bus) : bus_(bus) {
        // Subscribed to before the call: the answer can come before the call returns.
        const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
        Subscribe(kObject + u"/request/"_s + sender + u'/' + token_);
        portal_.setConnection(bus);
        portal_.addWatchedService(kService);
        portal_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
        connect(&portal_, &QDBusServiceWatcher::serviceUnregistered, &loop_, &QEventLoop::quit);
    }
    ~Request() override { Unsubscribe(); }

    std::optional<std::vector<std::string>> Ask(const PortalQuestion& question) {
        QDBusMessage call = QDBusMessage::createMethodCall(kService, kObject, kFileChooser, u"OpenFile"_s);
        call << question.parentWindow << question.title << OptionsFor(question, token_);
        const QDBusPendingReply<QDBusObjectPath> reply = Reply(bus_, call);
        if (reply.isError()) {
            return std::nullopt;
        }
        Subscribe(reply.value().path());
        if (!answered_) {
            loop_.exec();
        }
        return answer_;
    }

  private slots:
    void Answer(uint response, const QVariantMap& results) {
        answered_ = true;
        if (response == kChosen || response == kCancelled) {
            answer_.emplace();
            for (const QString& uri : results.value(u"uris"_s).toStringList()) {
                if (uri.startsWith(u"file://"_s)) {
                    answer_->push_back(PathOfUri(uri));
                }
            }
        }
        loop_.quit();
    }

  private:
    void Subscribe(const QString& path) {
        if (path != path_) { // old portals choose the path themselves
            Unsubscribe();
            path_ = path;
            bus_.connect(kService, path_, kRequest, u"Response"_s, this, SLOT(Answer(uint, QVariantMap)));
        }
    }
    void Unsubscribe() {
        bus_.disconnect(kService, path_, kRequest, u"Response"_s, this, SLOT(Answer(uint, QVariantMap)));
    }

    QDBusConnection bus_;
    QString token_ = u"tunedex%1"_s.arg(QRandomGenerator::global()->generate());
    QString path_;
    QDBusServiceWatcher portal_;
    QEventLoop loop_;
    bool answered_ = false;
    std::optional<std::vector<std::string>> answer_;
};

} // namespace

bool IsPortalLikely() {
    const QString platform = QGuiApplication::platformName();
    const bool bus = qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
                     QFileInfo::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + u"/bus"_s);
    return bus && (platform == u"xcb"_s || platform.startsWith(u"wayland"_s));
}

QString PortalParent(QWidget* owner) {
    return owner != nullptr && QGuiApplication::platformName() == u"xcb"_s
               ? u"x11:"_s + QString::number(owner->window()->winId(), 16)
               : QString();
}

std::optional<std::vector<std::string>> AskPortalForFolders(const QDBusConnection& bus,
                                                            const PortalQuestion& question) {
    const InputBlock block;
    if (!bus.isConnected() || PortalVersion(bus) < kFirstVersionWithFolders) {
        return std::nullopt;
    }
    return Request(bus).Ask(question);
}

} // namespace tunedex

#include "FolderPortal.moc"
