// Turns the records of a message into uploads.
#include "Service/TakeOver.h"

#include "Platform/Accounts/ACAccountStore.h"
#include "Service/JobAccount.h"
#include "Service/RecordCodec.h"

#include <QDateTime>

namespace korvane {
namespace {

constexpr qsizetype longestTitle = 500; // of what lists show; the record keeps the whole

QString text(const QVariantMap &record, const QString &key) {
    const QVariant value = record.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

// The size of what will be sent, as far as it is known now, and the identity of a file that will be read in place.
void describeSource(const QVariantMap &record, UploadJob &job) {
    const auto url = NSURL::URLWithString(text(record, QStringLiteral("assetURL")));
    if (url && url->isFileURL()) {
        job.source = FileIdentity::ofPath(url->fileSystemRepresentation());
        job.bytesTotal = job.source ? job.source->size : 0;
        return;
    }
    for (const QString &key : {QStringLiteral("photoData"), QStringLiteral("assetData")}) {
        const QVariant data = record.value(key);
        if (data.typeId() == qMetaTypeId<NSData>()) job.bytesTotal = data.value<NSData>().length();
        if (data.typeId() == QMetaType::QByteArray) job.bytesTotal = data.toByteArray().size();
    }
}

NewUpload uploadOfRecord(const QString &service, const QVariantMap &record, const RemoteMessage &message,
                         const QString &spoolFile, const std::shared_ptr<ACAccount> &account) {
    NewUpload upload;
    upload.job.service = service;
    upload.job.title = text(record, QStringLiteral("title")).left(longestTitle);
    upload.job.accountID = account ? account->identifier() : QString();
    upload.job.accountName = account ? account->username() : QString();
    upload.job.createdAt = QDateTime::currentMSecsSinceEpoch();
    describeSource(record, upload.job);
    for (const QVariant &value : record)
        if (value.typeId() == qMetaTypeId<NSData>() && value.value<NSData>().file()) upload.job.spoolFile = spoolFile;
    upload.record = RecordCodec::encode(record, message.dataFile);
    return upload;
}

} // namespace

std::optional<TakenMessage> TakeOver::prepare(const QString &service, const QVariantList &records,
                                              const RemoteMessage &message, const Spool &spool,
                                              const ACAccountStore &accounts, std::optional<NSError> *error) {
    TakenMessage taken;
    if (message.dataFile) {
        const auto name = spool.adopt(message.dataFile->get(), error);
        if (!name) return std::nullopt;
        taken.spoolFile = *name;
    }
    const auto account = accounts.accountInUse(accountTypeOfService(service));
    for (const QVariant &record : records)
        taken.uploads.push_back(uploadOfRecord(service, record.toMap(), message, taken.spoolFile, account));
    return taken;
}

} // namespace korvane
