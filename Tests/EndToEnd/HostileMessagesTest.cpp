// Messages that no client of ours would send, straight over the bus.
#include "Platform/Social/WireRecord.h"
#include "Tests/EndToEnd/ServiceFixture.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>

using namespace korvane;
using namespace korvane::test;

namespace {

using Records = QList<QVariantMap>;

} // namespace

class HostileMessages : public ServiceTest {
public:
    HostileMessages() { WireRecord::registerTypes(); }

    QDBusMessage send(const QVariant &records, const QList<int> &files = {}, const QString &id = {}) {
        static int next = 0;
        auto call = QDBusMessage::createMethodCall(
            QStringLiteral("com.zorvex.flickr.xpc"), QStringLiteral("/com/zorvex/flickr/xpc"),
            QStringLiteral("com.zorvex.flickr.xpc"), QStringLiteral("uploadPosts"));
        QList<QDBusUnixFileDescriptor> descriptors;
        for (const int file : files)
            descriptors.append(QDBusUnixFileDescriptor(file));
        call << (id.isNull() ? QStringLiteral("hostile-%1").arg(++next) : id) << records
             << QVariant::fromValue(descriptors);
        return connection().call(call, QDBus::Block, 60'000);
    }

    // The error's words; empty if the message was taken.
    QString refusal(const QDBusMessage &reply) {
        if (reply.type() == QDBusMessage::ErrorMessage) return reply.errorMessage();
        if (reply.arguments().value(0).toBool()) return {};
        return qdbus_cast<QVariantMap>(reply.arguments().value(1)).value(QStringLiteral("description")).toString();
    }

    Records inFile(quint64 offset, quint64 length) {
        return {{{QStringLiteral("photoData"), QVariant::fromValue(DataRange{offset, length})}}};
    }
};

TEST_F(HostileMessages, RecordsOfAnyShapeAreTakenOrRefusedNeverFatal) {
    ask(QStringLiteral("Pause"));
    startService();
    const qint64 pid = servicePid();
    const QVariantMap odd{{QStringLiteral("title"), 3.5},
                          {QStringLiteral("photoData"), QStringLiteral("text")},
                          {QStringLiteral("tags"), QVariantMap{{QStringLiteral("a"), 1}}},
                          {QStringLiteral("photoSetID"), QStringLiteral("12x")},
                          {QStringLiteral("visibility"), true},
                          {QStringLiteral("assetURL"), QVariantList{1, 2}},
                          {QStringLiteral("unknown"), 1e308},
                          {QStringLiteral(""), QDateTime::currentDateTime().toString()}};
    EXPECT_EQ(refusal(send(QVariant::fromValue(Records{odd, {}}))), QString());
    EXPECT_TRUE(refusal(send(QVariant::fromValue(Records{}))).contains(QStringLiteral("nothing to share")));
    EXPECT_TRUE(refusal(send(QStringLiteral("no records"))).contains(QStringLiteral("records")));
    EXPECT_TRUE(
        refusal(send(QVariant::fromValue(Records{odd}), {}, QString(200, u'x'))).contains(QStringLiteral("id")));
    EXPECT_EQ(refusal(send(
                  QVariant::fromValue(Records(10'000, QVariantMap{{QStringLiteral("title"), QStringLiteral("t")}})))),
              QString());
    const auto counts = [&] {
        auto call = QDBusMessage::createMethodCall(
            QStringLiteral("com.zorvex.flickr.xpc"), QStringLiteral("/com/zorvex/korvane/Uploads"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        call << QStringLiteral("com.zorvex.korvane.Uploads") << QStringLiteral("Counts");
        const auto variant = connection().call(call).arguments().value(0).value<QDBusVariant>().variant();
        return qdbus_cast<QVariantMap>(variant).value(QStringLiteral("queued")).toLongLong();
    };
    EXPECT_EQ(counts(), 10'002);
    EXPECT_EQ(servicePid(), pid);
}

TEST_F(HostileMessages, DescriptorsThatCannotBeTrustedAreRefused) {
    startService();
    const QByteArray folder = QFile::encodeName(home.path(QStringLiteral("state/korvane/spool")));
    const QByteArray bytes = jpegOfSize(100'000);
    const FileDescriptor writable(::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    ASSERT_EQ(::write(writable.get(), bytes.constData(), bytes.size()), bytes.size());
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(writable.get());
    const FileDescriptor readable(::open(link.constData(), O_RDONLY | O_CLOEXEC));
    const FileDescriptor directory(::open(folder.constData(), O_RDONLY | O_CLOEXEC));
    const FileDescriptor named(::open(home.file(QStringLiteral("named"), bytes).constData(), O_RDONLY | O_CLOEXEC));
    const FileDescriptor device(::open("/dev/zero", O_RDONLY | O_CLOEXEC));
    const auto whole = QVariant::fromValue(inFile(0, quint64(bytes.size())));

    EXPECT_TRUE(refusal(send(whole, {directory.get()})).contains(QStringLiteral("regular")));
    EXPECT_TRUE(refusal(send(whole, {device.get()})).contains(QStringLiteral("regular")));
    EXPECT_TRUE(refusal(send(whole, {named.get()})).contains(QStringLiteral("name")));
    EXPECT_TRUE(refusal(send(whole, {readable.get()})).contains(QStringLiteral("writing")))
        << "a writer is still there";
    EXPECT_TRUE(refusal(send(whole)).contains(QStringLiteral("outside"))) << "no file came along";
}

TEST_F(HostileMessages, RangesOutsideOfTheFileAreRefusedAndAProperOneIsTaken) {
    startService();
    const QByteArray folder = QFile::encodeName(home.path(QStringLiteral("state/korvane/spool")));
    const QByteArray bytes = jpegOfSize(100'000);
    FileDescriptor writable(::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    ASSERT_EQ(::write(writable.get(), bytes.constData(), bytes.size()), bytes.size());
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(writable.get());
    const FileDescriptor readable(::open(link.constData(), O_RDONLY | O_CLOEXEC));
    writable.reset();
    for (const auto &[offset, length] :
         {std::pair<quint64, quint64>{1, 100'000}, {0, 100'001}, {200'000, 0}, {~0ULL, 2}, {2, ~0ULL}})
        EXPECT_TRUE(refusal(send(QVariant::fromValue(inFile(offset, length)), {readable.get()}))
                        .contains(QStringLiteral("outside")))
            << offset << " " << length;
    EXPECT_TRUE(refusal(send(QVariant::fromValue(inFile(0, 10)), {readable.get(), readable.get()}))
                    .contains(QStringLiteral("More than one")));
    EXPECT_EQ(refusal(send(QVariant::fromValue(inFile(0, 100'000)), {readable.get()})), QString());
    ASSERT_TRUE(waitForState(QStringLiteral("done"), 1));
    EXPECT_EQ(flickr.server.photos()[0].bytes, 100'000);
}
