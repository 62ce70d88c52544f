// A D-Bus daemon for one test, on which anybody may do anything and nothing is started on demand.
#pragma once

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>

namespace korvane {

class TestBus {
public:
    ~TestBus() {
        if (!_name.isEmpty()) QDBusConnection::disconnectFromBus(_name);
        _daemon.terminate();
        _daemon.waitForFinished();
    }

    // False if the daemon did not come up. The name tells this bus's connections from those of others.
    bool start(const QString &name) {
        QFile config(_folder.filePath(QStringLiteral("bus.conf")));
        if (!config.open(QIODevice::WriteOnly)) return false;
        config.write("<busconfig><type>session</type><listen>unix:path=" + QFile::encodeName(_folder.path()) +
                     "/socket</listen><policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                     "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        config.close();
        _daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                                                      QStringLiteral("--config-file"), config.fileName()});
        if (!_daemon.waitForReadyRead()) return false;
        _address = _daemon.readLine().trimmed();
        _name = QStringLiteral("%1-%2").arg(name).arg(++connections());
        return connection().isConnected();
    }

    const QByteArray &address() const { return _address; }
    // A connection beside those of the code under test.
    QDBusConnection connection() const { return QDBusConnection::connectToBus(QString::fromLatin1(_address), _name); }

    bool waitForName(const QString &service) const {
        for (const QDeadlineTimer deadline(10000); !deadline.hasExpired(); QThread::msleep(10))
            if (connection().interface()->isServiceRegistered(service)) return true;
        return false;
    }

    QDBusMessage call(const QString &service, const QString &path, const QString &interface, const QString &method,
                      const QVariantList &arguments) const {
        QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
        message.setArguments(arguments);
        return connection().call(message);
    }

    // A socket that takes connections and never says a word. -1 on failure; the caller closes it.
    static int silentSocket(const QString &path) {
        const QByteArray name = QFile::encodeName(path);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        if (name.size() >= qsizetype(sizeof address.sun_path)) return -1;
        std::copy_n(name.constData(), name.size(), address.sun_path);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (::bind(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0 &&
            ::listen(socket, 5) == 0)
            return socket;
        ::close(socket);
        return -1;
    }

private:
    static int &connections() {
        static int count = 0;
        return count;
    }
    QTemporaryDir _folder;
    QProcess _daemon;
    QByteArray _address;
    QString _name;
};

} // namespace korvane
