// The Vimeo half: the REST methods and the tickets' endpoint as far as sharing a video needs them.
#pragma once

#include "StandIn/Exchange.h"
#include "StandIn/HttpServer.h"
#include "StandIn/OAuthCheck.h"
#include "StandIn/SignInDesk.h"

namespace standin {

class ChunkBody;

// Thread: any, once the routes are added. Must outlive the server.
class VimeoService {
public:
    explicit VimeoService(ServiceContext &context);

    void addRoutes(HttpServer &server);

    // The one user there is.
    static Credential credential();
    // A video that exists and belongs to somebody else.
    static QByteArray foreignVideoId();

private:
    void _rest(Exchange &exchange);
    QByteArray _call(const Exchange &exchange);
    QByteArray _quota();
    QByteArray _ticket(const Exchange &exchange);
    QByteArray _commit(const Exchange &exchange);
    QByteArray _change(const Exchange &exchange, const char *parameter,
                       const std::function<void(Video &, const QString &)> &change);

    void _put(Exchange &exchange);
    void _chunk(Exchange &exchange);
    bool _accept(Exchange &exchange, ChunkBody &body);
    void _verify(Exchange &exchange);
    std::optional<PutHead> _head(Exchange &exchange);
    bool _isSigned(Exchange &exchange, const Parameters &form);

    ServiceContext &_context;
    OAuthCheck _check;
    SignInDesk _desk;
};

} // namespace standin
