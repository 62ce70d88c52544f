// The durable queue: uploads in an SQLite database.
#include "Service/UploadStore.h"

#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Service/UploadRow.h"
#include "Service/UploadSchema.h"

#include <QDateTime>
#include <QSqlError>
#include <QUuid>
#include <QVariant>

#include <algorithm>

namespace korvane {
namespace {

void bind(QSqlQuery &query, const QVariantList &values) {
    for (const QVariant &value : values)
        query.addBindValue(value);
}

// "?, ?, ?"
QString placeholders(qsizetype count) {
    return QStringList(count, QStringLiteral("?")).join(QStringLiteral(", "));
}

} // namespace

UploadStore::UploadStore() : _connectionName(QUuid::createUuid().toString()) {}

UploadStore::~UploadStore() {
    _statements.clear();
    _database.close();
    _database = QSqlDatabase();
    QSqlDatabase::removeDatabase(_connectionName);
}

bool UploadStore::open(const QString &path, std::optional<NSError> *error) {
    _database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), _connectionName);
    _database.setDatabaseName(path);
    const auto fail = [&](const QString &text) {
        setError(error, NSError::errorWithDescription(
                            NSCocoaErrorDomain, 256,
                            QStringLiteral("The upload queue %1 cannot be used: %2").arg(path, text)));
        return false;
    };
    if (!_database.open()) return fail(_database.lastError().text());
    if (!_exec(QStringLiteral("PRAGMA journal_mode=WAL")) || !_exec(QStringLiteral("PRAGMA synchronous=FULL")))
        return fail(_errorText);
    QSqlQuery version(QStringLiteral("PRAGMA user_version"), _database);
    const int found = version.next() ? version.value(0).toInt() : -1;
    version.finish();
    if (found == UploadSchema::version) {
        if (_isSound()) return true;
        return fail(QStringLiteral(
            "it is damaged. Move it away to begin a new queue; the data of its posts stands in the spool beside it"));
    }
    if (found != 0) return fail(QStringLiteral("it was written by another version of Korvane"));
    return _makeTables() || fail(_errorText);
}

bool UploadStore::_makeTables() {
    _database.transaction();
    return std::ranges::all_of(UploadSchema::statements(),
                               [this](const QString &statement) { return _exec(statement); }) &&
           _exec(QStringLiteral("PRAGMA user_version=%1").arg(UploadSchema::version)) && _database.commit();
}

bool UploadStore::_isSound() {
    QSqlQuery check(QStringLiteral("PRAGMA quick_check(1)"), _database);
    return check.next() && check.value(0).toString() == QLatin1String("ok");
}

bool UploadStore::take(const QString &messageID, const std::vector<NewUpload> &uploads, std::optional<NSError> *error) {
    _setDurable(true);
    bool taken = _database.transaction();
    Query message = _prepared(QStringLiteral("INSERT INTO messages (id, taken) VALUES (?, ?)"),
                              {messageID, QDateTime::currentMSecsSinceEpoch()});
    taken = taken && _run(*message);
    const QStringList columns = UploadRow::columns + QStringList{QStringLiteral("message"), QStringLiteral("record")};
    Query query = _prepared(QStringLiteral("INSERT INTO uploads (%1) VALUES (%2)")
                                .arg(columns.join(QStringLiteral(", ")), placeholders(columns.size())));
    for (const NewUpload &upload : uploads) {
        if (!taken) break;
        bind(*query, UploadRow::valuesOfJob(upload.job) + QVariantList{messageID, upload.record});
        taken = _run(*query);
    }
    if (taken && _database.commit()) return true;
    if (taken) _errorText = _database.lastError().text();
    _database.rollback();
    setError(error, _lastError());
    return false;
}

bool UploadStore::knowsMessage(const QString &messageID) {
    Query query = _prepared(QStringLiteral("SELECT 1 FROM messages WHERE id = ?"), {messageID});
    return _run(*query) && query->next();
}

QStringList UploadStore::idsOfMessage(const QString &messageID) {
    Query query = _prepared(QStringLiteral("SELECT id FROM uploads WHERE message = ? ORDER BY id"), {messageID});
    QStringList ids;
    if (_run(*query))
        while (query->next())
            ids.append(query->value(0).toString());
    return ids;
}

