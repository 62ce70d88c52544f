// The durable queue: uploads in an SQLite database.
#include "Service/UploadStore.h"

#include "Platform/Foundation/NSLog.h"
#include "Platform/Social/RemoteServiceError.h"
#include "Service/RecordCodec.h"

#include <QDateTime>
#include <QSqlError>
#include <QUuid>
#include <QVariant>

#include <algorithm>

namespace korvane {
namespace {

constexpr int schemaVersion = 2;

// "state" is an UploadState; the partial index keeps the look for suspects free of cost while there are none.
const char *const schema[] = {
    "CREATE TABLE uploads (id INTEGER PRIMARY KEY AUTOINCREMENT, service TEXT NOT NULL, state INTEGER NOT NULL, "
    "wait_reason INTEGER NOT NULL, title TEXT NOT NULL, account TEXT NOT NULL, account_name TEXT NOT NULL, "
    "spool TEXT NOT NULL, source TEXT NOT NULL, "
    "photo INTEGER NOT NULL, bytes INTEGER NOT NULL, attempts INTEGER NOT NULL, failures INTEGER NOT NULL, "
    "failing_since INTEGER NOT NULL, deaths INTEGER NOT NULL, created INTEGER NOT NULL, finished INTEGER NOT NULL, "
    "next_try INTEGER NOT NULL, error_domain TEXT, error_code INTEGER, error_text TEXT, message TEXT NOT NULL, "
    "record BLOB NOT NULL, export TEXT NOT NULL DEFAULT '', video BLOB)",
    "CREATE INDEX uploads_queued ON uploads (state, service, id)",
    "CREATE INDEX uploads_due ON uploads (state, next_try)",
    "CREATE INDEX uploads_message ON uploads (message)",
    "CREATE INDEX uploads_spool ON uploads (spool)",
    "CREATE INDEX uploads_suspect ON uploads (state, id) WHERE deaths > 0",
    // Kept by the database itself, since counting a long queue takes longer than taking a post over.
    "CREATE TABLE counts (state INTEGER PRIMARY KEY, uploads INTEGER NOT NULL)",
    "CREATE TRIGGER uploads_added AFTER INSERT ON uploads BEGIN "
    "INSERT INTO counts VALUES (new.state, 1) ON CONFLICT (state) DO UPDATE SET uploads = uploads + 1; END",
    "CREATE TRIGGER uploads_moved AFTER UPDATE OF state ON uploads WHEN old.state <> new.state BEGIN "
    "UPDATE counts SET uploads = uploads - 1 WHERE state = old.state; "
    "INSERT INTO counts VALUES (new.state, 1) ON CONFLICT (state) DO UPDATE SET uploads = uploads + 1; END",
    "CREATE TRIGGER uploads_removed AFTER DELETE ON uploads BEGIN "
    "UPDATE counts SET uploads = uploads - 1 WHERE state = old.state; END",
    "CREATE TABLE messages (id TEXT PRIMARY KEY, taken INTEGER NOT NULL)",
    "CREATE TABLE settings (name TEXT PRIMARY KEY, value INTEGER NOT NULL)",
};

// From the version before.
const char *const migration[] = {
    "ALTER TABLE uploads ADD COLUMN export TEXT NOT NULL DEFAULT ''",
    "ALTER TABLE uploads ADD COLUMN video BLOB",
};

const QString columns = QStringLiteral(
    "id, service, state, wait_reason, title, account, account_name, spool, source, photo, bytes, "
    "attempts, failures, failing_since, deaths, created, finished, next_try, export, video, error_domain, "
    "error_code, error_text");

QString identityText(const std::optional<FileIdentity> &identity) {
    if (!identity) return QStringLiteral("");
    return QStringLiteral("%1 %2 %3 %4")
        .arg(identity->device)
        .arg(identity->inode)
        .arg(identity->size)
        .arg(identity->modifiedNanoseconds);
}

std::optional<FileIdentity> identityOf(const QString &text) {
    const QStringList fields = text.split(u' ');
    if (fields.size() != 4) return std::nullopt;
    return FileIdentity{fields[0].toULongLong(), fields[1].toULongLong(), fields[2].toLongLong(),
                        fields[3].toLongLong()};
}

UploadJob jobOfRow(const QSqlQuery &row) {
    int column = 0;
    const auto number = [&] { return row.value(column++).toLongLong(); };
    const auto text = [&] { return row.value(column++).toString(); };
    UploadJob job;
    job.id = number();
    job.service = text();
    job.state = UploadState(number());
    job.waitReason = WaitReason(number());
    job.title = text();
    job.accountID = text();
    job.accountName = text();
    job.spoolFile = text();
    job.source = identityOf(text());
    job.photoID = number();
    job.bytesTotal = number();
    job.attempts = number();
    job.failures = number();
    job.failingSince = number();
    job.deaths = number();
    job.createdAt = number();
    job.finishedAt = number();
    job.nextTryAt = number();
    job.exportFile = text();
    if (const QVariant video = row.value(column++); !video.isNull())
        job.video = VimeoCheckpoint::withDictionary(RecordCodec::decode(video.toByteArray(), nullptr));
    if (!row.value(column).isNull())
        job.error = NSError::errorWithDescription(row.value(column).toString(), row.value(column + 1).toLongLong(),
                                                  row.value(column + 2).toString());
    return job;
}

// NOT NULL columns: a null QString would be bound as NULL.
QString bound(const QString &text) {
    return text.isNull() ? QStringLiteral("") : text;
}

// Binds everything from "service" to "error_text", in the order of the columns.
void bindJob(QSqlQuery &query, const UploadJob &job) {
    for (const QVariant &value :
         QVariantList{bound(job.service), int(job.state), int(job.waitReason), bound(job.title), bound(job.accountID),
                      bound(job.accountName), bound(job.spoolFile), identityText(job.source), job.photoID,
                      job.bytesTotal, job.attempts, job.failures, job.failingSince, job.deaths, job.createdAt,
                      job.finishedAt, job.nextTryAt, bound(job.exportFile)})
        query.addBindValue(value);
    query.addBindValue(job.video ? QVariant(RecordCodec::encode(job.video->dictionary(), nullptr)) : QVariant());
    query.addBindValue(job.error ? QVariant(job.error->domain()) : QVariant());
    query.addBindValue(job.error ? QVariant(job.error->code()) : QVariant());
    query.addBindValue(job.error ? QVariant(job.error->localizedDescription()) : QVariant());
}

} // namespace

UploadStore::UploadStore() : _connectionName(QUuid::createUuid().toString()) {}

UploadStore::~UploadStore() {
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
    if (found == schemaVersion) {
        if (_isSound()) return true;
        return fail(QStringLiteral(
            "it is damaged. Move it away to begin a new queue; the data of its posts stands in the spool beside it"));
    }
    if (found != 0 && found != schemaVersion - 1)
        return fail(QStringLiteral("it was written by another version of Korvane"));
    return _bringUpToDate(found) || fail(_errorText);
}

bool UploadStore::_bringUpToDate(int version) {
    _database.transaction();
    const auto run = [this](const char *statement) { return _exec(QLatin1String(statement)); };
    const bool done = version == 0 ? std::ranges::all_of(schema, run) : std::ranges::all_of(migration, run);
    return done && _exec(QStringLiteral("PRAGMA user_version=%1").arg(schemaVersion)) && _database.commit();
}

bool UploadStore::_isSound() {
    QSqlQuery check(QStringLiteral("PRAGMA quick_check(1)"), _database);
    return check.next() && check.value(0).toString() == QLatin1String("ok");
}

bool UploadStore::take(const QString &messageID, const std::vector<NewUpload> &uploads, std::optional<NSError> *error) {
    _setDurable(true);
    bool taken = _database.transaction();
    QSqlQuery message(_database);
    message.prepare(QStringLiteral("INSERT INTO messages (id, taken) VALUES (?, ?)"));
    message.addBindValue(messageID);
    message.addBindValue(QDateTime::currentMSecsSinceEpoch());
    taken = taken && _run(message);
    QSqlQuery query(_database);
    query.prepare(QStringLiteral(
        "INSERT INTO uploads (service, state, wait_reason, title, account, account_name, spool, source, photo, bytes, "
        "attempts, failures, failing_since, deaths, created, finished, next_try, export, video, error_domain, "
        "error_code, error_text, message, record) "
        "VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)"));
    for (const NewUpload &upload : uploads) {
        if (!taken) break;
        bindJob(query, upload.job);
        query.addBindValue(messageID);
        query.addBindValue(upload.record);
        taken = _run(query);
    }
    if (taken && _database.commit()) return true;
    if (taken) _errorText = _database.lastError().text();
    _database.rollback();
    setError(error, _lastError());
    return false;
}

bool UploadStore::knowsMessage(const QString &messageID) {
    QSqlQuery query(_database);
    query.prepare(QStringLiteral("SELECT 1 FROM messages WHERE id = ?"));
    query.addBindValue(messageID);
    return _run(query) && query.next();
}

QStringList UploadStore::idsOfMessage(const QString &messageID) {
    QSqlQuery query(_database);
    query.prepare(QStringLiteral("SELECT id FROM uploads WHERE message = ? ORDER BY id"));
    query.addBindValue(messageID);
    QStringList ids;
    if (_run(query))
        while (query.next())
            ids.append(query.value(0).toString());
    return ids;
}

void UploadStore::forgetMessagesBefore(qint64 time) {
    QSqlQuery query(_database);
    query.prepare(QStringLiteral("DELETE FROM messages WHERE taken < ?"));
    query.addBindValue(time);
    _run(query);
}

std::optional<UploadJob> UploadStore::job(qint64 id) {
    const auto found = _select(QStringLiteral("id = ?"), {id});
    return found.empty() ? std::nullopt : std::optional(found.front());
}

QByteArray UploadStore::record(qint64 id) {
    QSqlQuery query(_database);
    query.prepare(QStringLiteral("SELECT record FROM uploads WHERE id = ?"));
    query.addBindValue(id);
    return _run(query) && query.next() ? query.value(0).toByteArray() : QByteArray();
}

std::vector<UploadJob> UploadStore::jobsAfter(qint64 id, int limit) {
    return _select(QStringLiteral("id > ? ORDER BY id LIMIT ?"), {id, limit});
}

std::map<UploadState, qint64> UploadStore::counts() {
    std::map<UploadState, qint64> counts;
    QSqlQuery query(QStringLiteral("SELECT state, uploads FROM counts"), _database);
    while (query.next())
        counts[UploadState(query.value(0).toInt())] = query.value(1).toLongLong();
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
    QSqlQuery query(QStringLiteral("SELECT min(next_try) FROM uploads WHERE state = %1").arg(int(UploadState::Waiting)),
                    _database);
    if (!query.next() || query.value(0).isNull()) return std::nullopt;
    return query.value(0).toLongLong();
}

bool UploadStore::update(const UploadJob &job, bool durable) {
    _setDurable(durable);
    QSqlQuery query(_database);
    query.prepare(QStringLiteral("UPDATE uploads SET service = ?, state = ?, wait_reason = ?, title = ?, account = ?, "
                                 "account_name = ?, spool = ?, source = ?, photo = ?, "
                                 "bytes = ?, attempts = ?, failures = ?, failing_since = ?, deaths = ?, created = ?, "
                                 "finished = ?, next_try = ?, export = ?, video = ?, "
                                 "error_domain = ?, error_code = ?, error_text = ? WHERE id = ?"));
    bindJob(query, job);
    query.addBindValue(job.id);
    return _run(query);
}

// A durable write takes along what was written before it.
bool UploadStore::makeDurable() {
    _setDurable(true);
    return _exec(QStringLiteral("INSERT OR REPLACE INTO settings (name, value) VALUES ('durable', 1)"));
}

bool UploadStore::remove(const std::vector<UploadJob> &jobs) {
    _setDurable(true);
    bool removed = _database.transaction();
    QSqlQuery query(_database);
    query.prepare(QStringLiteral("DELETE FROM uploads WHERE id = ?"));
    for (const UploadJob &job : jobs) {
        query.addBindValue(job.id);
        removed = removed && _run(query);
    }
    if (removed && _database.commit()) return true;
    _database.rollback();
    return false;
}

std::vector<UploadJob> UploadStore::done() {
    return _select(QStringLiteral("state = ? ORDER BY id"), {int(UploadState::Done)});
}

bool UploadStore::spoolFileIsNeeded(const QString &name) {
    QSqlQuery query(_database);
    query.prepare(QStringLiteral("SELECT count(*) FROM uploads WHERE spool = ?"));
    query.addBindValue(name);
    return !_run(query) || !query.next() || query.value(0).toInt() > 0;
}

std::optional<QSet<QString>> UploadStore::spoolFiles() {
    QSet<QString> names;
    QSqlQuery query(_database);
    query.prepare(QStringLiteral("SELECT spool FROM uploads UNION SELECT export FROM uploads"));
    if (!_run(query)) return std::nullopt;
    while (query.next())
        names.insert(query.value(0).toString());
    return query.lastError().isValid() ? std::nullopt : std::optional(names);
}

std::vector<UploadJob> UploadStore::running() {
    return _select(QStringLiteral("state = ?"), {int(UploadState::Running)});
}

void UploadStore::drawWaitsIn(qint64 now, qint64 longestWait) {
    QSqlQuery query(_database);
    query.prepare(
        QStringLiteral("UPDATE uploads SET next_try = min(next_try, ?), failing_since = min(failing_since, ?) "
                       "WHERE state = ?"));
    for (const QVariant &value : QVariantList{now + longestWait, now, int(UploadState::Waiting)})
        query.addBindValue(value);
    _run(query);
}

bool UploadStore::isPaused() {
    QSqlQuery query(QStringLiteral("SELECT value FROM settings WHERE name = 'paused'"), _database);
    return query.next() && query.value(0).toBool();
}

void UploadStore::setPaused(bool paused) {
    _setDurable(true);
    _exec(QStringLiteral("INSERT OR REPLACE INTO settings (name, value) VALUES ('paused', %1)").arg(int(paused)));
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
    QSqlQuery query(_database);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT %1 FROM uploads WHERE %2").arg(columns, condition));
    for (const QVariant &value : values)
        query.addBindValue(value);
    std::vector<UploadJob> jobs;
    if (_run(query))
        while (query.next())
            jobs.push_back(jobOfRow(query));
    return jobs;
}

void UploadStore::_setDurable(bool durable) {
    if (durable == _isDurable) return;
    _exec(durable ? QStringLiteral("PRAGMA synchronous=FULL") : QStringLiteral("PRAGMA synchronous=NORMAL"));
    _isDurable = durable;
}

NSError UploadStore::_lastError() const {
    return NSError::errorWithDescription(RemoteServiceErrorDomain, RemoteServiceErrorNotAvailable,
                                         QStringLiteral("The upload queue cannot be written: %1").arg(_errorText));
}

} // namespace korvane
