#include "StandIn/ProtocolErrors.h"

namespace standin {

bool ProtocolErrors::open(const QString &folder, QString *error) {
    const std::lock_guard lock(_mutex);
    QList<QJsonObject> events;
    if (!_journal.open(folder + QStringLiteral("/protocol-errors.jsonl"), &events, error)) return false;
    for (const QJsonObject &event : std::as_const(events))
        _errors.append(event.value(QStringLiteral("error")).toString());
    return true;
}

void ProtocolErrors::add(const QByteArray &request, const QByteArray &problem) {
    const std::lock_guard lock(_mutex);
    _errors.append(QString::fromUtf8(request + ": " + problem));
    _journal.append({{QStringLiteral("error"), _errors.last()}});
}

QStringList ProtocolErrors::all() const {
    const std::lock_guard lock(_mutex);
    return _errors;
}

} // namespace standin
