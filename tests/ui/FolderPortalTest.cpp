// The desktop's folder dialog, played by a portal of the test on a bus of its own (dbus-run-session).
#include "FolderPortal.h"

#include "WindowTest.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QLineEdit>
#include <QTimer>

using namespace Qt::StringLiterals;
using namespace tunedex;
using namespace tunedex::test;

namespace {

const QString kService = u"org.freedesktop.portal.Desktop"_s;
const QString kObject = u"/org/freedesktop/portal/desktop"_s;
const QString kPortalBus = u"portal"_s;

} // namespace

// The object of the portal: its version, the questions that it got, and the answer that it gives.
class FakePortal final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.FileChooser")
    Q_PROPERTY(uint version MEMBER version)

  public:
    uint version = 3;
    uint response = 0;
    QStringList uris;
    bool refuses = false;
    bool vanishes = false;
    bool ownPath = false; // as portals before version 0.9 of their program
    std::function<void()> whileOpen;

    QString parent;
    QString title;
    QVariantMap options;

  public slots:
    QDBusObjectPath OpenFile(const QString& parentWindow, const QString& caption, const QVariantMap& given) {
        parent = parentWindow;
        title = caption;
        options = given;
        if (refuses) {
            sendErrorReply(QDBusError::Failed, u"no backend"_s);
            return {};
        }
        const QString sender = message().service().mid(1).replace(u'.', u'_');
        const QString token = ownPath ? u"t1"_s : given.value(u"handle_token"_s).toString();
        const QString path = kObject + u"/request/"_s + sender + u'/' + token;
        QTimer::singleShot(50, this, [this, path] { Answer(path); });
        return QDBusObjectPath(path);
    }

  private:
    void Answer(const QString& path) {
        if (whileOpen) {
            whileOpen();
        }
        QDBusConnection bus(kPortalBus);
        if (vanishes) {
            bus.unregisterService(kService);
            return;
        }
        QDBusMessage signal =
            QDBusMessage::createSignal(path, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << response << QVariantMap{{u"uris"_s, uris}};
        bus.send(signal);
    }
};

class FolderPortalTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() {
        if (!QDBusConnection::sessionBus().isConnected()) {
            QSKIP("there is no session bus; run this test with dbus-run-session");
        }
        if (QDBusConnection::sessionBus().interface()->isServiceRegistered(kService)) {
            QSKIP("this is the bus of a desktop; run this test with dbus-run-session");
        }
    }

    void init() {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, kPortalBus);
        portal_ = std::make_unique<FakePortal>();
        QVERIFY(bus.registerObject(kObject, portal_.get(),
                                   QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties));
        QVERIFY(bus.registerService(kService));
    }
    void cleanup() {
        QDBusConnection(kPortalBus).unregisterService(kService);
        QDBusConnection::disconnectFromBus(kPortalBus);
        portal_.reset();
    }

    void TheChosenFoldersAreReturnedAsBytes_data() {
        QTest::addColumn<QString>("uri");
        QTest::addColumn<QByteArray>("folder");
        QTest::newRow("plain") << u"file:///home/lea/Music"_s << QByteArray("/home/lea/Music");
        QTest::newRow("encoded") << u"file:///a%20b/%C3%A9%23"_s << QByteArray("/a b/\xC3\xA9#");
        QTest::newRow("not UTF-8") << u"file:///old%FC"_s << QByteArray("/old\xFC");
        QTest::newRow("a separator at the end") << u"file:///music/"_s << QByteArray("/music");
        QTest::newRow("the root folder") << u"file:///"_s << QByteArray("/");
        QTest::newRow("with a host") << u"file://localhost/music"_s << QByteArray("/music");
    }
    void TheChosenFoldersAreReturnedAsBytes() {
        QFETCH(QString, uri);
        QFETCH(QByteArray, folder);
        portal_->uris = {uri, u"file:///second"_s, u"smb://server/third"_s};
        const auto folders = Ask({});
        QVERIFY(folders.has_value());
        QCOMPARE(folders->size(), std::size_t(2)); // only folders of this computer
        QCOMPARE(QByteArray::fromStdString(folders->at(0)), folder);
        QCOMPARE(folders->at(1), std::string("/second"));
    }

    void TheQuestionNamesTitleStartAndNumberOfFolders() {
        const TestFolder folder;
        const std::string start = folder.Make("m\xC3\xBCsic");
        for (const bool several : {false, true}) {
            Ask({u"Select a Directory"_s, start, several, u"x11:1a2b"_s});
            QCOMPARE(portal_->title, u"Select a Directory"_s);
            QCOMPARE(portal_->parent, u"x11:1a2b"_s);
            QCOMPARE(portal_->options.value(u"multiple"_s), QVariant(several));
            QCOMPARE(portal_->options.value(u"directory"_s), QVariant(true));
            QCOMPARE(portal_->options.value(u"accept_label"_s).toString(), u"_OK"_s);
            QCOMPARE(portal_->options.value(u"current_folder"_s).toByteArray(),
                     QByteArray::fromStdString(start) + '\0');
        }
        Ask({u"T"_s, folder / "missing", false, {}});
        QVERIFY(!portal_->options.contains(u"current_folder"_s));
    }

    void CancelChoosesNoFolder() {
        portal_->response = 1;
        const auto folders = Ask({});
        QVERIFY(folders.has_value());
        QVERIFY(folders->empty());
    }

    void APortalThatChoosesThePathOfTheRequestIsUnderstood() {
        portal_->ownPath = true;
        portal_->uris = QStringList{u"file:///music"_s};
        const auto folders = Ask({});
        QVERIFY(folders.has_value());
        QCOMPARE(folders->size(), std::size_t(1));
    }

    void WithoutAPortalThatHelpsAnotherDialogIsNeeded_data() {
        QTest::addColumn<QString>("fault");
        for (const QString& fault : {u"none"_s, u"old"_s, u"refuses"_s, u"failed"_s, u"vanishes"_s}) {
            QTest::newRow(qPrintable(fault)) << fault;
        }
    }
    void WithoutAPortalThatHelpsAnotherDialogIsNeeded() {
        QFETCH(QString, fault);
        portal_->version = fault == u"old"_s ? 2 : 3;
        portal_->refuses = fault == u"refuses"_s;
        portal_->response = fault == u"failed"_s ? 2 : 0;
        portal_->vanishes = fault == u"vanishes"_s;
        portal_->uris = QStringList{u"file:///music"_s};
        if (fault == u"none"_s) {
            QDBusConnection(kPortalBus).unregisterService(kService);
        }
        QVERIFY(!Ask({}).has_value());
    }

    void WindowsTakeNoInputWhileThePortalAsks() {
        QLineEdit field;
        field.show();
        field.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        portal_->whileOpen = [&] {
            QTest::keyClicks(&field, u"x"_s);
            field.close();
        };
        Ask({});
        QCOMPARE(field.text(), QString());
        QVERIFY(field.isVisible());
        QTest::keyClicks(&field, u"y"_s);
        QCOMPARE(field.text(), u"y"_s);
    }

    void WithoutAWindowSystemNoPortalIsAsked() {
        QCOMPARE(QGuiApplication::platformName(), u"offscreen"_s);
        QVERIFY(!IsPortalLikely());
    }

  private:
    static std::optional<std::vector<std::string>> Ask(const PortalQuestion& question) {
        return AskPortalForFolders(QDBusConnection::sessionBus(), question);
    }

    std::unique_ptr<FakePortal> portal_;
};

TUNEDEX_WINDOW_TEST(FolderPortalTest)
#include "FolderPortalTest.moc"
