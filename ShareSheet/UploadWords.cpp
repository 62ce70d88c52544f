// How the window tells of an upload.
#include "ShareSheet/UploadWords.h"

#include "FrontEnd/UploadText.h"
#include "Platform/Foundation/NSByteCountFormatter.h"

#include <QCoreApplication>
#include <QLocale>

namespace korvane {
namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(UploadWords)
};

QString bytesText(double count) {
    return NSByteCountFormatter::stringFromByteCount(float(count), NSByteCountFormatterCountStyleFile);
}

QString waitText(const Upload &upload) {
    if (upload.waitingFor == QLatin1String("sign-in")) return Words::tr("Waiting for an account");
    const QString what = upload.waitingFor == QLatin1String("network") ? Words::tr("Waiting for the network")
                                                                       : Words::tr("Waiting for the next try");
    if (!upload.nextTry.isValid()) return what;
    const QDateTime next = upload.nextTry.toLocalTime();
    const bool isToday = next.date() == QDate::currentDate();
    return Words::tr("%1, at the latest %2")
        .arg(what, isToday ? QLocale().toString(next.time(), QLocale::ShortFormat)
                           : QLocale().toString(next, QLocale::ShortFormat));
}

// To what people count by at that distance.
qint64 roundedTo(qint64 step, qint64 seconds) {
    return (seconds + step - 1) / step * step;
}

} // namespace

QString UploadWords::serviceName(const Upload &upload) {
    return upload.service == QLatin1String("flickr")  ? QStringLiteral("Flickr")
           : upload.service == QLatin1String("vimeo") ? QStringLiteral("Vimeo")
                                                      : upload.service;
}

QString UploadWords::title(const Upload &upload) {
    if (!upload.title.isEmpty()) return UploadText::printable(upload.title);
    return upload.service == QLatin1String("vimeo") ? Words::tr("Video without a title")
                                                    : Words::tr("Photo without a title");
}

QString UploadWords::state(const Upload &upload) {
    if (upload.isWaiting()) return waitText(upload);
    if (upload.isRunning()) return Words::tr("Uploading");
    if (upload.isDone()) return Words::tr("Shared");
    return upload.hasFailed() ? Words::tr("Failed") : Words::tr("Queued");
}

QString UploadWords::reason(const Upload &upload) {
    const QString text = upload.error ? UploadText::printable(upload.error->localizedDescription()) : QString();
    if (upload.hasFailed() && text.isEmpty()) return Words::tr("No reason was given.");
    if (upload.isWaiting() && upload.waitingFor == QLatin1String("sign-in"))
        return (text + u' ' + Words::tr("Sign in on Korvane's settings page.")).trimmed();
    return upload.hasFailed() || upload.isWaiting() ? text : QString();
}

QString UploadWords::bytes(const Upload &upload) {
    const qint64 sent = upload.isDone() ? upload.bytesTotal : upload.bytesSent;
    if (upload.bytesTotal <= 0) return sent > 0 ? bytesText(double(sent)) : QString();
    if (sent == upload.bytesTotal || sent == 0) return bytesText(double(upload.bytesTotal));
    return Words::tr("%1 of %2").arg(bytesText(double(sent)), bytesText(double(upload.bytesTotal)));
}

QString UploadWords::speed(double bytesPerSecond) {
    return Words::tr("%1/s").arg(bytesText(bytesPerSecond));
}

QString UploadWords::timeLeft(qint64 seconds) {
    if (seconds <= 5) return Words::tr("a few seconds left");
    if (seconds <= 55) return Words::tr("about %n s left", nullptr, int(roundedTo(seconds <= 30 ? 5 : 10, seconds)));
    const qint64 minutes = roundedTo(60, seconds - 15) / 60;
    if (minutes < 60)
        return Words::tr("about %n min left", nullptr, int(minutes < 20 ? minutes : roundedTo(5, minutes)));
    if (minutes < 24 * 60) return Words::tr("about %n h left", nullptr, int((minutes + 30) / 60));
    return Words::tr("more than a day left");
}

QString UploadWords::removalQuestion(const Upload &upload) {
    if (upload.isDone()) return {};
    const QString name = UploadText::brief(title(upload));
    if (upload.mayHaveArrived)
        return Words::tr(
                   "Nobody knows whether “%1” has arrived. Look on %2 first. Removed here, it is not tried again.")
            .arg(name, serviceName(upload));
    return Words::tr("“%1” has not arrived on %2 yet. Removed here, it is not uploaded.")
        .arg(name, serviceName(upload));
}

} // namespace korvane
