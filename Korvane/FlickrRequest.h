// The base of everything that talks to Flickr: one signed POST, with retry.
#pragma once

#include "Platform/Foundation/NSData.h"
#include "Platform/Foundation/NSError.h"

#include <QString>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace korvane {

class SLRequest;

// Runs on the calling thread with the request just built, again for each retry (then on the main thread). May be empty.
using FlickrRequestModifications = std::function<void(SLRequest &request)>;
// Runs once, on the main thread. body: the answer, also an empty one; null where no answer came. May be empty.
using FlickrRequestCompletion =
    std::function<void(const std::optional<NSData> &body, const std::optional<NSError> &error)>;

class FlickrRequest : public std::enable_shared_from_this<FlickrRequest> {
public:
    virtual ~FlickrRequest() = default;

    // Sends the parameters to the endpoint (full URL without a query) and returns at once. Time-outs, lost connections
    // and a missing network are tried again at once, up to three times. HTTP status and answer are left to the caller.
    void sendRequestToEndPoint(const QString &endPoint, const QVariantMap &params,
                               const FlickrRequestModifications &requestModifications,
                               const FlickrRequestCompletion &completion);

protected:
    FlickrRequest() = default;

private:
    void _sendRequestToEndPoint(const QString &endPoint, const QVariantMap &params,
                                const FlickrRequestModifications &requestModifications,
                                const FlickrRequestCompletion &completion, quint64 failedAttempts);
};

} // namespace korvane
