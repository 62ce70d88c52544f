// The durable queue: uploads in an SQLite database.
#pragma once

#include "Service/UploadJob.h"

#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStringList>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace korvane {

struct NewUpload {
    UploadJob job;
    QByteArray record;
};

// Thread: the one that made it, alone.
class UploadStore {
public:
    UploadStore();
    ~UploadStore();

    // Opens or makes the database. False, with the error placed and nothing changed, if it is damaged or of another
    // version.
    bool open(const QString &path, std::optional<NSError> *error);

    // All uploads of a message, or none of them; on disk when it returns.
    bool take(const QString &messageID, const std::vector<NewUpload> &uploads, std::optional<NSError> *error);
    bool knowsMessage(const QString &messageID);
    QStringList idsOfMessage(const QString &messageID);
    // Forgets message ids older than the time; their uploads stay.
    void forgetMessagesBefore(qint64 time);

    std::optional<UploadJob> job(qint64 id);
    QByteArray record(qint64 id);
    std::vector<UploadJob> jobsAfter(qint64 id, int limit);
    // The newest first; of these states, or of all where none is given.
    std::vector<UploadJob> jobsBefore(qint64 id, int limit, const std::vector<UploadState> &states);
    std::map<UploadState, qint64> counts();

    // The next queued uploads of a service, oldest first.
    std::vector<UploadJob> queued(const QString &service, int limit);
    // A queued upload during which the service once ended fatally.
    std::optional<UploadJob> suspect();
    std::vector<UploadJob> waiting(WaitReason reason);
    std::vector<UploadJob> dueBefore(qint64 time);
    std::optional<qint64> nextDue();

    // Writes all of the job's fields but its record. durable: on disk when it returns, else only safe from a death of
    // the process.
    bool update(const UploadJob &job, bool durable);
    // Only what changes while it runs: the least that there is to write, for it is written often.
    bool updateReached(const UploadJob &job, bool durable);
    // All that was written before is on the disk when it returns.
    bool makeDurable();
    bool remove(const std::vector<UploadJob> &jobs); // all or none
    // The done ones, oldest first.
    std::vector<UploadJob> done();
    // True also where the database does not say.
    bool spoolFileIsNeeded(const QString &name);
    // Null where the database does not say.
    std::optional<QSet<QString>> spoolFiles();

    // What was running when the service's last life ended.
    std::vector<UploadJob> running();
    // Times that a wrong clock has put into the future are drawn in: nothing waits longer than longestWait.
    void drawWaitsIn(qint64 now, qint64 longestWait);

    bool isPaused();
    void setPaused(bool paused);

private:
    // Each statement is prepared once; it is free again for its next use when the pointer goes.
    struct Finish {
        void operator()(QSqlQuery *query) const { query->finish(); }
    };
    using Query = std::unique_ptr<QSqlQuery, Finish>;
    Query _prepared(const QString &statement, const QVariantList &values = {});
    bool _run(QSqlQuery &query);
    bool _exec(const QString &statement);
    std::vector<UploadJob> _select(const QString &condition, const QVariantList &values);
    void _setDurable(bool durable);
    bool _makeTables();
    bool _isSound();
    NSError _lastError() const;

    QSqlDatabase _database;
    QString _connectionName;
    std::map<QString, QSqlQuery> _statements;
    QString _errorText;
    bool _isDurable = true;
};

} // namespace korvane
