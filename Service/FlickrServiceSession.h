// The upload service's end of the Flickr hand-over.
#pragma once

#include "Korvane/FlickrRemoteSessionProtocol.h"
#include "Korvane/KRRemoteSession.h"

namespace korvane {

class UploadQueue;

class FlickrServiceSession : public KRRemoteSession, public FlickrRemoteSessionProtocol {
    Q_OBJECT
public:
    explicit FlickrServiceSession(UploadQueue &queue);

    void uploadPosts(const QVariantList &posts, const XPCTransferCompletion &reply) override;

protected:
    void received(const QVariantList &records, const RemoteMessage &message,
                  const XPCTransferCompletion &reply) override;

private:
    UploadQueue &_queue;
    RemoteMessage _message; // the one whose posts are being handed on
};

} // namespace korvane
