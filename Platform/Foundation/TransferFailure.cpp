// Why a request brought no answer.
#include "Platform/Foundation/TransferFailure.h"

#include "Platform/Foundation/CurlLibrary.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/SystemConfiguration/NetworkRoute.h"

#include <cerrno>

namespace korvane {
namespace {

qint64 errorCode(CURLcode code) {
    switch (code) {
    case CURLE_OPERATION_TIMEDOUT:
        return NSURLErrorTimedOut;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return NSURLErrorCannotFindHost;
    case CURLE_COULDNT_CONNECT:
        return NSURLErrorCannotConnectToHost;
    case CURLE_SEND_ERROR:
    case CURLE_SEND_FAIL_REWIND:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
        return NSURLErrorNetworkConnectionLost;
    case CURLE_ABORTED_BY_CALLBACK:
        return NSURLErrorCancelled;
    case CURLE_WEIRD_SERVER_REPLY:
        return NSURLErrorBadServerResponse;
    case CURLE_OUT_OF_MEMORY: // what curl says of a header line above 100 KB
        return NSURLErrorDataLengthExceedsMaximum;
    case CURLE_SSL_CONNECT_ERROR:
        return NSURLErrorSecureConnectionFailed;
    case CURLE_PEER_FAILED_VERIFICATION:
        return NSURLErrorServerCertificateUntrusted;
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_CACERT_BADFILE:
        return NSURLErrorServerCertificateHasUnknownRoot;
    case CURLE_SSL_CERTPROBLEM:
        return NSURLErrorClientCertificateRequired;
    default:
        return NSURLErrorUnknown;
    }
}

bool isOffline(qint64 code, long osError, const NSURL &url) {
    if (url.isLoopback() || (code != NSURLErrorCannotFindHost && code != NSURLErrorCannotConnectToHost)) return false;
    return osError == ENETUNREACH || osError == ENETDOWN || !NetworkRoute::hasDefaultRoute();
}

QString words(CURLcode code, const QString &host) {
    switch (errorCode(code)) {
    case NSURLErrorTimedOut:
        return localizedText("The web service did not respond in time.");
    case NSURLErrorCannotFindHost:
        return code == CURLE_COULDNT_RESOLVE_PROXY ? localizedText("The proxy server was not found.")
                                                   : localizedText("No server with the name %1 was found.", host);
    case NSURLErrorCannotConnectToHost:
        return localizedText("No connection to %1 could be made.", host);
    case NSURLErrorNetworkConnectionLost:
        return localizedText("The connection broke off.");
    case NSURLErrorBadServerResponse:
        return localizedText("The web service does not answer in HTTP.");
    case NSURLErrorSecureConnectionFailed:
        return localizedText("A secure connection could not be made.");
    case NSURLErrorServerCertificateUntrusted:
        return localizedText("The certificate of %1 is not trusted.", host);
    default:
        return QString::fromUtf8(curl().easy_strerror(code)) + u'.';
    }
}

} // namespace

NSError TransferFailure::make(qint64 code, const QString &text) {
    return NSError::errorWithDescription(NSURLErrorDomain, code, text);
}

NSError TransferFailure::tooLarge() {
    return make(NSURLErrorDataLengthExceedsMaximum, localizedText("The web service's answer is too large."));
}

NSError TransferFailure::ofCurl(CURLcode code, long osError, const NSURL &url) {
    const qint64 ours = errorCode(code);
    if (ours == NSURLErrorDataLengthExceedsMaximum) return tooLarge();
    if (isOffline(ours, osError, url))
        return make(NSURLErrorNotConnectedToInternet, localizedText("There is no network connection."));
    return make(ours, words(code, url.host()));
}

} // namespace korvane
