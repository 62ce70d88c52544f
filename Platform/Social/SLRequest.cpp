// A request to a social web service, signed for the user's account.
#include "Platform/Social/SLRequest.h"

#include "Platform/Accounts/ACAccount.h"
#include "Platform/Foundation/Dispatch.h"
#include "Platform/Foundation/NSNumber.h"
#include "Platform/Foundation/NSURLConnection.h"

#include <QDateTime>
#include <QUuid>

namespace korvane {

const QString SLServiceTypeFlickr = QStringLiteral("com.zorvex.social.flickr");
const QString SLServiceTypeVimeo = QStringLiteral("com.zorvex.social.vimeo");

std::shared_ptr<SLRequest> SLRequest::requestForServiceType(const QString &, SLRequestMethod method, const NSURL &url,
                                                            const QVariantMap &parameters) {
    return std::shared_ptr<SLRequest>(new SLRequest(method, url, parameters));
}

SLRequest::SLRequest(SLRequestMethod method, NSURL url, const QVariantMap &parameters)
    : _method(method), _url(std::move(url)) {
    for (auto it = parameters.cbegin(); it != parameters.cend(); ++it)
        _parameters.append({it.key(), textValue(it.value())});
}

void SLRequest::addMultipartData(const NSData &data, const QString &name, const QString &type,
                                 const std::optional<QString> &filename) {
    _parts.push_back({data, name, type, filename});
}

QByteArray SLRequest::_methodName() const {
    return _method == SLRequestMethodPOST ? "POST" : "PUT";
}

OAuthParameters SLRequest::_signedParameters() const {
    OAuthParameters all = OAuthSigner::parametersOfQuery(_url.query());
    for (const auto &parameter : _parameters)
        all.removeOne(parameter);
    return all + _parameters;
}

NSMutableURLRequest SLRequest::preparedURLRequest() const {
    NSMutableURLRequest request{_url};
    request.HTTPMethod = _methodName();
    if (!_parts.empty() || !_parameters.isEmpty()) {
        const RequestBody body =
            _parts.empty() ? RequestBody::form(_parameters) : RequestBody::multipart(_parameters, _parts);
        request.headers.append({"Content-Type", body.contentType});
        request.HTTPBody = body.pieces;
    }
    if (!_account) return request;
    request.uploadContext = _account->uploadContext();
    if (const auto credential = _account->credential()) {
        const QString nonce = QUuid::createUuid().toString(QUuid::Id128);
        request.headers.append({"Authorization", OAuthSigner::authorizationHeader(
                                                     request.HTTPMethod, _url, _signedParameters(), *credential,
                                                     QDateTime::currentSecsSinceEpoch(), nonce)});
    }
    return request;
}

void SLRequest::performRequestWithHandler(const SLRequestHandler &handler) const {
    static auto *const sharedQueue = new SerialQueue; // never destroyed: answers may come as the process ends
    dispatchGlobal([request = preparedURLRequest(), handler] {
        NSHTTPURLResponse response;
        std::optional<NSError> error;
        const auto body = NSURLConnection::sendSynchronousRequest(request, &response, &error);
        SerialQueue &queue = request.uploadContext ? request.uploadContext->answerQueue() : *sharedQueue;
        queue.async([=] { handler(body, response, error); });
    });
}

} // namespace korvane
