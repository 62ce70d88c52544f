// The whole way: a client, the upload service on a bus of its own, and the stand-in.
#include "Tests/EndToEnd/ServiceHarness.h"

#include "Korvane/FlickrUploadSession.h"
#include "Platform/Social/UploadsInterface.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>

#include <csignal>

namespace korvane::test {

ServiceHarness::ServiceHarness(const standin::StandInOptions &options) : flickr(home, options) {
    home.setEnvironment("XDG_DATA_DIRS", KORVANE_BUILD_SHARE ":/usr/local/share:/usr/share");
    home.setEnvironment("KORVANE_RETRY_DELAYS", "100,200,400");
    bus.setStandardErrorFile(home.path(QStringLiteral("service.log")));
    bus.start(QStringLiteral("dbus-daemon"),
              {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
               QStringLiteral("--address=unix:path=") + home.path(QStringLiteral("run/test-bus")),
               QStringLiteral("--print-address")});
    bus.waitForReadyRead(10'000);
    busAddress = QString::fromLocal8Bit(bus.readLine()).trimmed();
    home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", busAddress.toLocal8Bit());
}

ServiceHarness::~ServiceHarness() {
    killService(SIGTERM);
    disconnect();
    stopBus();
}

void ServiceHarness::stopBus() {
    bus.terminate();
    bus.waitForFinished(10'000);
}

void ServiceHarness::disconnect() const {
    QDBusConnection::disconnectFromBus(home.path());
}

QDBusConnection ServiceHarness::connection() const {
    return QDBusConnection::connectToBus(busAddress, home.path());
}

bool ServiceHarness::share(const std::vector<std::shared_ptr<FlickrPost>> &posts, std::optional<NSError> *error) {
    return FlickrUploadSession::init()->uploadPosts(posts, error);
}

std::shared_ptr<FlickrPost> ServiceHarness::post(const QByteArray &bytes, qint64 album) const {
    const auto post = FlickrPost::init();
    post->photoData = NSData(bytes);
    post->photoSetID = album;
    return post;
}

QVariant ServiceHarness::ask(const QString &method, const QVariantList &arguments) {
    auto call = QDBusMessage::createMethodCall(QStringLiteral("com.zorvex.flickr.xpc"), UploadsInterface::path(),
                                               UploadsInterface::name(), method);
    call.setArguments(arguments);
    return connection().call(call, QDBus::Block, 30'000).arguments().value(0);
}

QList<QVariantMap> ServiceHarness::uploads() {
    return qdbus_cast<QList<QVariantMap>>(ask(QStringLiteral("List"), {qint64(0), quint32(1000)}));
}

int ServiceHarness::countInState(const QString &state) {
    int count = 0;
    for (const QVariantMap &upload : uploads())
        count += upload.value(QStringLiteral("state")) == state;
    return count;
}

bool ServiceHarness::waitForState(const QString &state, int count, int timeoutMilliseconds) {
    // Looked at seldom enough not to be what keeps the service busy.
    QElapsedTimer sinceLook;
    return waitFor(
        [&] {
            if (sinceLook.isValid() && sinceLook.elapsed() < 20) return false;
            sinceLook.start();
            return countInState(state) == count;
        },
        timeoutMilliseconds);
}

qint64 ServiceHarness::servicePid() {
    const auto reply = connection().interface()->servicePid(QStringLiteral("com.zorvex.flickr.xpc"));
    return reply.isValid() ? reply.value() : 0;
}

void ServiceHarness::startService() {
    ask(QStringLiteral("Get"), {QStringList()});
}

void ServiceHarness::killService(int signal) {
    const qint64 pid = servicePid();
    if (pid <= 0) return;
    ::kill(pid_t(pid), signal);
    waitFor([&] { return servicePid() != pid; });
}

QString ServiceHarness::log() const {
    QFile file(home.path(QStringLiteral("service.log")));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace korvane::test
