// The Flickr half: upload and REST endpoints as far as sharing photos needs them.
#pragma once

#include "StandIn/Exchange.h"
#include "StandIn/HttpServer.h"
#include "StandIn/OAuthCheck.h"
#include "StandIn/SignInDesk.h"

namespace standin {

class RequestBody;

// Thread: any, once the routes are added. Must outlive the server.
class FlickrService {
public:
    explicit FlickrService(ServiceContext &context);

    void addRoutes(HttpServer &server);

    // The one user there is.
    static Credential credential();

private:
    void _upload(Exchange &exchange);
    QByteArray _take(Exchange &exchange, RequestBody &body);
    void _rest(Exchange &exchange);
    QByteArray _call(const QByteArray &method, const Parameters &parameters);
    QByteArray _addPhoto(const Parameters &parameters);
    QByteArray _listAlbums(const Parameters &parameters);

    ServiceContext &_context;
    OAuthCheck _check;
    SignInDesk _desk;
};

} // namespace standin
