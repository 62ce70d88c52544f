// Hands a Vimeo post over to the upload service.
#include "Korvane/VimeoUploadSession.h"

#include "Korvane/VimeoPost.h"
#include "Platform/Foundation/KRAssert.h"
#include "Platform/Social/RemoteServiceProxy.h"

namespace korvane {
namespace {

// The proxy as an object of the protocol.
class VimeoRemoteSession : public VimeoRemoteSessionProtocol {
public:
    explicit VimeoRemoteSession(std::shared_ptr<RemoteServiceProxy> proxy) : _proxy(std::move(proxy)) {}
    void uploadPost(const QVariantMap &post, const XPCTransferCompletion &reply) override {
        _proxy->send({post}, reply);
    }

private:
    std::shared_ptr<RemoteServiceProxy> _proxy;
};

} // namespace

std::shared_ptr<VimeoUploadSession> VimeoUploadSession::sharedSession() {
    static const std::shared_ptr<VimeoUploadSession> session = init();
    return session;
}

std::shared_ptr<VimeoUploadSession> VimeoUploadSession::init() {
    const std::shared_ptr<VimeoUploadSession> session(new VimeoUploadSession);
    session->_proxy =
        std::make_shared<RemoteServiceProxy>(VimeoRemoteServiceName, VimeoRemoteSessionProtocol::interface());
    session->_remoteSession = std::make_shared<VimeoRemoteSession>(session->_proxy);
    return session;
}

bool VimeoUploadSession::uploadPost(const std::shared_ptr<VimeoPost> &post, std::optional<NSError> *error) {
    KRAssert(_remoteSession != nullptr, "_remoteSession", "-[VimeoUploadSession uploadPost:error:]",
             "Korvane/VimeoUploadSession", 53);
    return waitForReply([&](const auto &reply) { _remoteSession->uploadPost(post->serializedDictionary(), reply); },
                        error);
}

QString VimeoUploadSession::lastMessageID() const {
    return _proxy->lastMessageID();
}

} // namespace korvane
