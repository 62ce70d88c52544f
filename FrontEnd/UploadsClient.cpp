// The upload service's status interface, seen from a program that watches or steers uploads.
#include "FrontEnd/UploadsClient.h"

#include "Korvane/FlickrRemoteSessionProtocol.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSURL.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Platform/Social/UploadsInterface.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

#include <algorithm>

namespace korvane {
namespace {

constexpr quint32 pageSize = 1000;
constexpr qsizetype idsInOneCall = 500;

const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

std::vector<Upload> uploadsOf(const QVariant &value) {
    std::vector<Upload> uploads;
    for (const QVariantMap &dictionary : qdbus_cast<QList<QVariantMap>>(value))
        uploads.push_back(Upload::fromDictionary(dictionary));
    return uploads;
}

} // namespace

UploadsClient::UploadsClient() : _connection(FlickrRemoteServiceName) {}

bool UploadsClient::connectToBus(std::optional<NSError> *error) {
    return _connection.open(error) == ServiceConnection::Answered;
}

std::optional<QVariant> UploadsClient::_call(const QString &interface, const QString &member,
                                             const QVariantList &arguments, std::optional<NSError> *error) {
    if (!_connection.isOpen() && !connectToBus(error)) return std::nullopt;
    QVariantList answer;
    const auto outcome = _connection.call(UploadsInterface::path(), interface, member, arguments, &answer, error);
    return outcome == ServiceConnection::Answered ? std::optional(answer.value(0)) : std::nullopt;
}

std::optional<QVariant> UploadsClient::_uploads(const QString &member, const QVariantList &arguments,
                                                std::optional<NSError> *error) {
    return _call(UploadsInterface::name(), member, arguments, error);
}

std::optional<QVariant> UploadsClient::_property(const QString &name, std::optional<NSError> *error) {
    const auto value = _call(propertiesInterface, QStringLiteral("Get"), {UploadsInterface::name(), name}, error);
    if (!value) return std::nullopt;
    return qvariant_cast<QDBusVariant>(*value).variant();
}

std::optional<std::vector<Upload>> UploadsClient::list(qint64 after, std::optional<NSError> *error) {
    const auto page = _uploads(QStringLiteral("List"), {after, pageSize}, error);
    if (!page) return std::nullopt;
    return uploadsOf(*page);
}

std::optional<std::vector<Upload>> UploadsClient::recent(qint64 before, quint32 limit, const QStringList &states,
                                                         std::optional<NSError> *error) {
    const auto page = _uploads(QStringLiteral("Recent"), {before, limit, states}, error);
    if (!page) return std::nullopt;
    return uploadsOf(*page);
}

bool UploadsClient::forEach(const std::function<void(const Upload &)> &visit, std::optional<NSError> *error) {
    for (qint64 after = 0;;) {
        const auto page = list(after, error);
        if (!page) return false;
        std::for_each(page->begin(), page->end(), visit);
        const qint64 last = page->empty() ? after : page->back().id.toLongLong();
        if (last <= after) return true;
        after = last;
    }
}

std::optional<std::vector<Upload>> UploadsClient::get(const QStringList &ids, std::optional<NSError> *error) {
    std::vector<Upload> all;
    for (qsizetype start = 0; start < ids.size(); start += idsInOneCall) {
        const auto part = _uploads(QStringLiteral("Get"), {ids.mid(start, idsInOneCall)}, error);
        if (!part) return std::nullopt;
        std::ranges::copy(uploadsOf(*part), std::back_inserter(all));
    }
    std::ranges::sort(all, {}, [](const Upload &upload) { return upload.id.toLongLong(); });
    return all;
}

std::optional<std::vector<UploadSource>> UploadsClient::sources(const QStringList &ids, std::optional<NSError> *error) {
    const auto found = _uploads(QStringLiteral("Sources"), {ids}, error);
    if (!found) return std::nullopt;
    std::vector<UploadSource> sources;
    for (const QVariantMap &source : qdbus_cast<QList<QVariantMap>>(*found))
        if (const auto url = NSURL::URLWithString(source.value(QStringLiteral("url")).toString()))
            sources.push_back({source.value(QStringLiteral("id")).toString(), url->fileSystemRepresentation(),
                               source.value(QStringLiteral("offset")).toLongLong(),
                               source.value(QStringLiteral("length")).toLongLong()});
    return sources;
}

std::optional<QStringList> UploadsClient::idsOfMessage(const QString &messageID, std::optional<NSError> *error) {
    const auto ids = _uploads(QStringLiteral("OfMessage"), {messageID}, error);
    if (!ids) return std::nullopt;
    return ids->toStringList();
}

std::optional<quint32> UploadsClient::_count(const QString &member, const QStringList &ids,
                                             std::optional<NSError> *error) {
    quint32 count = 0;
    for (qsizetype start = 0; start < ids.size(); start += idsInOneCall) {
        const auto part = _uploads(member, {ids.mid(start, idsInOneCall)}, error);
        if (!part) return std::nullopt;
        count += part->toUInt();
    }
    return count;
}

std::optional<quint32> UploadsClient::retry(const QStringList &ids, std::optional<NSError> *error) {
    return _count(QStringLiteral("Retry"), ids, error);
}

std::optional<quint32> UploadsClient::remove(const QStringList &ids, std::optional<NSError> *error) {
    return _count(QStringLiteral("Remove"), ids, error);
}

std::optional<quint32> UploadsClient::clear(std::optional<NSError> *error) {
    const auto count = _uploads(QStringLiteral("Clear"), {}, error);
    if (!count) return std::nullopt;
    return count->toUInt();
}

bool UploadsClient::setPaused(bool paused, std::optional<NSError> *error) {
    return _uploads(paused ? QStringLiteral("Pause") : QStringLiteral("Resume"), {}, error).has_value();
}

std::optional<bool> UploadsClient::isPaused(std::optional<NSError> *error) {
    const auto paused = _property(QStringLiteral("Paused"), error);
    if (!paused) return std::nullopt;
    return paused->toBool();
}

std::optional<UploadCounts> UploadsClient::counts(std::optional<NSError> *error) {
    const auto value = _property(QStringLiteral("Counts"), error);
    if (!value) return std::nullopt;
    UploadCounts counts;
    const auto dictionary = qdbus_cast<QVariantMap>(*value);
    for (auto it = dictionary.cbegin(); it != dictionary.cend(); ++it)
        counts.add(it.key(), it->toLongLong());
    return counts;
}

bool UploadsClient::subscribe(std::optional<NSError> *error) {
    if (!_connection.isOpen() && !connectToBus(error)) return false;
    QDBusConnection bus = _connection.bus();
    const auto hear = [&](const char *member, const char *signature, const char *slot) {
        return bus.connect(FlickrRemoteServiceName, UploadsInterface::path(), UploadsInterface::name(),
                           QLatin1String(member), QLatin1String(signature), this, slot);
    };
    const bool heard = hear("Changed", "a{sv}", SLOT(_changed(QVariantMap))) &&
                       hear("Removed", "s", SIGNAL(removed(QString))) &&
                       hear("Progress", "sxxx", SLOT(_progressed(QString, qlonglong, qlonglong, qlonglong))) &&
                       bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                                   QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                                   SIGNAL(busLost()));
    if (_watcher) _watcher->deleteLater();
    _watcher = new QDBusServiceWatcher(FlickrRemoteServiceName, bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &UploadsClient::_ownerChanged);
    if (!heard)
        setError(error, NSError::errorWithDescription(
                            RemoteServiceErrorDomain, RemoteServiceErrorUnreachable,
                            localizedText("The upload service cannot be watched: %1", bus.lastError().message())));
    return heard;
}

void UploadsClient::_changed(const QVariantMap &upload) {
    Q_EMIT changed(Upload::fromDictionary(upload));
}

void UploadsClient::_progressed(const QString &id, qlonglong bytesSent, qlonglong, qlonglong bytesTotal) {
    Q_EMIT progressed(id, bytesSent, bytesTotal);
}

void UploadsClient::_ownerChanged(const QString &, const QString &, const QString &newOwner) {
    if (newOwner.isEmpty())
        Q_EMIT serviceEnded();
    else
        Q_EMIT serviceStarted();
}

} // namespace korvane
