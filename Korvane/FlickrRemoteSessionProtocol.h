// What the Flickr upload service can be asked for.
#pragma once

#include "Platform/Social/NSXPCInterface.h"

#include <QVariantList>

namespace korvane {

extern const QString FlickrRemoteServiceName;

class FlickrRemoteSessionProtocol {
public:
    virtual ~FlickrRemoteSessionProtocol() = default;

    // posts: one serialized FlickrPost each, in order. The reply comes once, when the service has taken all of them
    // over or none.
    virtual void uploadPosts(const QVariantList &posts, const XPCTransferCompletion &reply) = 0;

    static NSXPCInterface interface();
};

} // namespace korvane
