// The tables of the upload queue's database.
#include "Service/UploadSchema.h"

namespace korvane {
namespace {

// "state" is an UploadState; the partial index keeps the look for suspects free of cost while there are none.
const QStringList schema{
    QStringLiteral(
        "CREATE TABLE uploads (id INTEGER PRIMARY KEY AUTOINCREMENT, service TEXT NOT NULL, state INTEGER NOT NULL, "
        "wait_reason INTEGER NOT NULL, title TEXT NOT NULL, account TEXT NOT NULL, account_name TEXT NOT NULL, "
        "spool TEXT NOT NULL, source TEXT NOT NULL, "
        "photo INTEGER NOT NULL, bytes INTEGER NOT NULL, attempts INTEGER NOT NULL, failures INTEGER NOT NULL, "
        "failing_since INTEGER NOT NULL, deaths INTEGER NOT NULL, created INTEGER NOT NULL, finished INTEGER NOT NULL, "
        "next_try INTEGER NOT NULL, error_domain TEXT, error_code INTEGER, error_text TEXT, message TEXT NOT NULL, "
        "record BLOB NOT NULL, export TEXT NOT NULL DEFAULT '', video BLOB)"),
    QStringLiteral("CREATE INDEX uploads_queued ON uploads (state, service, id)"),
    QStringLiteral("CREATE INDEX uploads_due ON uploads (state, next_try)"),
    QStringLiteral("CREATE INDEX uploads_message ON uploads (message)"),
    QStringLiteral("CREATE INDEX uploads_spool ON uploads (spool)"),
    QStringLiteral("CREATE INDEX uploads_suspect ON uploads (state, id) WHERE deaths > 0"),
    // Kept by the database itself, since counting a long queue takes longer than taking a post over.
    QStringLiteral("CREATE TABLE counts (state INTEGER PRIMARY KEY, uploads INTEGER NOT NULL)"),
    QStringLiteral(
        "CREATE TRIGGER uploads_added AFTER INSERT ON uploads BEGIN "
        "INSERT INTO counts VALUES (new.state, 1) ON CONFLICT (state) DO UPDATE SET uploads = uploads + 1; END"),
    QStringLiteral(
        "CREATE TRIGGER uploads_moved AFTER UPDATE OF state ON uploads WHEN old.state <> new.state BEGIN "
        "UPDATE counts SET uploads = uploads - 1 WHERE state = old.state; "
        "INSERT INTO counts VALUES (new.state, 1) ON CONFLICT (state) DO UPDATE SET uploads = uploads + 1; END"),
    QStringLiteral("CREATE TRIGGER uploads_removed AFTER DELETE ON uploads BEGIN "
                   "UPDATE counts SET uploads = uploads - 1 WHERE state = old.state; END"),
    QStringLiteral("CREATE TABLE messages (id TEXT PRIMARY KEY, taken INTEGER NOT NULL)"),
    QStringLiteral("CREATE TABLE settings (name TEXT PRIMARY KEY, value INTEGER NOT NULL)"),
};

} // namespace

const QStringList &UploadSchema::statements() {
    return schema;
}

} // namespace korvane
