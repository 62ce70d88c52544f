// The upload service's end of the Vimeo hand-over.
#include "Service/VimeoServiceSession.h"

#include "Service/UploadQueue.h"

namespace korvane {

VimeoServiceSession::VimeoServiceSession(UploadQueue &queue)
    : KRRemoteSession(VimeoRemoteServiceName, VimeoRemoteSessionProtocol::interface()), _queue(queue) {}

void VimeoServiceSession::received(const QVariantList &records, const RemoteMessage &message,
                                   const XPCTransferCompletion &reply) {
    _message = message;
    uploadPost(records.value(0).toMap(), reply);
    _message = {};
}

void VimeoServiceSession::uploadPost(const QVariantMap &post, const XPCTransferCompletion &reply) {
    _queue.takeOver(vimeoServiceID, {post}, _message, reply);
}

} // namespace korvane
