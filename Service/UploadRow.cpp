// An upload as a row of the queue's database.
#include "Service/UploadRow.h"

#include "Service/RecordCodec.h"

#include <QVariant>

namespace korvane {
namespace {

QString identityText(const std::optional<FileIdentity> &identity) {
    if (!identity) return {};
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

} // namespace

const QStringList UploadRow::columns{
    QStringLiteral("service"),       QStringLiteral("state"),        QStringLiteral("wait_reason"),
    QStringLiteral("title"),         QStringLiteral("account"),      QStringLiteral("account_name"),
    QStringLiteral("spool"),         QStringLiteral("source"),       QStringLiteral("photo"),
    QStringLiteral("bytes"),         QStringLiteral("attempts"),     QStringLiteral("failures"),
    QStringLiteral("failing_since"), QStringLiteral("deaths"),       QStringLiteral("created"),
    QStringLiteral("finished"),      QStringLiteral("next_try"),     QStringLiteral("export"),
    QStringLiteral("video"),         QStringLiteral("error_domain"), QStringLiteral("error_code"),
    QStringLiteral("error_text")};

QString UploadRow::textOf(const QString &text) {
    return text.isNull() ? QStringLiteral("") : text;
}

QVariant UploadRow::bytesOf(const std::optional<VimeoCheckpoint> &video) {
    return video ? QVariant(RecordCodec::encode(video->dictionary(), nullptr)) : QVariant();
}

QVariantList UploadRow::valuesOfJob(const UploadJob &job) {
    return {textOf(job.service),
            int(job.state),
            int(job.waitReason),
            textOf(job.title),
            textOf(job.accountID),
            textOf(job.accountName),
            textOf(job.spoolFile),
            textOf(identityText(job.source)),
            job.photoID,
            job.bytesTotal,
            job.attempts,
            job.failures,
            job.failingSince,
            job.deaths,
            job.createdAt,
            job.finishedAt,
            job.nextTryAt,
            textOf(job.exportFile),
            bytesOf(job.video),
            job.error ? QVariant(job.error->domain()) : QVariant(),
            job.error ? QVariant(job.error->code()) : QVariant(),
            job.error ? QVariant(job.error->localizedDescription()) : QVariant()};
}

UploadJob UploadRow::jobOfRow(const QSqlQuery &row) {
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

} // namespace korvane
