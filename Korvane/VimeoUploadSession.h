// Hands a Vimeo post over to the upload service.
#pragma once

#include "Korvane/VimeoRemoteSessionProtocol.h"
#include "Platform/Foundation/NSError.h"

#include <memory>

namespace korvane {

class RemoteServiceProxy;
class VimeoPost;

class VimeoUploadSession {
public:
    // One instance a process, made on the first call.
    static std::shared_ptr<VimeoUploadSession> sharedSession();
    // A client with a proxy of its own. No connection is tested here.
    static std::shared_ptr<VimeoUploadSession> init();

    // Blocks, without a time limit, until the service has replied. Returns what it replied; its error is placed also
    // when it replied YES.
    bool uploadPost(const std::shared_ptr<VimeoPost> &post, std::optional<NSError> *error = nullptr);

    // The id under which the service knows the last hand-over; empty before the first.
    QString lastMessageID() const;

    // Replaces the remote end; without one an upload stops the process. For tests.
    void setRemoteSession(std::shared_ptr<VimeoRemoteSessionProtocol> session) { _remoteSession = std::move(session); }

private:
    VimeoUploadSession() = default;
    std::shared_ptr<RemoteServiceProxy> _proxy;
    std::shared_ptr<VimeoRemoteSessionProtocol> _remoteSession;
};

} // namespace korvane
