// One upload as the queue knows it.
#pragma once

#include "Korvane/VimeoCheckpoint.h"
#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSError.h"

#include <QString>
#include <QVariantMap>

#include <optional>

namespace korvane {

enum class UploadState { Queued = 0, Running = 1, Waiting = 2, Done = 3, Failed = 4 };
inline constexpr UploadState allUploadStates[] = {UploadState::Queued, UploadState::Running, UploadState::Waiting,
                                                  UploadState::Done, UploadState::Failed};
enum class WaitReason { None = 0, Network = 1, SignIn = 2, NextTry = 3 };

// As the status interface names it.
QString stateText(UploadState state);

inline const QString flickrServiceID = QStringLiteral("flickr");
inline const QString vimeoServiceID = QStringLiteral("vimeo");

// "Flickr" or "Vimeo", for people.
inline QString nameOfService(const QString &service) {
    return service == flickrServiceID ? QStringLiteral("Flickr") : QStringLiteral("Vimeo");
}

// Times are milliseconds since 1970, 0 for none.
struct UploadJob {
    qint64 id = 0;
    QString service;
    UploadState state = UploadState::Queued;
    WaitReason waitReason = WaitReason::None;
    QString title;
    QString accountID;                    // empty until an account of the service exists
    QString accountName;                  // its user's name, by which it is found when it was removed and added again
    QString spoolFile;                    // name in the spool; empty if the record holds all its data
    std::optional<FileIdentity> source;   // of the file that a "file" URL named when the post was taken over
    QString exportFile;                   // name in the spool of a library video's export, once there is one
    qint64 photoID = 0;                   // what Flickr answered with, once it has
    std::optional<VimeoCheckpoint> video; // how far it has come on its way to Vimeo, once it has
    qint64 bytesTotal = 0;                // 0 while unknown
    qint64 attempts = 0;                  // runs begun
    qint64 failures = 0;                  // transient failures in a row, and
    qint64 failingSince = 0;              // when the first of them was
    qint64 deaths = 0;                    // fatal ends of the service during a run of this job
    qint64 createdAt = 0;
    qint64 finishedAt = 0;
    qint64 nextTryAt = 0;
    std::optional<NSError> error;
};

// Nobody could tell whether a commit that is broken off has been obeyed, and before its last call a private video is
// public.
inline bool mayBeBrokenOff(const UploadJob &job) {
    return !job.video || !(job.video->commitSent || job.video->videoID.isValid());
}

// As the status interface shows it; the byte counts of a running job come from its context.
QVariantMap dictionaryOfJob(const UploadJob &job, qint64 bytesSent, qint64 bytesConfirmed, qint64 bytesTotal);

} // namespace korvane
