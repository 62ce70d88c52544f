// One upload, as the upload service tells of it.
#include "FrontEnd/Upload.h"

#include "Platform/Social/RemoteServiceError.h"

#include <QDBusArgument>

namespace korvane {

Upload Upload::fromDictionary(const QVariantMap &dictionary) {
    const auto text = [&](const char *key) { return dictionary.value(QLatin1String(key)).toString(); };
    const auto number = [&](const char *key) { return dictionary.value(QLatin1String(key)).toLongLong(); };
    Upload upload;
    upload.id = text("id");
    upload.service = text("service");
    upload.title = text("title");
    upload.state = text("state");
    upload.waitingFor = text("waitingFor");
    upload.nextTry = QDateTime::fromString(text("nextTry"), Qt::ISODate);
    upload.bytesSent = number("bytesSent");
    upload.bytesTotal = number("bytesTotal");
    upload.attempts = number("attempts");
    upload.createdAt = text("createdAt");
    upload.finishedAt = text("finishedAt");
    upload.mayHaveArrived = dictionary.value(QStringLiteral("mayHaveArrived")).toBool();
    const auto error = qdbus_cast<QVariantMap>(dictionary.value(QStringLiteral("error")));
    if (!error.isEmpty()) upload.error = errorOfDictionary(error);
    return upload;
}

void UploadCounts::add(const QString &state, qint64 count) {
    const std::pair<const char *, qint64 *> fields[]{
        {"queued", &queued}, {"running", &running}, {"waiting", &waiting}, {"done", &done}, {"failed", &failed}};
    for (const auto &[name, field] : fields)
        if (state == QLatin1String(name)) *field += count;
}

} // namespace korvane
