// One upload, as the upload service tells of it.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QDateTime>
#include <QString>
#include <QVariantMap>

#include <optional>

namespace korvane {

struct Upload {
    QString id;
    QString service;
    QString title;
    QString state;
    QString waitingFor; // with "waiting", else empty
    QDateTime nextTry;  // with "waiting", else invalid
    qint64 bytesSent = 0;
    qint64 bytesTotal = 0; // 0 while it is not known
    qint64 attempts = 0;
    QString createdAt;           // ISO 8601 in UTC
    QString finishedAt;          // the same; empty before the end
    bool mayHaveArrived = false; // failed while nobody knows whether the web service has it
    std::optional<NSError> error;

    // From a dictionary of the status interface, with its nested values still as they came from the bus. What is
    // missing or of the wrong type stays empty.
    static Upload fromDictionary(const QVariantMap &dictionary);

    bool isRunning() const { return state == QLatin1String("running"); }
    bool isWaiting() const { return state == QLatin1String("waiting"); }
    bool isDone() const { return state == QLatin1String("done"); }
    bool hasFailed() const { return state == QLatin1String("failed"); }
    bool isFinished() const { return isDone() || hasFailed(); }
    bool canBeRetried() const { return hasFailed() || isWaiting(); }
    // A video that may have arrived is left to a retry of its own, since somebody has to look first.
    bool isRetriedWithAll() const { return canBeRetried() && !mayHaveArrived; }
};

// How many uploads there are, by state.
struct UploadCounts {
    qint64 queued = 0;
    qint64 running = 0;
    qint64 waiting = 0;
    qint64 done = 0;
    qint64 failed = 0;

    void add(const QString &state, qint64 count = 1); // other states are left out
    qint64 pending() const { return queued + running + waiting; }
    qint64 total() const { return pending() + done + failed; }
};

// Where an upload's photo or video can be read.
struct UploadSource {
    QString id;
    QByteArray path; // in the file system's own bytes
    qint64 offset = 0;
    qint64 length = 0;
};

} // namespace korvane
