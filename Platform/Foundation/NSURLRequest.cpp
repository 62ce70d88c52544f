// A request as it goes out, and the head of its answer.
#include "Platform/Foundation/NSURLRequest.h"

namespace korvane {
namespace {

std::optional<QByteArray> valueOf(const HTTPHeaders &headers, const QByteArray &field) {
    for (const auto &[name, value] : headers)
        if (name.compare(field, Qt::CaseInsensitive) == 0) return value;
    return std::nullopt;
}

} // namespace

void NSMutableURLRequest::addValueForHTTPHeaderField(const QByteArray &value, const QByteArray &field) {
    for (auto &[name, present] : headers) {
        if (name.compare(field, Qt::CaseInsensitive) != 0) continue;
        present += ", " + value;
        return;
    }
    headers.append({field, value});
}

qint64 NSMutableURLRequest::bodyLength() const {
    qint64 length = 0;
    for (const NSData &piece : HTTPBody)
        length += piece.length();
    return length;
}

std::optional<QByteArray> NSMutableURLRequest::valueForHTTPHeaderField(const QByteArray &field) const {
    return valueOf(headers, field);
}

std::optional<QByteArray> NSHTTPURLResponse::valueForHTTPHeaderField(const QByteArray &field) const {
    return valueOf(headers, field);
}

} // namespace korvane