void UploadStore::forgetMessagesBefore(qint64 time) {
    Query query = _prepared(QStringLiteral("DELETE FROM messages WHERE taken < ?"), {time});
    _run(*query);
}

std::optional<UploadJob> UploadStore::job(qint64 id) {
    const auto found = _select(QStringLiteral("id = ?"), {id});
    return found.empty() ? std::nullopt : std::optional(found.front());
}

QByteArray UploadStore::record(qint64 id) {
    Query query = _prepared(QStringLiteral("SELECT record FROM uploads WHERE id = ?"), {id});
    return _run(*query) && query->next() ? query->value(0).toByteArray() : QByteArray();
}

std::vector<UploadJob> UploadStore::jobsAfter(qint64 id, int limit) {
    return _select(QStringLiteral("id > ? ORDER BY id LIMIT ?"), {id, limit});
}

std::vector<UploadJob> UploadStore::jobsBefore(qint64 id, int limit, const std::vector<UploadState> &states) {
    QVariantList values;
    for (const UploadState state : states)
        values.append(int(state));
    const QString condition =
        states.empty() ? QString() : QStringLiteral("state IN (%1) AND ").arg(placeholders(values.size()));
    return _select(condition + QStringLiteral("id < ? ORDER BY id DESC LIMIT ?"), values + QVariantList{id, limit});
}

std::map<UploadState, qint64> UploadStore::counts() {
    std::map<UploadState, qint64> counts;
    Query query = _prepared(QStringLiteral("SELECT state, uploads FROM counts"));
    if (!_run(*query)) return counts;
    while (query->next())
        counts[UploadState(query->value(0).toInt())] = query->value(1).toLongLong();
    return counts;
}

std::vector<UploadJob> UploadStore::queued(const QString &service, int limit) {
    return _select(QStringLiteral("state = ? AND service = ? ORDER BY id LIMIT ?"),
                   {int(UploadState::Queued), service, limit});
}

std::optional<UploadJob> UploadStore::suspect() {
    const auto found =
        _select(QStringLiteral("deaths > 0 AND state = ? ORDER BY id LIMIT 1"), {int(UploadState::Queued)});
    return found.empty() ? std::nullopt : std::optional(found.front());
}

std::vector<UploadJob> UploadStore::waiting(WaitReason reason) {
    return _select(QStringLiteral("state = ? AND wait_reason = ?"), {int(UploadState::Waiting), int(reason)});
}

std::vector<UploadJob> UploadStore::dueBefore(qint64 time) {
    return _select(QStringLiteral("state = ? AND next_try <= ?"), {int(UploadState::Waiting), time});
}

std::optional<qint64> UploadStore::nextDue() {
    Query query =
        _prepared(QStringLiteral("SELECT min(next_try) FROM uploads WHERE state = ?"), {int(UploadState::Waiting)});
    if (!_run(*query) || !query->next() || query->value(0).isNull()) return std::nullopt;
    return query->value(0).toLongLong();
}

bool UploadStore::update(const UploadJob &job, bool durable) {
    _setDurable(durable);
    Query query = _prepared(
        QStringLiteral("UPDATE uploads SET %1 = ? WHERE id = ?").arg(UploadRow::columns.join(QStringLiteral(" = ?, "))),
        UploadRow::valuesOfJob(job) + QVariantList{job.id});
    return _run(*query);
}

bool UploadStore::updateReached(const UploadJob &job, bool durable) {
    _setDurable(durable);
    Query query = _prepared(QStringLiteral("UPDATE uploads SET photo = ?, bytes = ?, failures = ?, failing_since = ?, "
                                           "export = ?, video = ? WHERE id = ?"),
                            {job.photoID, job.bytesTotal, job.failures, job.failingSince,
                             UploadRow::textOf(job.exportFile), UploadRow::bytesOf(job.video), job.id});
    return _run(*query);
}

