// The upload service's end of the Vimeo hand-over.
#pragma once

#include "Korvane/KRRemoteSession.h"
#include "Korvane/VimeoRemoteSessionProtocol.h"

namespace korvane {

class UploadQueue;

class VimeoServiceSession : public KRRemoteSession, public VimeoRemoteSessionProtocol {
    Q_OBJECT
public:
    explicit VimeoServiceSession(UploadQueue &queue);

    void uploadPost(const QVariantMap &post, const XPCTransferCompletion &reply) override;

protected:
    void received(const QVariantList &records, const RemoteMessage &message,
                  const XPCTransferCompletion &reply) override;

private:
    UploadQueue &_queue;
    RemoteMessage _message; // the one whose post is being handed on
};

} // namespace korvane
