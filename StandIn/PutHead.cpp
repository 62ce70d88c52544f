#include "StandIn/PutHead.h"

#include "StandIn/ChunkBody.h"

#include <QRegularExpression>

namespace standin {

namespace {

const QByteArray Question("bytes */*");

// Header names have no case.
QByteArrayList valuesOf(const Parameters &headers, const char *name) {
    QByteArrayList values;
    for (const auto &[header, value] : headers) {
        if (header.compare(name, Qt::CaseInsensitive) == 0) values.append(value);
    }
    return values;
}

QByteArray repeatedIn(const Parameters &headers) {
    for (const auto &[name, value] : headers) {
        if (valuesOf(headers, name.constData()).size() > 1) return name;
    }
    return {};
}

// -1 for all but digits.
qint64 numberIn(const QString &text) {
    const bool digits = std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return digits && !text.isEmpty() && text.size() <= 18 ? text.toLongLong() : -1;
}

QByteArray rangeProblem(const QByteArray &range, PutHead *head) {
    static const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("bytes ([0-9]{1,18})-([0-9]{1,18})/([0-9]{1,18})")));
    const auto match = form.match(QString::fromLatin1(range));
    if (!match.hasMatch()) return "its Content-Range is not of the form \"bytes S-E/T\"";
    head->start = numberIn(match.captured(1));
    head->total = numberIn(match.captured(3));
    if (numberIn(match.captured(2)) != head->total - 1) return "its Content-Range does not reach to the video's end";
    if (head->start + head->length > head->total) return "its body reaches past the video's end";
    return {};
}

QByteArray problemOf(const Parameters &headers, PutHead *head) {
    if (const QByteArray name = repeatedIn(headers); !name.isEmpty()) return "it has more than one " + name;
    if (!valuesOf(headers, "Transfer-Encoding").isEmpty()) return "it has a Transfer-Encoding";
    head->length = numberIn(QString::fromLatin1(valuesOf(headers, "Content-Length").value(0)));
    const QByteArrayList ranges = valuesOf(headers, "Content-Range");
    if (ranges.value(0) == Question)
        return head->length == 0 ? "" : "it asks how much is stored, but its Content-Length is not 0";
    if (valuesOf(headers, "Content-Type").value(0) != "video/mp4") return "its Content-Type is not video/mp4";
    if (head->length < 1 || head->length > ChunkBody::LargestChunk)
        return "its Content-Length is not from 1 to " + QByteArray::number(ChunkBody::LargestChunk);
    if (ranges.isEmpty()) return {};
    head->contentRange = ranges.first();
    return rangeProblem(ranges.first(), head);
}

} // namespace

bool PutHead::meansVerify(const Parameters &headers) {
    return valuesOf(headers, "Content-Length").value(0) == "0" || valuesOf(headers, "Content-Range").contains(Question);
}

std::optional<PutHead> PutHead::read(const Parameters &headers, QByteArray *problem) {
    PutHead head;
    *problem = problemOf(headers, &head);
    return problem->isEmpty() ? std::optional(head) : std::nullopt;
}

} // namespace standin
