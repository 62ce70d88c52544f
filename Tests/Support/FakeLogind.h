// The part of logind that hands out inhibitor locks, on a bus that takes the place of this process's buses.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"
#include "Tests/Support/TestBus.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QStringList>

#include <poll.h>

#include <algorithm>
#include <array>
#include <vector>

namespace korvane::test {

// A lock is a pipe whose writing end the caller gets: it is held as long as that end is open anywhere.
class FakeLogind : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    FakeLogind() {
        const bool answers =
            bus().registerObject(QStringLiteral("/org/freedesktop/login1"), this, QDBusConnection::ExportAllSlots) &&
            bus().registerService(QStringLiteral("org.freedesktop.login1"));
        if (!answers) qFatal("there is no logind to ask");
    }
    ~FakeLogind() override { bus().unregisterObject(QStringLiteral("/org/freedesktop/login1")); }

    // QtDBus keeps its system and session bus for the life of the process: all tests share one daemon.
    static QDBusConnection bus() {
        static TestBus shared;
        if (shared.address().isEmpty() && shared.start()) {
            qputenv("DBUS_SYSTEM_BUS_ADDRESS", shared.address());
            qputenv("DBUS_SESSION_BUS_ADDRESS", shared.address());
        }
        return shared.connection();
    }

    // How many locks are held.
    int held() const {
        return int(std::count_if(locks.begin(), locks.end(), [](const FileDescriptor &lock) {
            pollfd end{lock.get(), 0, 0};
            return ::poll(&end, 1, 0) == 0;
        }));
    }
    void answerNow() {
        for (const QDBusMessage &message : waiting)
            bus().send(message.createReply(makeLock()));
        waiting.clear();
    }

    QStringList refusedModes;
    bool answersLate = false;
    QStringList calls; // "what mode reason" of each
    QList<QDBusMessage> waiting;
    std::vector<FileDescriptor> locks; // the reading ends

public Q_SLOTS:
    QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &, const QString &why, const QString &mode) {
        calls.append(what + u' ' + mode + u' ' + why);
        if (refusedModes.contains(mode)) {
            sendErrorReply(QDBusError::AccessDenied, QStringLiteral("Permission denied"));
            return {};
        }
        if (!answersLate) return makeLock().value<QDBusUnixFileDescriptor>();
        setDelayedReply(true);
        waiting.append(message());
        return {};
    }

private:
    QVariant makeLock() {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0) return {};
        locks.emplace_back(ends[0]);
        const FileDescriptor given(ends[1]);
        return QVariant::fromValue(QDBusUnixFileDescriptor(given.get()));
    }
};

} // namespace korvane::test
