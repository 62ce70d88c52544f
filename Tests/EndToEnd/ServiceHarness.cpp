// The whole way: a client, the upload service on a bus of its own, and the stand-in.
#include "Tests/EndToEnd/ServiceHarness.h"

#include "Korvane/FlickrRemoteSessionProtocol.h"
#include "Korvane/FlickrUploadSession.h"
#include "Korvane/VimeoUploadSession.h"
#include "Platform/Social/UploadsInterface.h"
#include "Platform/Social/WireRecord.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusMetaType>
#include <QDBusReply>
#include <QDBusUnixFileDescriptor>

namespace korvane::test {

ServiceHarness::ServiceHarness(const standin::StandInOptions &options) : flickr(home, options) {
    WireRecord::registerTypes();
    home.setEnvironment("KORVANE_RETRY_DELAYS", "100,200,400");
    if (!bus.emplace().start(KORVANE_BUILD_SHARE "/dbus-1/services", home.path("service.log")))
        qFatal("the message bus did not start");
    busAddress = QString::fromLatin1(bus->address());
    home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", bus->address());
}

ServiceHarness::~ServiceHarness() {
    if (bus) killService(SIGTERM);
}

bool ServiceHarness::share(const std::vector<std::shared_ptr<FlickrPost>> &posts, std::optional<NSError> *error) {
    return FlickrUploadSession::init()->uploadPosts(posts, error);
}

bool ServiceHarness::shareVideo(const std::shared_ptr<VimeoPost> &video, std::optional<NSError> *error) {
    return VimeoUploadSession::init()->uploadPost(video, error);
}

std::shared_ptr<VimeoPost> ServiceHarness::video(QAnyStringView fileName, const QByteArray &bytes) const {
    const auto post = VimeoPost::init();
    post->assetURL = NSURL::fileURLWithPath(home.file(fileName, bytes));
    post->title = fileName.toString();
    post->postDescription = QStringLiteral("Zeile\nzwei");
    post->tags = QStringList{QStringLiteral("a"), QStringLiteral("b c")};
    post->privacySettings = VimeoPrivacyPrivate;
    return post;
}

std::shared_ptr<FlickrPost> ServiceHarness::post(const QByteArray &bytes, qint64 album) const {
    const auto post = FlickrPost::init();
    post->photoData = NSData(bytes);
    post->photoSetID = album;
    return post;
}

QDBusMessage ServiceHarness::handOverMessage(const QString &messageID, const QVariant &records,
                                             const QList<int> &files) {
    auto call = QDBusMessage::createMethodCall(FlickrRemoteServiceName, QStringLiteral("/com/zorvex/flickr/xpc"),
                                               QStringLiteral("com.zorvex.flickr.xpc"), QStringLiteral("uploadPosts"));
    QList<QDBusUnixFileDescriptor> descriptors;
    for (const int file : files)
        descriptors.append(QDBusUnixFileDescriptor(file));
    return call << messageID << records << QVariant::fromValue(descriptors);
}

QDBusMessage ServiceHarness::handOver(const QString &messageID, const QVariant &records, const QList<int> &files) {
    return bus->connection().call(handOverMessage(messageID, records, files), QDBus::Block, 60'000);
}

QVariant ServiceHarness::ask(QAnyStringView method, const QVariantList &arguments) {
    auto call = QDBusMessage::createMethodCall(FlickrRemoteServiceName, UploadsInterface::path(),
                                               UploadsInterface::name(), method.toString());
    call.setArguments(arguments);
    return bus->connection().call(call, QDBus::Block, 30'000).arguments().value(0);
}

QList<QVariantMap> ServiceHarness::uploads() {
    return qdbus_cast<QList<QVariantMap>>(ask("List", {qint64(0), quint32(1000)}));
}

QString ServiceHarness::valueOf(int upload, const char *key) {
    return uploads().value(upload).value(QLatin1String(key)).toString();
}

QString ServiceHarness::errorOf(int upload) {
    const auto error = qdbus_cast<QVariantMap>(uploads().value(upload).value(QStringLiteral("error")));
    return error.value(QStringLiteral("description")).toString();
}

int ServiceHarness::countInState(QAnyStringView state) {
    const auto all = uploads();
    return int(std::count_if(all.begin(), all.end(), [&](const QVariantMap &upload) {
        return upload.value(QStringLiteral("state")).toString() == state.toString();
    }));
}

bool ServiceHarness::waitForState(QAnyStringView state, int count, int timeoutMilliseconds) {
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

void ServiceHarness::setEnvironment(const QByteArray &name, const QByteArray &value) {
    home.setEnvironment(name, value);
    qDBusRegisterMetaType<QMap<QString, QString>>();
    const QMap<QString, QString> change{{QString::fromLatin1(name), QString::fromUtf8(value)}};
    auto call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("UpdateActivationEnvironment"));
    bus->connection().call(call << QVariant::fromValue(change));
}

qint64 ServiceHarness::servicePid() {
    const auto reply = bus->connection().interface()->servicePid(FlickrRemoteServiceName);
    return reply.isValid() ? reply.value() : 0;
}

void ServiceHarness::startService() {
    ask("Get", {QStringList()});
}

void ServiceHarness::killService(int signal) {
    const qint64 pid = servicePid();
    if (pid <= 0) return;
    ::kill(pid_t(pid), signal);
    waitFor([&] { return servicePid() != pid; });
}

} // namespace korvane::test
