// What the Vimeo upload service can be asked for.
#pragma once

#include "Platform/Social/NSXPCInterface.h"

#include <QVariantMap>

namespace korvane {

extern const QString VimeoRemoteServiceName;

class VimeoRemoteSessionProtocol {
public:
    virtual ~VimeoRemoteSessionProtocol() = default;

    // post: one serialized VimeoPost. The reply comes once, when the service has taken it over or refused it.
    virtual void uploadPost(const QVariantMap &post, const XPCTransferCompletion &reply) = 0;

    static NSXPCInterface interface();
};

} // namespace korvane
