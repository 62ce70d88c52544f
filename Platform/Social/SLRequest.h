// A request to a social web service, signed for the user's account.
#pragma once

#include "Platform/Foundation/NSURLRequest.h"
#include "Platform/Social/RequestBody.h"

#include <QVariantMap>

#include <functional>
#include <memory>

namespace korvane {

class ACAccount;

extern const QString SLServiceTypeFlickr;
extern const QString SLServiceTypeVimeo;

enum SLRequestMethod { SLRequestMethodPOST, SLRequestMethodPUT };

// body: the answer, also an empty one; null where none came, with the error of the send.
using SLRequestHandler = std::function<void(const std::optional<NSData> &body, const NSHTTPURLResponse &response,
                                            const std::optional<NSError> &error)>;

class SLRequest {
public:
    // Parameter values become texts: numbers in decimal, booleans "0" or "1".
    static std::shared_ptr<SLRequest> requestForServiceType(const QString &serviceType, SLRequestMethod method,
                                                            const NSURL &url, const QVariantMap &parameters);

    // The account to sign for, and whose upload context the request carries; null leaves the request unsigned.
    void setAccount(std::shared_ptr<ACAccount> account) { _account = std::move(account); }
    const std::shared_ptr<ACAccount> &account() const { return _account; }

    // Adds a file part; the body becomes multipart/form-data. The part itself is not covered by the signature.
    void addMultipartData(const NSData &data, const QString &name, const QString &type,
                          const std::optional<QString> &filename);

    // The request as it can be sent: URL as given, parameters in the body, signed with a new time stamp and nonce at
    // each call. A parameter that stands in the URL's query as well is signed once.
    NSMutableURLRequest preparedURLRequest() const;

    // Sends the request on a pool thread; returns at once. The handler runs once, on the answer queue of the account's
    // upload context, or without one on a queue that all such requests of the process share.
    void performRequestWithHandler(const SLRequestHandler &handler) const;

private:
    SLRequest(SLRequestMethod method, NSURL url, const QVariantMap &parameters);
    OAuthParameters _signedParameters() const;
    QByteArray _methodName() const;

    SLRequestMethod _method;
    NSURL _url;
    OAuthParameters _parameters;
    std::shared_ptr<ACAccount> _account;
    std::vector<MultipartPart> _parts;
};

} // namespace korvane
