// One upload as the queue knows it.
#include "Service/UploadJob.h"

#include "Platform/Social/RemoteServiceError.h"

#include <QDateTime>
#include <QTimeZone>

#include <array>

namespace korvane {
namespace {

QString timeText(qint64 milliseconds) {
    return QDateTime::fromMSecsSinceEpoch(milliseconds, Qt::UTC).toString(Qt::ISODate);
}

QString waitText(WaitReason reason) {
    static const std::array<QString, 4> names{QString(), QStringLiteral("network"), QStringLiteral("sign-in"),
                                              QStringLiteral("next try")};
    return names.at(size_t(reason));
}

} // namespace

QString stateText(UploadState state) {
    static const std::array<QString, 5> names{QStringLiteral("queued"), QStringLiteral("running"),
                                              QStringLiteral("waiting"), QStringLiteral("done"),
                                              QStringLiteral("failed")};
    return names.at(size_t(state));
}

QVariantMap dictionaryOfJob(const UploadJob &job, qint64 bytesSent, qint64 bytesConfirmed, qint64 bytesTotal) {
    QVariantMap dictionary{{QStringLiteral("id"), QString::number(job.id)},
                           {QStringLiteral("service"), job.service},
                           {QStringLiteral("title"), job.title},
                           {QStringLiteral("state"), stateText(job.state)},
                           {QStringLiteral("bytesSent"), bytesSent},
                           {QStringLiteral("bytesConfirmed"), bytesConfirmed},
                           {QStringLiteral("bytesTotal"), bytesTotal},
                           {QStringLiteral("attempts"), job.attempts},
                           {QStringLiteral("createdAt"), timeText(job.createdAt)}};
    if (job.state == UploadState::Waiting) {
        dictionary.insert(QStringLiteral("waitingFor"), waitText(job.waitReason));
        dictionary.insert(QStringLiteral("nextTry"), timeText(job.nextTryAt));
    }
    if (job.state == UploadState::Failed && job.video && job.video->commitSent)
        dictionary.insert(QStringLiteral("mayHaveArrived"), true);
    if (job.finishedAt != 0) dictionary.insert(QStringLiteral("finishedAt"), timeText(job.finishedAt));
    if (job.error) dictionary.insert(QStringLiteral("error"), dictionaryOfError(*job.error));
    return dictionary;
}

} // namespace korvane
