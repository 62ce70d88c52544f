// The whole way: a client, the upload service on a bus of its own, and the stand-in.
#pragma once

#include "Korvane/FlickrPost.h"
#include "Korvane/VimeoPost.h"
#include "Tests/Support/StandInAccount.h"
#include "Tests/Support/TestBus.h"
#include "Tests/Support/Testing.h"

#include <QDBusMessage>
#include <QVariantMap>

#include <csignal>

namespace korvane::test {

// Starts a message bus that can start the built service; everything ends with this object. Nothing is running at first
// but the bus and the stand-in.
class ServiceHarness {
public:
    explicit ServiceHarness(const standin::StandInOptions &options = {});
    virtual ~ServiceHarness();

    // Hands posts over as a front end does. Returns what the client returned.
    bool share(const std::vector<std::shared_ptr<FlickrPost>> &posts, std::optional<NSError> *error = nullptr);
    std::shared_ptr<FlickrPost> post(const QByteArray &bytes, qint64 album = 0) const;
    bool shareVideo(const std::shared_ptr<VimeoPost> &video, std::optional<NSError> *error = nullptr);
    // A video with title, description and tags, in a file of those bytes.
    std::shared_ptr<VimeoPost> video(QAnyStringView fileName, const QByteArray &bytes) const;
    // The message itself, records of any type and descriptors of any kind.
    static QDBusMessage handOverMessage(const QString &messageID, const QVariant &records,
                                        const QList<int> &files = {});
    QDBusMessage handOver(const QString &messageID, const QVariant &records, const QList<int> &files = {});

    // Calls of the status interface.
    QVariant ask(QAnyStringView method, const QVariantList &arguments = {});
    QList<QVariantMap> uploads();
    // Of the uploads, the first being 0. What people are told of its error; empty if there is none.
    QString valueOf(int upload, const char *key);
    QString errorOf(int upload);
    int countInState(QAnyStringView state);
    bool waitForState(QAnyStringView state, int count, int timeoutMilliseconds = 60'000);

    // In this process and in services that are started from now on.
    void setEnvironment(const QByteArray &name, const QByteArray &value);
    qint64 servicePid(); // 0 while none runs
    void startService();
    void killService(int signal);

    // The service's log so far.
    QString log() const { return QString::fromUtf8(home.contents("service.log")); }

    TemporaryHome home;
    StandInAccount flickr;
    std::optional<TestBus> bus;
    QString busAddress;
};

// A test on the whole way; shows the service's log where it fails.
class ServiceTest : public ::testing::Test, public ServiceHarness {
public:
    void TearDown() override {
        if (bus) killService(SIGTERM);
        EXPECT_FALSE(log().contains(QStringLiteral("Sanitizer")));
        if (HasFailure()) printf("service log:\n%s\n", qPrintable(log()));
    }
};

} // namespace korvane::test
