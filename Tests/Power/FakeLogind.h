// The part of logind that hands out inhibitor locks, on a private bus.
#pragma once

#include "Platform/Foundation/FileDescriptor.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QStringList>

#include <poll.h>

#include <array>
#include <memory>
#include <vector>

namespace korvane {

// A lock is a pipe whose writing end the caller gets: it is held as long as that end is open anywhere.
class FakeLogind : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    bool isHeld(size_t lock) const {
        pollfd end{locks[lock].get(), 0, 0};
        return ::poll(&end, 1, 0) == 0;
    }
    void answerNow() {
        QDBusConnection bus = waitingOn;
        for (const QDBusMessage &message : waiting)
            bus.send(message.createReply(makeLock()));
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
        waitingOn = connection();
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
    QDBusConnection waitingOn{QString()};
};

// Hears what launchers are told.
class LauncherEar : public QObject {
    Q_OBJECT

public:
    QString entry;
    QList<bool> heard;

public Q_SLOTS:
    void update(const QString &application, const QVariantMap &properties) {
        entry = application;
        heard.append(properties.value(QStringLiteral("progress-visible")).toBool());
    }
};

} // namespace korvane
