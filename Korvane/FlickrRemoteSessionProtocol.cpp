// What the Flickr upload service can be asked for.
#include "Korvane/FlickrRemoteSessionProtocol.h"

namespace korvane {

const QString FlickrRemoteServiceName = QStringLiteral("com.zorvex.flickr.xpc");

NSXPCInterface FlickrRemoteSessionProtocol::interface() {
    return {QStringLiteral("uploadPosts"), NSXPCInterface::Records};
}

} // namespace korvane
