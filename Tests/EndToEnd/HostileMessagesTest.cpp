// Messages that no client of ours would send, straight over the bus.
#include "Platform/Social/WireRecord.h"
#include "Tests/EndToEnd/ServiceHarness.h"

#include <fcntl.h>
#include <unistd.h>

using namespace korvane;
using namespace korvane::test;

namespace {

using Records = QList<QVariantMap>;

class HostileMessages : public ServiceTest {
public:
    void SetUp() override {
        startService();
        const QByteArray folder = QFile::encodeName(home.path("state/korvane/spool"));
        writable = FileDescriptor(::open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
        ASSERT_EQ(::write(writable.get(), bytes.constData(), size_t(bytes.size())), bytes.size());
        readable = openToRead("/proc/self/fd/" + QByteArray::number(writable.get()));
    }

    static FileDescriptor openToRead(const QByteArray &path) {
        return FileDescriptor(::open(path.constData(), O_RDONLY | O_CLOEXEC));
    }
    // The words of the refusal; empty if the message was taken.
    QString refusal(const QVariant &records, const QList<int> &files = {}) {
        const auto reply = handOver(QString::number(++messages) + idTail, records, files);
        if (reply.type() == QDBusMessage::ErrorMessage) return reply.errorMessage();
        if (reply.arguments().value(0).toBool()) return {};
        return qdbus_cast<QVariantMap>(reply.arguments().value(1)).value(QStringLiteral("description")).toString();
    }
    QString refusal(const Records &records, const QList<int> &files = {}) {
        return refusal(QVariant::fromValue(records), files);
    }
    static Records inFile(quint64 offset, quint64 length) {
        return {{{QStringLiteral("photoData"), QVariant::fromValue(DataRange{offset, length})}}};
    }

    int messages = 0;
    QString idTail; // what the messages' ids end with
    const QByteArray bytes = jpegOfSize(100'000);
    FileDescriptor writable; // an unnamed file with the bytes, and
    FileDescriptor readable; // the same file
};

} // namespace

TEST_F(HostileMessages, RecordsOfAnyShapeAreTakenOrRefusedNeverFatal) {
    ask("Pause");
    const qint64 pid = servicePid();
    const QVariantMap odd{{QStringLiteral("title"), 3.5},
                          {QStringLiteral("photoData"), QStringLiteral("text")},
                          {QStringLiteral("tags"), QVariantMap{{QStringLiteral("a"), 1}}},
                          {QStringLiteral("photoSetID"), QStringLiteral("12x")},
                          {QStringLiteral("visibility"), true},
                          {QStringLiteral("assetURL"), QVariantList{1, 2}},
                          {QStringLiteral("unknown"), 1e308},
                          {QString(), QStringLiteral("no key")}};
    EXPECT_EQ(refusal(Records{odd, {}}), QString());
    EXPECT_TRUE(says(refusal(Records{}), "nothing to share"));
    EXPECT_TRUE(says(refusal(QVariant(QStringLiteral("no records"))), "records"));
    EXPECT_EQ(refusal(Records(10'000, {{QStringLiteral("title"), QStringLiteral("t")}})), QString());
    idTail = QString(200, u'x');
    EXPECT_TRUE(says(refusal(Records{odd}), "id"));
    EXPECT_EQ(countInState("queued"), 1000) << "the first page";
    EXPECT_EQ(qdbus_cast<QList<QVariantMap>>(ask("List", {qint64(10'000), quint32(1000)})).size(), 2);
    EXPECT_EQ(servicePid(), pid);
}

TEST_F(HostileMessages, DescriptorsThatCannotBeTrustedAreRefused) {
    const Records whole = inFile(0, quint64(bytes.size()));
    const auto directory = openToRead(QFile::encodeName(home.path()));
    const auto device = openToRead("/dev/zero");
    const auto named = openToRead(home.file("named", bytes));
    EXPECT_TRUE(says(refusal(whole, {directory.get()}), "regular"));
    EXPECT_TRUE(says(refusal(whole, {device.get()}), "regular"));
    EXPECT_TRUE(says(refusal(whole, {named.get()}), "name"));
    EXPECT_TRUE(says(refusal(whole, {readable.get()}), "writing")) << "a writer is still there";
    EXPECT_TRUE(says(refusal(whole), "outside")) << "no file came along";
}

TEST_F(HostileMessages, RangesOutsideOfTheFileAreRefusedAndAProperOneIsTaken) {
    writable.reset();
    for (const auto &[offset, length] :
         {std::pair<quint64, quint64>{1, 100'000}, {0, 100'001}, {200'000, 0}, {~0ULL, 2}, {2, ~0ULL}})
        EXPECT_TRUE(says(refusal(inFile(offset, length), {readable.get()}), "outside")) << offset << " " << length;
    EXPECT_TRUE(says(refusal(inFile(0, 10), {readable.get(), readable.get()}), "More than one"));
    EXPECT_EQ(refusal(inFile(0, 100'000), {readable.get()}), QString());
    ASSERT_TRUE(waitForState("done", 1));
    EXPECT_EQ(flickr.server.photos()[0].bytes, 100'000);
}
