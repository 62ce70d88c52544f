// Hands Flickr posts over to the upload service.
#include "Korvane/FlickrUploadSession.h"

#include "Korvane/FlickrPost.h"
#include "Platform/Social/RemoteServiceProxy.h"

namespace korvane {
namespace {

// The proxy as an object of the protocol.
class FlickrRemoteSession : public FlickrRemoteSessionProtocol {
public:
    explicit FlickrRemoteSession(std::shared_ptr<RemoteServiceProxy> proxy) : _proxy(std::move(proxy)) {}
    void uploadPosts(const QVariantList &posts, const XPCTransferCompletion &reply) override {
        _proxy->send(posts, reply);
    }

private:
    std::shared_ptr<RemoteServiceProxy> _proxy;
};

} // namespace

std::shared_ptr<FlickrUploadSession> FlickrUploadSession::sharedSession() {
    static const std::shared_ptr<FlickrUploadSession> session = init();
    return session;
}

std::shared_ptr<FlickrUploadSession> FlickrUploadSession::init() {
    const std::shared_ptr<FlickrUploadSession> session(new FlickrUploadSession);
    session->_proxy =
        std::make_shared<RemoteServiceProxy>(FlickrRemoteServiceName, FlickrRemoteSessionProtocol::interface());
    session->_remoteSession = std::make_shared<FlickrRemoteSession>(session->_proxy);
    return session;
}

bool FlickrUploadSession::uploadPosts(const std::vector<std::shared_ptr<FlickrPost>> &posts,
                                      std::optional<NSError> *error) {
    QVariantList dictionaries;
    for (const auto &post : posts)
        dictionaries.append(post->serializedDictionary());
    return waitForReply([&](const auto &reply) { _remoteSession->uploadPosts(dictionaries, reply); }, error);
}

QString FlickrUploadSession::lastMessageID() const {
    return _proxy->lastMessageID();
}

} // namespace korvane