// A durable write takes along what was written before it.
bool UploadStore::makeDurable() {
    _setDurable(true);
    Query query = _prepared(QStringLiteral("INSERT OR REPLACE INTO settings (name, value) VALUES ('durable', 1)"));
    const bool isDurable = _run(*query);
    _setDurable(false); // now, while nothing waits for it
    return isDurable;
}

bool UploadStore::remove(const std::vector<UploadJob> &jobs) {
    _setDurable(true);
    bool removed = _database.transaction();
    Query query = _prepared(QStringLiteral("DELETE FROM uploads WHERE id = ?"));
    for (const UploadJob &job : jobs) {
        query->addBindValue(job.id);
        removed = removed && _run(*query);
    }
    if (removed && _database.commit()) return true;
    _database.rollback();
    return false;
}

std::vector<UploadJob> UploadStore::done() {
    return _select(QStringLiteral("state = ? ORDER BY id"), {int(UploadState::Done)});
}

bool UploadStore::spoolFileIsNeeded(const QString &name) {
    Query query = _prepared(QStringLiteral("SELECT count(*) FROM uploads WHERE spool = ?"), {name});
    return !_run(*query) || !query->next() || query->value(0).toInt() > 0;
}

std::optional<QSet<QString>> UploadStore::spoolFiles() {
    QSet<QString> names;
    Query query = _prepared(QStringLiteral("SELECT spool FROM uploads UNION SELECT export FROM uploads"));
    if (!_run(*query)) return std::nullopt;
    while (query->next())
        names.insert(query->value(0).toString());
    return query->lastError().isValid() ? std::nullopt : std::optional(names);
}

std::vector<UploadJob> UploadStore::running() {
    return _select(QStringLiteral("state = ?"), {int(UploadState::Running)});
}

void UploadStore::drawWaitsIn(qint64 now, qint64 longestWait) {
    Query query = _prepared(
        QStringLiteral("UPDATE uploads SET next_try = min(next_try, ?), failing_since = min(failing_since, ?) "
                       "WHERE state = ?"),
        {now + longestWait, now, int(UploadState::Waiting)});
    _run(*query);
}

bool UploadStore::isPaused() {
    Query query = _prepared(QStringLiteral("SELECT value FROM settings WHERE name = 'paused'"));
    return _run(*query) && query->next() && query->value(0).toBool();
}

void UploadStore::setPaused(bool paused) {
    _setDurable(true);
    Query query =
        _prepared(QStringLiteral("INSERT OR REPLACE INTO settings (name, value) VALUES ('paused', ?)"), {int(paused)});
    _run(*query);
}

UploadStore::Query UploadStore::_prepared(const QString &statement, const QVariantList &values) {
    const auto [found, isNew] = _statements.try_emplace(statement, _database);
    if (isNew) {
        found->second.setForwardOnly(true);
        found->second.prepare(statement);
    }
    bind(found->second, values);
    return Query(&found->second);
}

bool UploadStore::_run(QSqlQuery &query) {
    if (query.exec()) return true;
    _errorText = query.lastError().text();
    NSLog("The upload queue's database refused a statement: %@", _errorText);
    return false;
}

bool UploadStore::_exec(const QString &statement) {
    QSqlQuery query(_database);
    if (query.exec(statement)) return true;
    _errorText = query.lastError().text();
    return false;
}

std::vector<UploadJob> UploadStore::_select(const QString &condition, const QVariantList &values) {
    Query query = _prepared(QStringLiteral("SELECT id, %1 FROM uploads WHERE %2")
                                .arg(UploadRow::columns.join(QStringLiteral(", ")), condition),
                            values);
    std::vector<UploadJob> jobs;
    if (_run(*query))
        while (query->next())
            jobs.push_back(UploadRow::jobOfRow(*query));
    return jobs;
}

void UploadStore::_setDurable(bool durable) {
    if (durable == _isDurable) return;
    _exec(durable ? QStringLiteral("PRAGMA synchronous=FULL") : QStringLiteral("PRAGMA synchronous=NORMAL"));
    _isDurable = durable;
}

NSError UploadStore::_lastError() const {
    return NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorNotAvailable,
                                         localizedText("The upload queue cannot be written: %1", _errorText));
}

} // namespace korvane
