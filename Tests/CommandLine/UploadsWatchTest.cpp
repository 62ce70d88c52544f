// Following uploads over the bus.
#include "CommandLine/UploadsWatch.h"
#include "CommandLine/ExitStatus.h"
#include "Tests/CommandLine/ScriptedStatus.h"
#include "Tests/Support/TemporaryHome.h"
#include "Tests/Support/TestBus.h"

#include <QTimer>

#include <gtest/gtest.h>

#include <csignal>
#include <optional>

using namespace korvane;

namespace {

// Gathers what it is told, and lets the test go on when it has heard a line.
class RecordingView : public ProgressView {
public:
    explicit RecordingView(QStringList &lines, std::function<void(const QString &)> heard = {})
        : _lines(lines), _heard(std::move(heard)) {}
    void stateChanged(const Upload &upload, const QString &label) override { _add(label + u' ' + upload.state); }
    void removed(const QString &, const QString &label) override { _add(label + QStringLiteral(" removed")); }
    void note(const QString &text) override { _add(text); }

private:
    void _add(const QString &line) {
        _lines.append(line);
        if (_heard) _heard(line);
    }
    QStringList &_lines;
    std::function<void(const QString &)> _heard;
};

class UploadsOnTheBus : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(bus.emplace().start());
        home.setEnvironment("DBUS_SESSION_BUS_ADDRESS", bus->address());
        service.emplace(bus->connection());
    }
    void TearDown() override { service.reset(); }

    // Follows the uploads 1 to 3, "a" to "c".
    int watch(std::function<void(const QString &)> heard, std::optional<NSError> *error = nullptr) {
        UploadsWatch watch(client, std::make_unique<RecordingView>(lines, std::move(heard)));
        watch.follow({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")},
                     {{QStringLiteral("1"), QStringLiteral("a")},
                      {QStringLiteral("2"), QStringLiteral("b")},
                      {QStringLiteral("3"), QStringLiteral("c")}});
        QTimer::singleShot(20'000, &watch, [] { std::raise(SIGTERM); }); // a watch that does not end fails with 143
        return watch.run(error);
    }
    void setAll(const QString &state) {
        for (const qint64 id : {1, 2, 3})
            service->set(id, state);
    }

    const QString running = QStringLiteral("running");
    const QString done = QStringLiteral("done");
    test::TemporaryHome home;
    std::optional<TestBus> bus;
    std::optional<ScriptedStatus> service;
    UploadsClient client;
    QStringList lines;
};

} // namespace

TEST_F(UploadsOnTheBus, AllAreVisitedOnceInPages) {
    for (qint64 id = 1; id <= 2500; ++id)
        service->set(id * 3, done);
    qint64 last = 0;
    int visited = 0;
    EXPECT_TRUE(client.forEach(
        [&](const Upload &upload) {
            EXPECT_GT(upload.id.toLongLong(), last);
            last = upload.id.toLongLong();
            ++visited;
        },
        nullptr));
    EXPECT_EQ(visited, 2500);
    EXPECT_EQ(service->pages(), 4);
    QStringList ids;
    for (int id = 1; id <= 1500; ++id)
        ids.append(QString::number(id));
    EXPECT_EQ(client.get(ids, nullptr)->size(), 500u);
}

TEST_F(UploadsOnTheBus, AWatchEndsWhenEachIsDoneFailedOrRemoved) {
    setAll(running);
    const int status = watch([this](const QString &line) {
        if (line == QLatin1String("c running")) service->setAndTell(1, done);
        if (line == QLatin1String("a done")) service->setAndTell(9, QStringLiteral("failed")); // of somebody else
        if (line == QLatin1String("a done")) service->setAndTell(1, running); // what is done stays done
        if (line == QLatin1String("a done")) service->forgetAndTell(2);
        if (line == QLatin1String("b removed")) service->setAndTell(3, QStringLiteral("failed"));
    });
    EXPECT_EQ(status, ExitUploadFailed);
    EXPECT_EQ(lines.join(u','), QStringLiteral("a running,b running,c running,a done,b removed,c failed"));
}

TEST_F(UploadsOnTheBus, ARestartOfTheServiceIsOutlivedAndMissedChangesAreCaughtUpWith) {
    setAll(running);
    const int status = watch([this](const QString &line) {
        if (line != QLatin1String("c running")) return;
        service->end();
        service->set(1, done);
        service->forget(2);
        service->set(3, done);
        service->begin();
    });
    EXPECT_EQ(status, ExitUploadFailed); // b was not uploaded as far as anybody can tell
    EXPECT_EQ(lines.mid(3).join(u','), QStringLiteral("a done,c done,b removed"));
}

TEST_F(UploadsOnTheBus, TheEndOfTheBusIsAClearError) {
    setAll(running);
    std::optional<NSError> error;
    const int status = watch(
        [this](const QString &line) {
            if (line != QLatin1String("c running")) return;
            service.reset();
            bus.reset();
        },
        &error);
    EXPECT_EQ(status, ExitUnreachable);
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->localizedDescription().contains(QStringLiteral("bus")))
        << error->localizedDescription().toStdString();
}

TEST_F(UploadsOnTheBus, ASignalEndsTheWaitAndNothingElse) {
#ifdef __SANITIZE_THREAD__
    GTEST_SKIP() << "the thread sanitizer holds signals back while Qt's event loop waits";
#endif
    setAll(running);
    const int status = watch([](const QString &line) {
        if (line == QLatin1String("c running")) QTimer::singleShot(50, [] { std::raise(SIGINT); });
    });
    EXPECT_EQ(status, 128 + SIGINT);
    EXPECT_EQ(lines.size(), 3);
}
