#include "StandIn/FlickrService.h"

#include "StandIn/FlickrAnswer.h"
#include "StandIn/RequestBody.h"

namespace standin {

namespace {

const QByteArray Xml("text/xml; charset=utf-8");
const QByteArray UserId("12037949@N08");
constexpr qint64 AlbumsPerPage = 500;

bool isStored(const QByteArray &name) {
    static const QByteArrayList names{"title",     "description",  "tags",         "is_public", "is_friend",
                                      "is_family", "safety_level", "content_type", "hidden"};
    return names.contains(name);
}

} // namespace

FlickrService::FlickrService(ServiceContext &context)
    : _context(context), _check(credential(), {}, accessSecretsOf(context, credential())),
      _desk(context, _check, credential(),
            {.service = "Flickr",
             .path = "/services/oauth",
             .permission = "perms",
             .account = {{"fullname", "Stand In"}, {"user_nsid", UserId}, {"username", credential().username}},
             .refusal = "oauth_problem=user_refused"}) {}

void FlickrService::addRoutes(HttpServer &server) {
    _desk.addRoutes(server);
    const auto route = [this](auto serve) { return routeTo(*this, serve, _context); };
    server.Post("/services/upload/?", route(&FlickrService::_upload));
    server.Post("/services/rest/?", route(&FlickrService::_rest));
}

Credential FlickrService::credential() {
    return {"standin", "8e61b2c09d4f4b7e9c3a5d1f70aa26b4", "41d9c5be07f2a683", "72157720000000042-3f0c9d5e8b7a6142",
            "b6a1de9f02c47835"};
}

void FlickrService::_upload(Exchange &exchange) {
    exchange.begin("upload");
    RequestBody body(exchange.header("Content-Type"), _context.photos.receive(), _context.photoLimit);
    if (!exchange.readBody(body) || !exchange.passesFault()) return;
    if (const auto problem = _check.problem(exchange.signedRequest(body.parameters())))
        return exchange.answer(401, "text/plain", *problem);
    exchange.answer(200, Xml, _take(exchange, body));
}

QByteArray FlickrService::_take(Exchange &exchange, RequestBody &body) {
    if (!body.photoHeader()) return flickrFailure(2, "No photo specified");
    if (body.diskRefused()) return flickrFailure(3, "General upload failure");
    if (body.photo()->bytes() == 0) return flickrFailure(4, "Filesize was zero");
    if (body.photoIsTooLarge()) return flickrFailure(8, "Filesize was too big");
    if (body.photo()->imageType().isEmpty()) return flickrFailure(5, "Filetype was not recognised");

    Photo photo;
    photo.contentType = body.photoHeader()->contentType;
    for (const Parameter &parameter : exchange.parameters()) {
        if (isStored(parameter.first)) photo.parameters.append(parameter);
    }
    const qint64 id = _context.photos.add(*body.photo(), photo);
    if (id == 0) return flickrFailure(3, "General upload failure");
    exchange.notePhotoId(id);
    return flickrOk("<photoid>" + QByteArray::number(id) + "</photoid>");
}

void FlickrService::_rest(Exchange &exchange) {
    RequestBody body(exchange.header("Content-Type"), nullptr);
    if (!exchange.readBody(body)) return;
    const QByteArray method = valueOf(exchange.parameters(), "method");
    exchange.begin(method.split('.').last());
    if (!exchange.passesFault()) return;
    if (const auto problem = _check.problem(exchange.signedRequest(body.parameters())))
        return exchange.answer(401, "text/plain", *problem);
    exchange.answer(200, Xml, _call(method, exchange.parameters()));
}

QByteArray FlickrService::_call(const QByteArray &method, const Parameters &parameters) {
    if (method == "flickr.photosets.getList") return _listAlbums(parameters);
    if (method == "flickr.photosets.addPhoto") return _addPhoto(parameters);
    if (method == "flickr.test.login") return flickrLogin(UserId, credential().username);
    return flickrFailure(112, "Method \"" + method + "\" not found");
}

QByteArray FlickrService::_addPhoto(const Parameters &parameters) {
    const qint64 album = valueOf(parameters, "photoset_id").toLongLong();
    const qint64 photo = valueOf(parameters, "photo_id").toLongLong();
    switch (_context.photos.file(photo, album)) {
    case PhotoStore::Filing::NoAlbum:
        return flickrFailure(1, "Photoset not found");
    case PhotoStore::Filing::NoPhoto:
        return flickrFailure(2, "Photo not found");
    case PhotoStore::Filing::AlreadyThere:
        return flickrFailure(3, "Photo already in set");
    case PhotoStore::Filing::Done:
        break;
    }
    return flickrOk({});
}

QByteArray FlickrService::_listAlbums(const Parameters &parameters) {
    const qint64 page = valueOf(parameters, "page").toLongLong();
    const qint64 perPage = valueOf(parameters, "per_page").toLongLong();
    return flickrAlbumList(_context.photos.albums(), std::clamp(page, qint64(1), qint64(1'000'000)),
                           perPage > 0 ? std::min(perPage, AlbumsPerPage) : AlbumsPerPage);
}

} // namespace standin
