// Following uploads of a real service.
#include "CommandLine/UploadsWatch.h"
#include "FrontEnd/ExitStatus.h"
#include "Service/UploadStore.h"
#include "Tests/EndToEnd/ServiceHarness.h"

#include <QTimer>

using namespace korvane;
using namespace korvane::test;

namespace {

using Heard = std::function<void(const QString &line)>;

// Gathers what it is told, and lets the test go on when it has heard a line.
class RecordingView : public ProgressView {
public:
    RecordingView(QStringList &lines, Heard heard) : _lines(lines), _heard(std::move(heard)) {}
    void stateChanged(const Upload &upload, const QString &label) override { _add(label + u' ' + upload.state); }
    void removed(const QString &, const QString &label) override { _add(label + QStringLiteral(" removed")); }
    void note(const QString &) override { _add(QStringLiteral("paused")); }

private:
    void _add(const QString &line) {
        _lines.append(line);
        _heard(line);
    }
    QStringList &_lines;
    Heard _heard;
};

class UploadsOnTheBus : public ServiceTest {
protected:
    UploadsOnTheBus() {
        home.file("config/korvane/preferences/com.zorvex.korvane.json", R"({"FlickrParallelUploads": 1})");
        ask("Pause");
    }

    // Takes four uploads over: 1, of somebody else, and "c", which has the last bytes, are empty if these are; 2 to 4,
    // "a" to "c", are followed. heard: hears "paused" first.
    int watch(const QByteArray &lastBytes, const Heard &heard, std::optional<NSError> *error = nullptr) {
        EXPECT_TRUE(share({post({}), post(jpegOfSize(100, 1)), post(jpegOfSize(100, 2)), post(lastBytes)}));
        UploadsWatch watch(client, std::make_unique<RecordingView>(lines, heard));
        watch.follow({QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")},
                     {{QStringLiteral("2"), QStringLiteral("a")},
                      {QStringLiteral("3"), QStringLiteral("b")},
                      {QStringLiteral("4"), QStringLiteral("c")}});
        QTimer::singleShot(20'000, &watch, [] { std::raise(SIGTERM); }); // a watch that does not end fails with 143
        return watch.run(error);
    }

    UploadsClient client;
    QStringList lines;
};

} // namespace

TEST_F(UploadsOnTheBus, AllAreVisitedOnceInPages) {
    const QList<QVariantMap> records(2500, {{QStringLiteral("title"), QStringLiteral("t")}});
    handOver(QStringLiteral("many"), QVariant::fromValue(records));
    qint64 last = 0;
    int visited = 0;
    EXPECT_TRUE(client.forEach(
        [&](const Upload &upload) {
            EXPECT_GT(upload.id.toLongLong(), std::exchange(last, upload.id.toLongLong()));
            ++visited;
        },
        nullptr));
    EXPECT_EQ(visited, 2500);
    QStringList ids;
    for (int id = 1001; id <= 4000; ++id)
        ids.append(QString::number(id));
    EXPECT_EQ(client.get(ids, nullptr)->size(), 1500u);
}

TEST_F(UploadsOnTheBus, AWatchEndsWhenEachIsDoneFailedOrRemoved) {
    flickr.server.on("upload").thenOk().hang();
    const Upload late = Upload::fromDictionary(
        {{QStringLiteral("id"), QStringLiteral("2")}, {QStringLiteral("state"), QStringLiteral("running")}});
    const int status = watch({}, [&](const QString &line) {
        if (line == QLatin1String("paused")) ask("Resume");
        if (line == QLatin1String("a done")) Q_EMIT client.changed(late); // what is done stays done
        if (line == QLatin1String("b running")) ask("Remove", {QStringList{QStringLiteral("3")}});
    });
    EXPECT_EQ(status, ExitUploadFailed);
    lines.sort();
    EXPECT_EQ(lines.join(u','), QStringLiteral("a done,a running,b removed,b running,c failed,c running,paused"));
}

TEST_F(UploadsOnTheBus, ARestartOfTheServiceIsOutlivedAndMissedChangesAreCaughtUpWith) {
    flickr.server.delay(std::chrono::milliseconds(100)); // "c" is not reached before the service ends
    const int status = watch(jpegOfSize(100, 3), [this](const QString &line) {
        if (line == QLatin1String("paused")) ask("Resume");
        if (lines.count(line) > 1 || line != QLatin1String("a running")) return;
        const qint64 pid = servicePid();
        ::kill(pid_t(pid), SIGKILL);
        while (servicePid() == pid) // no event loop: the watch must not hear of it yet
            QThread::yieldCurrentThread();
        UploadStore store;
        EXPECT_TRUE(store.open(home.path("state/korvane/queue.sqlite"), nullptr));
        store.remove({*store.job(4)});
    });
    EXPECT_EQ(status, ExitUploadFailed) << "nobody can tell that \"c\" was uploaded";
    for (const auto *line : {"a done", "b done", "c removed"})
        EXPECT_EQ(lines.count(QLatin1String(line)), 1) << line;
}

TEST_F(UploadsOnTheBus, TheEndOfTheBusIsAClearError) {
    std::optional<NSError> error;
    EXPECT_EQ(watch(
                  jpegOfSize(100), [this](const QString &) { bus.reset(); }, &error),
              ExitUnreachable);
    EXPECT_TRUE(says(error, "bus"));
}

TEST_F(UploadsOnTheBus, ASignalEndsTheWaitAndNothingElse) {
#ifdef __SANITIZE_THREAD__
    GTEST_SKIP() << "the thread sanitizer holds signals back while Qt's event loop waits";
#endif
    const int status =
        watch(jpegOfSize(100), [](const QString &) { QTimer::singleShot(50, [] { std::raise(SIGINT); }); });
    EXPECT_EQ(status, 128 + SIGINT);
    EXPECT_EQ(countInState("queued"), 4);
}
