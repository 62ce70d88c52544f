// The part of the desktop's network service that says over what the machine is connected, on a private bus.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QThread>
#include <QVariantMap>

namespace korvane::test {

class FakeNetworkManager : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.NetworkManager")
    Q_PROPERTY(QDBusObjectPath PrimaryConnection MEMBER primaryConnection)
    Q_PROPERTY(quint32 Connectivity MEMBER connectivity)
    Q_PROPERTY(quint32 State MEMBER state)

public:
    QDBusObjectPath primaryConnection{QStringLiteral("/active/0")};
    quint32 connectivity = 4; // full
    quint32 state = 70;       // connected globally
};

class FakeActiveConnection : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.NetworkManager.Connection.Active")
    Q_PROPERTY(QList<QDBusObjectPath> Devices MEMBER devices)

public:
    QList<QDBusObjectPath> devices;
};

class FakeDevice : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.NetworkManager.Device")
    Q_PROPERTY(quint32 DeviceType MEMBER deviceType)

public:
    quint32 deviceType = 0;
};

// Two connections to choose the primary one from. The service is asked with blocking calls of the main thread, so it
// lives on another.
class FakeNetworkService {
public:
    static constexpr quint32 wifi = 2;
    static constexpr quint32 modem = 8;

    explicit FakeNetworkService(const QDBusConnection &bus, const quint32 (&types)[2]) : _bus(bus) {
        for (int i = 0; i < 2; ++i) {
            const QString device = QStringLiteral("/device/%1").arg(i);
            _connections[i].devices = {QDBusObjectPath(device)};
            _devices[i].deviceType = types[i];
            _show(QStringLiteral("/active/%1").arg(i), _connections[i]);
            _show(device, _devices[i]);
        }
        _show(path, _manager);
        _bus.registerService(QStringLiteral("org.freedesktop.NetworkManager"));
        _thread.start();
    }
    ~FakeNetworkService() {
        _thread.quit();
        _thread.wait();
    }

    void setPrimaryConnection(int index) {
        const QVariantMap changes{{QStringLiteral("PrimaryConnection"),
                                   QVariant::fromValue(QDBusObjectPath(QStringLiteral("/active/%1").arg(index)))}};
        QDBusMessage signal = QDBusMessage::createSignal(path, QStringLiteral("org.freedesktop.DBus.Properties"),
                                                         QStringLiteral("PropertiesChanged"));
        signal << QStringLiteral("org.freedesktop.NetworkManager") << changes << QStringList();
        _bus.send(signal);
    }

private:
    void _show(const QString &place, QObject &object) {
        _bus.registerObject(place, &object, QDBusConnection::ExportAllProperties);
        object.moveToThread(&_thread);
    }

    inline static const QString path = QStringLiteral("/org/freedesktop/NetworkManager");
    QDBusConnection _bus;
    QThread _thread;
    FakeNetworkManager _manager;
    FakeActiveConnection _connections[2];
    FakeDevice _devices[2];
};

} // namespace korvane::test
