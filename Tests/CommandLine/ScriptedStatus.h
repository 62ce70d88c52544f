// A status interface whose uploads a test sets, answering on a thread of its own.
#pragma once

#include "Korvane/FlickrRemoteSessionProtocol.h"
#include "Platform/Social/ServiceSettings.h"
#include "Platform/Social/UploadsInterface.h"
#include "Platform/Social/WireRecord.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QThread>

#include <atomic>
#include <map>
#include <mutex>

namespace korvane {

class ScriptedStatus : public QDBusVirtualObject {
public:
    // A first life of the service on that bus.
    explicit ScriptedStatus(const QDBusConnection &bus) : _bus(bus) {
        WireRecord::registerTypes();
        moveToThread(&_thread);
        _thread.start();
        _bus.registerVirtualObject(UploadsInterface::path(), this);
        begin();
    }
    ~ScriptedStatus() override {
        _bus.unregisterObject(UploadsInterface::path());
        _thread.quit();
        _thread.wait();
    }

    bool begin() { return _bus.registerService(FlickrRemoteServiceName); }
    bool end() { return _bus.unregisterService(FlickrRemoteServiceName); }

    void set(qint64 id, const QString &state) {
        const std::lock_guard lock(_mutex);
        _states[id] = state;
    }
    void forget(qint64 id) {
        const std::lock_guard lock(_mutex);
        _states.erase(id);
    }
    void setAndTell(qint64 id, const QString &state) {
        set(id, state);
        _tell("Changed", _dictionary(id, state));
    }
    void forgetAndTell(qint64 id) {
        forget(id);
        _tell("Removed", QString::number(id));
    }
    int pages() const { return _pages; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override {
        const std::lock_guard lock(_mutex);
        QVariant answer;
        if (message.member() == QLatin1String("List"))
            answer = _page(message.arguments().value(0).toLongLong(), message.arguments().value(1).toUInt());
        else if (message.member() == QLatin1String("GetAll"))
            answer = ServiceSettings::current().dictionary();
        else if (message.interface() == UploadsInterface::name())
            answer = _get(message.arguments().value(0).toStringList());
        else
            answer = QVariant::fromValue(QDBusVariant(_property(message.arguments().value(1).toString())));
        return connection.send(message.createReply(answer));
    }
    QString introspect(const QString &) const override { return {}; }

private:
    static QVariantMap _dictionary(qint64 id, const QString &state) {
        return {{QStringLiteral("id"), QString::number(id)}, {QStringLiteral("state"), state}};
    }
    QVariant _page(qint64 after, quint32 limit) {
        ++_pages;
        QList<QVariantMap> page;
        for (auto it = _states.upper_bound(after); it != _states.end() && page.size() < limit; ++it)
            page.append(_dictionary(it->first, it->second));
        return QVariant::fromValue(page);
    }
    QVariant _get(const QStringList &ids) {
        QList<QVariantMap> found;
        for (const QString &id : ids)
            if (const auto it = _states.find(id.toLongLong()); it != _states.end())
                found.append(_dictionary(it->first, it->second));
        return QVariant::fromValue(found);
    }
    QVariant _property(const QString &name) {
        if (name == QLatin1String("Paused")) return false;
        QVariantMap counts;
        for (const auto &[id, state] : _states)
            counts[state] = counts[state].toLongLong() + 1;
        return counts;
    }
    void _tell(const char *member, const QVariant &argument) {
        _bus.send(QDBusMessage::createSignal(UploadsInterface::path(), UploadsInterface::name(), QLatin1String(member))
                  << argument);
    }

    QDBusConnection _bus;
    QThread _thread;
    std::mutex _mutex;
    std::map<qint64, QString> _states;
    std::atomic<int> _pages = 0;
};

} // namespace korvane
