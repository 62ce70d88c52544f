// The blocking URL send.
#include "Platform/Foundation/NSURLConnection.h"

#include "Platform/Foundation/CurlPool.h"
#include "Platform/Foundation/URLTransfer.h"

namespace korvane {

std::optional<NSData> NSURLConnection::sendSynchronousRequest(const NSMutableURLRequest &request,
                                                              NSHTTPURLResponse *response,
                                                              std::optional<NSError> *error) {
    if (const auto problem = CurlLibrary::problem()) {
        setError(error, problem);
        return std::nullopt;
    }
    const QString origin =
        QStringLiteral("%1://%2:%3").arg(request.URL.scheme(), request.URL.host()).arg(request.URL.port());
    auto handle = CurlPool::take(origin);
    std::optional<NSError> failure;
    std::optional<NSData> answer;
    {
        URLTransfer transfer(request, *handle);
        failure = transfer.run();
        if (response) *response = transfer.response();
        if (!failure) answer = NSData(transfer.body());
    }
    CurlPool::giveBack(origin, std::move(handle));
    setError(error, std::move(failure));
    return answer;
}

} // namespace korvane
