#include "StandIn/StandIn.h"

#include "StandIn/Control.h"
#include "StandIn/FlickrService.h"
#include "StandIn/Page.h"
#include "StandIn/StateJson.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <fstream>

namespace standin {

namespace {

const char *const Json = "application/json; charset=utf-8";

void sendPhoto(const PhotoStore &store, const httplib::Request &request, httplib::Response &response) {
    const auto photo = store.photo(QByteArray::fromStdString(request.matches[1]).toLongLong());
    auto file = std::make_shared<std::ifstream>();
    if (photo && !photo->path.isEmpty()) file->open(photo->path.toStdString(), std::ios::binary);
    if (!file->is_open()) {
        response.status = 404;
        return response.set_content("No such photo.\n", "text/plain");
    }
    response.set_header("Content-Security-Policy", "default-src 'none'; sandbox");
    response.set_header("Cache-Control", "private, max-age=86400");
    const auto provide = [file](size_t offset, size_t length, httplib::DataSink &sink) {
        std::string piece(std::min(length, size_t(256 * 1024)), '\0');
        file->clear();
        file->seekg(std::streamoff(offset));
        file->read(piece.data(), std::streamsize(piece.size()));
        return file->gcount() > 0 && sink.write(piece.data(), size_t(file->gcount()));
    };
    response.set_content_provider(size_t(photo->bytes), photo->imageType.toStdString(), provide);
}

void takePlan(ServiceContext &context, const httplib::Request &request, httplib::Response &response) {
    // A web page in the user's browser must not steer the stand-in.
    const std::string own = "http://" + request.get_header_value("Host");
    const bool foreign = request.has_header("Origin") && request.get_header_value("Origin") != own;
    const QString error = foreign ? QStringLiteral("requests of other pages are refused")
                                  : plan(context, QByteArray::fromStdString(request.body));
    response.status = foreign ? 403 : error.isEmpty() ? 200 : 400;
    const QJsonObject answer =
        error.isEmpty() ? QJsonObject{{QStringLiteral("ok"), true}} : QJsonObject{{QStringLiteral("error"), error}};
    response.set_content(QJsonDocument(answer).toJson(QJsonDocument::Compact).toStdString() + "\n", Json);
}

} // namespace

StandIn::StandIn(const StandInOptions &options)
    : _options(options), _context(new ServiceContext(options.keepRequests, options.photoLimit)), _port(options.port) {
    _context->delay = options.delay.count();
    _flickr = std::make_unique<FlickrService>(*_context);
}

StandIn::~StandIn() {
    stop();
}

bool StandIn::start(QString *error) {
    QString ignored;
    if (!_stateIsOpen && !_openState(error ? error : &ignored)) return false;
    _stateIsOpen = true;
    _server = std::make_unique<HttpServer>();
    _addRoutes();
    const int port = _server->bindToLoopback(_port);
    if (port == 0) {
        if (error) *error = QStringLiteral("port %1 on 127.0.0.1 cannot be had: %2").arg(_port).arg(qt_error_string());
        _server.reset();
        return false;
    }
    _port = port;
    _context->gate.open();
    _thread = std::thread([server = _server.get()] { server->listen_after_bind(); });
    // Stopping a server that does not run yet would be lost.
    while (!_server->is_running())
        std::this_thread::yield();
    return true;
}

void StandIn::stop() {
    if (!_server) return;
    _context->gate.close();
    _server->closeConnections();
    _server->stop();
    _thread.join();
    _server.reset();
}

QString StandIn::url() const {
    return QStringLiteral("http://127.0.0.1:%1").arg(_port);
}

Credential StandIn::flickrCredential() {
    return FlickrService::credential();
}

FaultQueue &StandIn::on(const QByteArray &operation) {
    return _context->faults.on(operation);
}

void StandIn::delay(std::chrono::milliseconds time) {
    _context->delay = time.count();
}

void StandIn::release() {
    _context->gate.release();
}

void StandIn::clearFaults() {
    _context->faults.clear();
}

std::vector<Request> StandIn::requests() const {
    std::vector<Request> requests = _context->log.requests();
    for (Request &request : requests) {
        if (request.photoId != 0) request.photoSha256 = _context->store.sha256(request.photoId);
    }
    return requests;
}

std::vector<Photo> StandIn::photos() const {
    std::vector<Photo> photos = _context->store.photos();
    for (Photo &photo : photos)
        photo.sha256 = _context->store.sha256(photo.id);
    return photos;
}

std::vector<Album> StandIn::albums() const {
    return _context->store.albums();
}

bool StandIn::_openState(QString *error) {
    QString folder = _options.stateFolder;
    if (folder.isEmpty()) {
        _temporary = std::make_unique<QTemporaryDir>();
        folder = _temporary->path();
        if (!_temporary->isValid()) {
            *error = _temporary->errorString();
            return false;
        }
    }
    return _context->store.open(folder, _options.albums, _options.keepBodies, error);
}

void StandIn::_addRoutes() {
    using httplib::Request;
    using httplib::Response;
    _flickr->addRoutes(*_server);
    _server->set_default_headers({{"X-Content-Type-Options", "nosniff"}});
    PhotoStore &store = _context->store;
    _server->Get("/", [&](const Request &, Response &response) {
        response.set_header("Content-Security-Policy", pagePolicy().toStdString());
        response.set_content(page(store).toStdString(), "text/html; charset=utf-8");
    });
    _server->Get("/photos/(\\d{1,18})",
                 [&](const Request &request, Response &response) { sendPhoto(store, request, response); });
    _server->Get("/api/state", [&](const Request &, Response &response) {
        response.set_content(stateJson(store).toStdString(), Json);
    });
    _server->Get("/api/revision", [&](const Request &, Response &response) {
        response.set_content(std::to_string(store.revision()) + "\n", "text/plain");
    });
    _server->Post("/control/faults",
                  [this](const Request &request, Response &response) { takePlan(*_context, request, response); });
}

} // namespace standin
