// The base of everything that talks to Flickr: one signed POST, with retry.
#include "Korvane/FlickrRequest.h"

#include "Korvane/KorvaneAdditions.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Foundation/NSURLConnection.h"
#include "Platform/Social/SLRequest.h"

namespace korvane {
namespace {

bool isWorthRetrying(const NSError &error) {
    return error.domain() == NSURLErrorDomain &&
           (error.code() == NSURLErrorTimedOut || error.code() == NSURLErrorNetworkConnectionLost ||
            error.code() == NSURLErrorNotConnectedToInternet);
}

NSURL URLOfText(const QString &text) {
    return NSURL::URLWithString(text).value_or(NSURL::fileURLWithPath({}));
}

} // namespace

void FlickrRequest::sendRequestToEndPoint(const QString &endPoint, const QVariantMap &params,
                                          const FlickrRequestModifications &requestModifications,
                                          const FlickrRequestCompletion &completion) {
    _sendRequestToEndPoint(endPoint, params, requestModifications, completion, 0);
}

void FlickrRequest::_sendRequestToEndPoint(const QString &endPoint, const QVariantMap &params,
                                           const FlickrRequestModifications &requestModifications,
                                           const FlickrRequestCompletion &completion, quint64 failedAttempts) {
    const QString signedURL = endPoint + u'?' + EncodedStringForParameterDictionary(params);
    const auto request =
        SLRequest::requestForServiceType(SLServiceTypeFlickr, SLRequestMethodPOST, URLOfText(signedURL), params);
    if (requestModifications) requestModifications(*request);
    // Signed with the parameters in URL and body, sent with them in the body alone: the signature covers each once.
    NSMutableURLRequest prepared = request->preparedURLRequest();
    prepared.URL = URLOfText(endPoint);

    dispatchGlobal([=, self = shared_from_this(), prepared = std::move(prepared)] {
        std::optional<NSError> error;
        const std::optional<NSData> body = NSURLConnection::sendSynchronousRequest(prepared, nullptr, &error);
        dispatchMain([=] {
            if (error && isWorthRetrying(*error) && failedAttempts <= 2) {
                NSLog("Flickr request failed with error %ld, trying again. Fail count: %lu", error->code(),
                      failedAttempts);
                self->_sendRequestToEndPoint(endPoint, params, requestModifications, completion, failedAttempts + 1);
            } else if (completion) {
                completion(body, error);
            }
        });
    });
}

} // namespace korvane
