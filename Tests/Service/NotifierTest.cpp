// Notifications, and what happens when somebody taps one.
#include "Service/Notifier.h"
#include "Service/UploadsWindow.h"
#include "Tests/Support/TestBus.h"
#include "Tests/Support/Testing.h"

#include <csignal>

using namespace korvane;
using namespace korvane::test;

namespace {

// The desktop's notification service.
class Desktop : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    struct Shown {
        QString summary;
        QString body;
        QStringList actions;
    };
    std::vector<Shown> shown;

    bool stand(QDBusConnection bus) {
        return bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), this,
                                  QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals) &&
               bus.registerService(QStringLiteral("org.freedesktop.Notifications"));
    }

public Q_SLOTS:
    uint Notify(const QString &, uint, const QString &, const QString &summary, const QString &body,
                const QStringList &actions, const QVariantMap &, int) {
        shown.push_back({summary, body, actions});
        return uint(shown.size() + 6);
    }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString &action);
};

UploadJob job(UploadState state, const char *title) {
    UploadJob made;
    made.service = flickrServiceID;
    made.state = state;
    made.title = QLatin1String(title);
    if (state == UploadState::Failed)
        made.error = NSError::errorWithDescription(QStringLiteral("test"), 1, QStringLiteral("no room"));
    return made;
}

} // namespace

TEST(Notifier, TellsOnceOfManyAndShowsTheUploadsWhenItIsTapped) {
    TestBus bus;
    ASSERT_TRUE(bus.start());
    Desktop desktop;
    ASSERT_TRUE(desktop.stand(bus.connection()));
    int opened = 0;
    Notifier notifier(bus.connection(), [&] { ++opened; });
    notifier.uploadFinished(job(UploadState::Done, "a"));
    notifier.uploadFinished(job(UploadState::Done, "b"));
    notifier.uploadFinished(job(UploadState::Failed, "c"));
    ASSERT_TRUE(waitFor([&] { return desktop.shown.size() == 2; }));
    EXPECT_EQ(desktop.shown[0].summary, QStringLiteral("2 photos shared to Flickr"));
    EXPECT_EQ(desktop.shown[1].body, QStringLiteral("no room"));
    EXPECT_TRUE(desktop.shown[0].actions.contains(QStringLiteral("Show uploads")));

    waitFor([] { return false; }, 100); // until the answers have come
    Q_EMIT desktop.ActionInvoked(3, QStringLiteral("default"));
    Q_EMIT desktop.ActionInvoked(8, QStringLiteral("show-uploads"));
    ASSERT_TRUE(waitFor([&] { return opened > 0; }));
    EXPECT_EQ(opened, 1) << "the other was another program's";

    Notifier without(bus.connection());
    without.uploadFinished(job(UploadState::Done, "d"));
    ASSERT_TRUE(waitFor([&] { return desktop.shown.size() == 3; }));
    EXPECT_TRUE(desktop.shown[2].actions.isEmpty()) << "there is no window to show";
}

TEST(UploadsWindow, OpensAsAFreshProgramAndInAUnitOfItsOwnWhereTheServiceIsOne) {
    TemporaryHome home;
    const auto script = [&](const char *name, const QByteArray &text) {
        const QByteArray path = home.file(name, "#!/bin/sh\n" + text + '\n');
        QFile::setPermissions(QFile::decodeName(path), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return QFile::decodeName(path);
    };
    const QString said = home.path(QStringLiteral("said"));
    const QString window = script("bin/korvane-sheet", "grep -E '^Sig(Blk|Ign)' /proc/self/status >$HOME/new; echo $* "
                                                       ">>$HOME/new; mv $HOME/new $HOME/said");
    home.setEnvironment("PATH", QFile::encodeName(home.path(QStringLiteral("bin:"))) + qgetenv("PATH"));
    const auto oldHandler = std::signal(SIGPIPE, SIG_IGN);
    sigset_t ours, before;
    sigemptyset(&ours);
    sigaddset(&ours, SIGTERM);
    ::pthread_sigmask(SIG_BLOCK, &ours, &before);
    const auto opened = [&](const QByteArray &unit) {
        home.setEnvironment("SYSTEMD_EXEC_PID", unit);
        UploadsWindow::open(window);
        EXPECT_TRUE(waitFor([&] { return QFile::exists(said); }));
        const QByteArray text = home.contents("said");
        QFile::remove(said);
        return text;
    };
    const QByteArray alone = "SigBlk:\t0000000000000000\nSigIgn:\t0000000000000000\n--uploads\n";
    const QByteArray unit = QByteArray::number(::getpid());
    script("bin/systemd-run", "exit 1");
    EXPECT_EQ(opened("1"), alone);
    EXPECT_EQ(opened(unit), alone) << "systemd is out of reach";
    script("bin/systemd-run", "echo $* >$HOME/new; mv $HOME/new $HOME/said");
    EXPECT_EQ(opened(unit), "--user --quiet --collect -- " + QFile::encodeName(window) + " --uploads\n");
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    std::signal(SIGPIPE, oldHandler);
}

#include "NotifierTest.moc"
