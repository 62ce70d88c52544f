// A D-Bus daemon for one test, on which anybody may do anything.
#pragma once

#include <QDBusConnection>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace korvane::test {

class TestBus {
public:
    ~TestBus() {
        if (!_name.isEmpty()) QDBusConnection::disconnectFromBus(_name);
        _daemon.terminate();
        _daemon.waitForFinished();
    }

    // False if the daemon did not come up. services: a folder of services that it starts on demand, if any; they write
    // their errors into the log.
    bool start(const QByteArray &services = {}, const QString &log = {}) {
        QFile config(_folder.filePath(QStringLiteral("bus.conf")));
        if (!config.open(QIODevice::WriteOnly)) return false;
        config.write("<busconfig><type>session</type><listen>unix:path=" + QFile::encodeName(_folder.path()) +
                     "/socket</listen>" + (services.isEmpty() ? "" : "<servicedir>" + services + "</servicedir>") +
                     "<policy context=\"default\"><allow send_destination=\"*\" eavesdrop=\"true\"/>"
                     "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>");
        config.close();
        if (!log.isEmpty()) _daemon.setStandardErrorFile(log);
        _daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                                                      QStringLiteral("--config-file"), config.fileName()});
        if (!_daemon.waitForReadyRead()) return false;
        _address = _daemon.readLine().trimmed();
        _name = _folder.path(); // no other bus has it
        return connection().isConnected();
    }

    const QByteArray &address() const { return _address; }
    // A connection beside those of the code under test.
    QDBusConnection connection() const { return QDBusConnection::connectToBus(QString::fromLatin1(_address), _name); }

private:
    QTemporaryDir _folder;
    QProcess _daemon;
    QByteArray _address;
    QString _name;
};

} // namespace korvane::test
