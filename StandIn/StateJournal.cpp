#include "StandIn/StateJournal.h"

#include <QJsonDocument>

#include <sys/file.h>

namespace standin {

bool StateJournal::open(const QString &path, QList<QJsonObject> *events, QString *error) {
    _file.setFileName(path);
    if (!_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered)) {
        *error = path + QStringLiteral(": ") + _file.errorString();
        return false;
    }
    if (flock(_file.handle(), LOCK_EX | LOCK_NB) != 0) {
        *error = path + QStringLiteral(" is in use by another stand-in; choose another state folder");
        return false;
    }
    qint64 complete = 0;
    const QByteArray content = _file.readAll();
    for (qsizetype end = content.indexOf('\n'); end >= 0; end = content.indexOf('\n', complete)) {
        const auto event = QJsonDocument::fromJson(content.mid(complete, end - complete));
        if (event.isObject()) events->append(event.object());
        complete = end + 1;
    }
    return _file.resize(complete) && _file.seek(complete);
}

bool StateJournal::append(const QJsonObject &event) {
    const QByteArray line = QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n';
    const qint64 before = _file.pos();
    if (_file.write(line) == line.size()) return true;
    _file.resize(before);
    _file.seek(before);
    return false;
}

} // namespace standin
