// A request as it goes out, and the head of its answer.
#pragma once

#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSURL.h"
#include "Platform/Foundation/UploadContext.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace korvane {

using HTTPHeaders = QList<std::pair<QByteArray, QByteArray>>;

// A value type; copying it copies no body bytes.
struct NSMutableURLRequest {
    NSURL URL;
    QByteArray HTTPMethod = "GET";
    HTTPHeaders headers = {};
    std::vector<NSData> HTTPBody = {}; // sent one after the other as one body
    double timeoutInterval = 60;       // seconds without a byte moved
    bool allowsCellularAccess = true;  // false: the send fails while the default route is a cellular one
    std::shared_ptr<UploadContext> uploadContext = {}; // may be null

    // Appends the value to a header that is there already, as ", value".
    void addValueForHTTPHeaderField(const QByteArray &value, const QByteArray &field);
    // Null where there is no such header.
    std::optional<QByteArray> valueForHTTPHeaderField(const QByteArray &field) const;
    qint64 bodyLength() const;
};

struct NSHTTPURLResponse {
    int statusCode = 0;
    HTTPHeaders headers;

    // Null where the answer has no such header; names are compared without regard to case.
    std::optional<QByteArray> valueForHTTPHeaderField(const QByteArray &field) const;
};

} // namespace korvane
