// The upload service's end of the Flickr hand-over.
#include "Service/FlickrServiceSession.h"

#include "Service/UploadQueue.h"

namespace korvane {

FlickrServiceSession::FlickrServiceSession(UploadQueue &queue)
    : KRRemoteSession(FlickrRemoteServiceName, FlickrRemoteSessionProtocol::interface()), _queue(queue) {}

void FlickrServiceSession::received(const QVariantList &records, const RemoteMessage &message,
                                    const XPCTransferCompletion &reply) {
    _message = message;
    uploadPosts(records, reply);
    _message = {};
}

void FlickrServiceSession::uploadPosts(const QVariantList &posts, const XPCTransferCompletion &reply) {
    _queue.takeOver(flickrServiceID, posts, _message, reply);
}

} // namespace korvane
