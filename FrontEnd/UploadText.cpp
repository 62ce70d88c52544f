// How uploads are told of in words, columns and JSON.
#include "FrontEnd/UploadText.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QTextBoundaryFinder>

#include <algorithm>

#include <wchar.h>

namespace korvane {
namespace {

constexpr char16_t replacement = u'\uFFFD';

bool isDirectionControl(char32_t c) {
    return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0x200E || c == 0x200F || c == 0x061C;
}

QString localTime(const QDateTime &time) {
    const QDateTime local = time.toLocalTime();
    const bool today = local.date() == QDate::currentDate();
    return local.toString(today ? QStringLiteral("HH:mm") : QStringLiteral("yyyy-MM-dd HH:mm"));
}

QString waitText(const Upload &upload) {
    QString text = QStringLiteral("waiting for ");
    if (upload.waitingFor == QLatin1String("network"))
        text += QStringLiteral("the network");
    else if (upload.waitingFor == QLatin1String("sign-in"))
        text += QStringLiteral("an account (korvane accounts add %1)").arg(UploadText::printable(upload.service));
    else
        text += QStringLiteral("the next try");
    if (upload.nextTry.isValid() && upload.waitingFor != QLatin1String("sign-in"))
        text += QStringLiteral(", at the latest ") + localTime(upload.nextTry);
    return text;
}

QString shownTitle(const Upload &upload) {
    return upload.title.isEmpty() ? QStringLiteral("(no title)") : UploadText::printable(upload.title);
}

QJsonValue textOrNull(const QString &text) {
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

} // namespace

// A number that rounds up to 1000 of a unit is written in the next one.
QString UploadText::bytes(qint64 count) {
    const double value = double(count);
    if (count < 1000) return QStringLiteral("%1 bytes").arg(count);
    if (value < 999.5e3) return QStringLiteral("%1 kB").arg(value / 1e3, 0, 'f', 0);
    if (value < 999.95e6) return QStringLiteral("%1 MB").arg(value / 1e6, 0, 'f', 1);
    return QStringLiteral("%1 GB").arg(value / 1e9, 0, 'f', 2);
}

QString UploadText::progress(qint64 sent, qint64 total) {
    if (total > 0) return QStringLiteral("%1 of %2").arg(bytes(sent), bytes(total));
    return sent > 0 ? bytes(sent) : QString();
}

QString UploadText::printable(const QString &text) {
    QString clean;
    clean.reserve(text.size());
    for (const char32_t c : text.toUcs4()) {
        const QChar::Category category = QChar::category(c);
        if (c == '\n' || c == '\r' || c == '\t' || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            clean += u' ';
        else if (category == QChar::Other_Control || category == QChar::Other_Surrogate || isDirectionControl(c))
            clean += QChar(replacement);
        else
            clean += QChar::fromUcs4(c);
    }
    return clean;
}

int UploadText::width(const QString &text) {
    int columns = 0;
    for (const char32_t c : text.toUcs4()) {
        const int own = ::wcwidth(wchar_t(c));
        columns += own < 0 ? 1 : own;
    }
    return columns;
}

QString UploadText::cut(const QString &text, int columns) {
    if (width(text) <= columns) return text;
    if (columns <= 0) return {};
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    int used = 1; // the ellipsis
    qsizetype kept = 0;
    for (qsizetype next = characters.toNextBoundary(); next > 0; next = characters.toNextBoundary()) {
        used += width(text.mid(kept, next - kept));
        if (used > columns) break;
        kept = next;
    }
    return text.left(kept) + QChar(u'\u2026');
}

QString UploadText::padded(const QString &text, int columns) {
    const QString shown = cut(text, columns);
    return shown + QString(std::max(0, columns - width(shown)), u' ');
}

QString UploadText::reason(const Upload &upload) {
    const QString error = upload.error ? printable(upload.error->localizedDescription()) : QString();
    if (upload.hasFailed()) return error.isEmpty() ? QStringLiteral("no reason given") : error;
    if (!upload.isWaiting()) return {};
    return error.isEmpty() ? waitText(upload) : waitText(upload) + QStringLiteral(": ") + error;
}

QString UploadText::state(const Upload &upload) {
    if (upload.isWaiting()) return reason(upload);
    if (upload.hasFailed()) return QStringLiteral("failed: ") + reason(upload);
    return printable(upload.state);
}

QString UploadText::tableHead() {
    return padded(QStringLiteral("ID"), 7) + padded(QStringLiteral("SERVICE"), 9) + padded(QStringLiteral("STATE"), 9) +
           padded(QStringLiteral("PROGRESS"), 22) + QStringLiteral("TITLE");
}

QString UploadText::tableRow(const Upload &upload, int columns) {
    const QString progressColumn =
        upload.isDone() ? bytes(upload.bytesTotal) : progress(upload.bytesSent, upload.bytesTotal);
    QString row = upload.id.leftJustified(6) + u' ' + padded(printable(upload.service), 8) + u' ' +
                  padded(printable(upload.state), 8) + u' ' + padded(progressColumn, 21) + u' ' + shownTitle(upload);
    const QString why = reason(upload);
    if (!why.isEmpty()) row += QStringLiteral(" (%1)").arg(why);
    return columns > 0 ? cut(row, columns) : row;
}

QByteArray UploadText::json(const Upload &upload) {
    QJsonValue error;
    if (upload.error)
        error = QJsonObject{{QStringLiteral("domain"), upload.error->domain()},
                            {QStringLiteral("code"), upload.error->code()},
                            {QStringLiteral("description"), upload.error->localizedDescription()}};
    const QJsonObject object{{QStringLiteral("id"), upload.id},
                             {QStringLiteral("service"), upload.service},
                             {QStringLiteral("title"), upload.title},
                             {QStringLiteral("state"), upload.state},
                             {QStringLiteral("bytesSent"), upload.bytesSent},
                             {QStringLiteral("bytesTotal"), upload.bytesTotal},
                             {QStringLiteral("attempts"), upload.attempts},
                             {QStringLiteral("createdAt"), textOrNull(upload.createdAt)},
                             {QStringLiteral("finishedAt"), textOrNull(upload.finishedAt)},
                             {QStringLiteral("error"), error}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace korvane
