// The blocking URL send.
#pragma once

#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSURLRequest.h"

#include <optional>

namespace korvane {

// Further codes of NSURLErrorDomain, for answers that cannot be taken.
enum NSURLAnswerErrorCode : qint64 {
    NSURLErrorBadServerResponse = -1011,
    NSURLErrorDataLengthExceedsMaximum = -1103,
};

namespace NSURLConnection {

// Sends the request and waits for the whole answer. Any HTTP status is an answer, redirects are not followed; an answer
// without a body gives empty data, no answer gives null and an error of NSURLErrorDomain. A request whose body turns
// out shorter than announced, or whose file changes while it is read, is broken off with an error before it is
// complete. Connections are kept and used again for the same origin. Thread: any but the main one; it blocks without a
// total limit and gives up after request.timeoutInterval seconds in which no byte moved.
std::optional<NSData> sendSynchronousRequest(const NSMutableURLRequest &request, NSHTTPURLResponse *response,
                                             std::optional<NSError> *error);

} // namespace NSURLConnection

} // namespace korvane
