// Messages of a hostile client to the service's end, over a connection of their own without a bus.
#include "Platform/Social/WireRecord.h"
#include "Korvane/FlickrPost.h"
#include "Korvane/FlickrRemoteSessionProtocol.h"
#include "Platform/Social/DataFile.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/RemoteServiceProxy.h"
#include "Platform/Social/RemoteServiceSession.h"
#include "Tests/Fuzz/Expect.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServer>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QTemporaryDir>

#include <fuzzer/FuzzedDataProvider.h>

using namespace korvane;
using korvane::test::expect;

namespace {

constexpr qint64 fileSize = 5000;

// Looks at what gets through as the service would.
class Session : public RemoteServiceSession {
public:
    Session() : RemoteServiceSession(FlickrRemoteServiceName, FlickrRemoteSessionProtocol::interface()) {}

protected:
    void received(const QVariantList &records, const RemoteMessage &message,
                  const XPCTransferCompletion &reply) override {
        for (const QVariant &record : records) {
            for (const QVariant &value : record.toMap())
                _look(value, message);
            const auto post = FlickrPost::initWithDictionary(record.toMap());
            const auto again = FlickrPost::initWithDictionary(post->serializedDictionary());
            expect(again->title == post->title && again->photoData == post->photoData,
                   "a record survives a second time");
        }
        reply(true, std::nullopt);
    }

private:
    static void _look(const QVariant &value, const RemoteMessage &message) {
        if (value.typeId() != qMetaTypeId<NSData>()) return expect(value.typeId() < QMetaType::User, "a plain value");
        const auto data = value.value<NSData>();
        expect(data.file() && data.file() == message.dataFile, "data is of the message's file");
        expect(data.fileOffset() >= 0 && data.fileOffset() + data.length() <= fileSize, "data lies within the file");
        expect(data.bytes().size() == data.length(), "all of the data can be read");
    }
};

// Session and client in one process, and the file that a client would send.
class Wire {
public:
    Wire() {
        WireRecord::registerTypes();
        QObject::connect(&_server, &QDBusServer::newConnection, &_server, [this](const QDBusConnection &connection) {
            _serviceSide = connection;
            _isReady = _session.registerOn(connection);
        });
        _client = QDBusConnection::connectToPeer(_server.address(), QStringLiteral("client"));
        while (!_isReady)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        auto file = DataFile::create(_folder.path(), nullptr);
        file->append(NSData(QByteArray(fileSize, 'x')), nullptr);
        _file = QDBusUnixFileDescriptor(file->finish(nullptr).get());
    }

    const QDBusUnixFileDescriptor &file() const { return _file; }

    QDBusMessage send(const QVariantList &arguments) {
        auto call =
            QDBusMessage::createMethodCall(QString(), objectPathOfService(_session.serviceName()),
                                           _session.serviceName(), FlickrRemoteSessionProtocol::interface().operation);
        call.setArguments(arguments);
        QDBusPendingCallWatcher watcher(_client.asyncCall(call));
        while (!watcher.isFinished())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return watcher.reply();
    }

private:
    QTemporaryDir _folder;
    QDBusServer _server{QStringLiteral("unix:path=") + _folder.filePath(QStringLiteral("socket"))};
    Session _session;
    QDBusConnection _serviceSide{QString()};
    QDBusConnection _client{QString()};
    QDBusUnixFileDescriptor _file;
    bool _isReady = false;
};

QString textOf(FuzzedDataProvider &input) {
    return QString::fromStdString(input.ConsumeRandomLengthString(40)).remove(QChar::Null);
}

// Numbers near the ends of the file and of the type are the interesting ones.
quint64 placeOf(FuzzedDataProvider &input) {
    const quint64 near = input.PickValueInArray<quint64>({0, fileSize, 1ULL << 31, 1ULL << 63});
    return near + quint64(input.ConsumeIntegralInRange<int>(-2, 2));
}

QVariant valueOf(FuzzedDataProvider &input, int depth = 0) {
    static const QVariant plain[]{
        true, -1, 1U, Q_INT64_C(-1), ~0ULL, 1e308, QVariant::fromValue(uchar(1)), QVariant::fromValue(short(-1))};
    const auto kind = input.ConsumeIntegralInRange<size_t>(0, depth < 4 ? 14 : 9);
    if (kind < std::size(plain)) return plain[kind];
    switch (kind) {
    case 8:
        return textOf(input);
    case 9:
        return QByteArray::fromStdString(input.ConsumeRandomLengthString(40));
    case 10:
        return QVariant::fromValue(DataRange{placeOf(input), placeOf(input)});
    case 11:
        return QStringList(input.ConsumeIntegralInRange(0, 3), textOf(input));
    case 12:
        return QVariantMap{{textOf(input), valueOf(input, depth + 1)}};
    case 13:
        return QVariantList{valueOf(input, depth + 1), valueOf(input, depth + 1)};
    default:
        return QVariant::fromValue(QDBusVariant(valueOf(input, depth + 1)));
    }
}

QList<QVariantMap> recordsOf(FuzzedDataProvider &input) {
    QList<QVariantMap> records;
    for (int count = input.ConsumeIntegralInRange(0, 3); count > 0; --count) {
        QVariantMap record;
        for (int values = input.ConsumeIntegralInRange(0, 6); values > 0; --values) {
            const char *known =
                input.PickValueInArray({"photoData", "title", "tags", "assetURL", "photoSetID", "hidden", ""});
            record.insert(*known ? QString::fromLatin1(known) : textOf(input), valueOf(input));
        }
        records.append(record);
    }
    return records;
}

QVariantList argumentsOf(FuzzedDataProvider &input, const QDBusUnixFileDescriptor &file) {
    const QList<QDBusUnixFileDescriptor> files(input.PickValueInArray({1, 0, 2}), file);
    QVariantList arguments{textOf(input), QVariant::fromValue(recordsOf(input)), QVariant::fromValue(files)};
    if (input.ConsumeIntegralInRange(0, 15) == 1) arguments[input.ConsumeIntegralInRange(0, 2)] = valueOf(input);
    return arguments;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size) {
    static int argumentCount = 1;
    static char name[] = "fuzz-WireRecord";
    static char *arguments[] = {name, nullptr};
    static QCoreApplication application(argumentCount, arguments);
    static Wire wire;

    FuzzedDataProvider input(bytes, size);
    const QDBusMessage answer = wire.send(argumentsOf(input, wire.file()));
    if (answer.type() == QDBusMessage::ErrorMessage) {
        expect(answer.errorName() == QLatin1String("org.freedesktop.DBus.Error.InvalidArgs"),
               "a wrong call is told so");
        return 0;
    }
    expect(answer.type() == QDBusMessage::ReplyMessage && answer.arguments().size() == 2, "every call is answered");
    const auto error = qdbus_cast<QVariantMap>(answer.arguments().at(1));
    expect(answer.arguments().at(0).toBool() == error.isEmpty(), "what is refused is refused with an error");
    return 0;
}
