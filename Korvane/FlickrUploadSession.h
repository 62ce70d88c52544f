// Hands Flickr posts over to the upload service.
#pragma once

#include "Korvane/FlickrRemoteSessionProtocol.h"
#include "Platform/Foundation/NSError.h"

#include <memory>
#include <vector>

namespace korvane {

class FlickrPost;
class RemoteServiceProxy;

class FlickrUploadSession {
public:
    // One instance a process, made on the first call.
    static std::shared_ptr<FlickrUploadSession> sharedSession();
    // A client with a proxy of its own. No connection is tested here.
    static std::shared_ptr<FlickrUploadSession> init();

    // Blocks, without a time limit, until the service has replied. Returns what it replied; its error is placed also
    // when it replied YES. An empty batch is sent as it is.
    bool uploadPosts(const std::vector<std::shared_ptr<FlickrPost>> &posts, std::optional<NSError> *error = nullptr);

    // The id under which the service knows the last hand-over; empty before the first.
    QString lastMessageID() const;

    // Replaces the remote end. For tests.
    void setRemoteSession(std::shared_ptr<FlickrRemoteSessionProtocol> session) { _remoteSession = std::move(session); }

private:
    FlickrUploadSession() = default;
    std::shared_ptr<RemoteServiceProxy> _proxy;
    std::shared_ptr<FlickrRemoteSessionProtocol> _remoteSession;
};

} // namespace korvane
