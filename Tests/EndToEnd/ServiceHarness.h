// The whole way: a client, the upload service on a bus of its own, and the stand-in.
#pragma once

#include "Korvane/FlickrPost.h"
#include "Tests/Support/StandInAccount.h"
#include "Tests/Support/WaitFor.h"

#include <QDBusConnection>
#include <QProcess>
#include <QVariantMap>

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

    // Calls of the status interface.
    QVariant ask(const QString &method, const QVariantList &arguments = {});
    QList<QVariantMap> uploads();
    int countInState(const QString &state);
    bool waitForState(const QString &state, int count, int timeoutMilliseconds = 60'000);

    qint64 servicePid(); // 0 while none runs
    void startService();
    void killService(int signal);
    void stopBus();

    // The service's log so far.
    QString log() const;

    TemporaryHome home;
    StandInAccount flickr;
    QProcess bus;
    QString busAddress;

    QDBusConnection connection() const;
    void disconnect() const;
};

} // namespace korvane::test
