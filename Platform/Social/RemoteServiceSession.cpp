// The service's end of a remote interface.
#include "Platform/Social/RemoteServiceSession.h"

#include "Platform/Foundation/NSData.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/RemoteServiceProxy.h"
#include "Platform/Social/WireRecord.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>

#include <sys/stat.h>

#include <cerrno>

namespace korvane {
namespace {

constexpr qsizetype longestID = 128;
constexpr int busMilliseconds = 5000; // the bus answers at once; the queue should not wait for one that hangs

NSError unusableData(const QString &text) {
    return NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorUnusableData, text);
}

// A file that others can reach or write to could change after it was taken over, so only an unnamed one without a
// writer will do.
std::optional<NSError> distrust(int descriptor) {
    struct stat status;
    if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        return unusableData(QStringLiteral("The data came as something other than a regular file."));
    if (status.st_uid != ::geteuid())
        return unusableData(QStringLiteral("The file with the data belongs to another user."));
    if (status.st_nlink != 0)
        return unusableData(QStringLiteral("The file with the data has a name; send an unnamed one."));
    if (::fcntl(descriptor, F_SETLEASE, F_RDLCK) == 0)
        ::fcntl(descriptor, F_SETLEASE, F_UNLCK);
    else if (errno == EAGAIN)
        return unusableData(QStringLiteral("The file with the data is still open for writing."));
    return std::nullopt;
}

std::shared_ptr<const FileDescriptor> dataFileOf(const QVariant &argument, std::optional<NSError> *error) {
    const auto files = qdbus_cast<QList<QDBusUnixFileDescriptor>>(argument);
    if (files.isEmpty()) return nullptr;
    if (files.size() > 1) {
        *error = unusableData(QStringLiteral("More than one file came with the message."));
        return nullptr;
    }
    auto file = std::make_shared<FileDescriptor>(FileDescriptor::duplicate(files.first().fileDescriptor()));
    *error = distrust(file->get());
    return file;
}

QVariantList decoded(bool batch, const QVariant &argument, const std::shared_ptr<const FileDescriptor> &dataFile,
                     std::optional<NSError> *error) {
    QList<QVariantMap> encoded;
    if (batch)
        encoded = qdbus_cast<QList<QVariantMap>>(argument);
    else
        encoded.append(qdbus_cast<QVariantMap>(argument));
    QVariantList records;
    for (const QVariantMap &record : encoded)
        if (const auto values = WireRecord::decode(record, dataFile, error)) records.append(*values);
    return records;
}

// Without a bus nobody hears the answer; a bus that is only slow gives no reason to think that the sender has gone.
bool isOnBus(const QString &name, const QDBusConnection &connection) {
    auto question =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    const QDBusMessage answer = connection.call(question << name, QDBus::Block, busMilliseconds);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0).toBool()
                                                       : connection.isConnected();
}

} // namespace

RemoteServiceSession::RemoteServiceSession(QString serviceName, NSXPCInterface interface)
    : _serviceName(std::move(serviceName)), _interface(std::move(interface)) {
    WireRecord::registerTypes();
}

bool RemoteServiceSession::registerOn(QDBusConnection bus) {
    return bus.registerVirtualObject(objectPathOfService(_serviceName), this, QDBusConnection::SingleNode);
}

bool RemoteServiceSession::handleMessage(const QDBusMessage &message, const QDBusConnection &connection) {
    if (message.interface() != _serviceName || message.member() != _interface.operation) return false;
    const bool batch = _interface.argument == NSXPCInterface::Records;
    if (message.signature() != (batch ? QLatin1String("saa{sv}ah") : QLatin1String("sa{sv}ah"))) {
        connection.send(message.createErrorReply(
            QDBusError::InvalidArgs,
            QStringLiteral("%1 takes a message id, records and at most one file.").arg(message.member())));
        return true;
    }
    message.setDelayedReply(true);
    const auto reply = [message, connection](std::optional<bool> success, const std::optional<NSError> &error) {
        connection.send(
            message.createReply({success.value_or(false), error ? dictionaryOfError(*error) : QVariantMap()}));
    };
    std::optional<NSError> error;
    RemoteMessage extra;
    extra.id = message.arguments().at(0).toString();
    extra.isAwaited = [connection, sender = message.service()] { return isOnBus(sender, connection); };
    if (extra.id.isEmpty() || extra.id.size() > longestID)
        error = unusableData(QStringLiteral("The message has no usable id."));
    if (!error) extra.dataFile = dataFileOf(message.arguments().at(2), &error);
    QVariantList records;
    if (!error) records = decoded(batch, message.arguments().at(1), extra.dataFile, &error);
    if (error)
        reply(false, error);
    else
        received(records, extra, reply);
    return true;
}

QString RemoteServiceSession::introspect(const QString &) const {
    const bool batch = _interface.argument == NSXPCInterface::Records;
    return QStringLiteral(R"(<interface name="%1">
  <annotation name="org.gtk.GDBus.DocString" value="Takes posts over for upload. The reply comes once they are safe on disk."/>
  <method name="%2">
    <annotation name="org.gtk.GDBus.DocString" value="All posts are taken or none. Asked again with an id it knows, the service answers without taking them twice."/>
    <arg name="messageID" type="s" direction="in"/>
    <arg name="%3" type="%4" direction="in"/>
    <arg name="data" type="ah" direction="in">
      <annotation name="org.gtk.GDBus.DocString" value="No or one unnamed file, open for reading only; values of type (tt) in the records name offset and length of bytes in it."/>
    </arg>
    <arg name="success" type="b" direction="out"/>
    <arg name="error" type="a{sv}" direction="out">
      <annotation name="org.gtk.GDBus.DocString" value="Empty, or domain (s), code (x) and perhaps description (s)."/>
    </arg>
  </method>
</interface>
)")
        .arg(_serviceName, _interface.operation, batch ? QStringLiteral("posts") : QStringLiteral("post"),
             batch ? QStringLiteral("aa{sv}") : QStringLiteral("a{sv}"));
}

} // namespace korvane
