#include "StandIn/StandIn.h"

#include "StandIn/Control.h"
#include "StandIn/FlickrService.h"
#include "StandIn/Page.h"
#include "StandIn/StateJson.h"
#include "StandIn/VimeoService.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <fstream>

namespace standin {

namespace {

const char *const Json = "application/json; charset=utf-8";

void notFound(httplib::Response &response, const char *what) {
    response.status = 404;
    response.set_content(what, "text/plain");
}

// The HTTP library takes care of ranges.
void sendFile(const QString &path, qint64 bytes, const QByteArray &type, httplib::Response &response) {
    auto file = std::make_shared<std::ifstream>(path.toStdString(), std::ios::binary);
    if (!file->is_open()) return notFound(response, "The file is gone.\n");
    response.set_header("Content-Security-Policy", "default-src 'none'; sandbox");
    response.set_header("Cache-Control", "private, max-age=86400");
    const auto provide = [file](size_t offset, size_t length, httplib::DataSink &sink) {
        std::string piece(std::min(length, size_t(256 * 1024)), '\0');
        file->clear();
        file->seekg(std::streamoff(offset));
        file->read(piece.data(), std::streamsize(piece.size()));
        return file->gcount() > 0 && sink.write(piece.data(), size_t(file->gcount()));
    };
    response.set_content_provider(size_t(bytes), type.toStdString(), provide);
}

qint64 idIn(const httplib::Request &request) {
    return QByteArray::fromStdString(request.matches[1]).toLongLong();
}

void sendPhoto(const PhotoStore &store, const httplib::Request &request, httplib::Response &response) {
    const auto photo = store.photo(idIn(request));
    if (!photo || photo->path.isEmpty()) return notFound(response, "No such photo.\n");
    sendFile(photo->path, photo->bytes, photo->imageType, response);
}

void sendVideo(const VideoStore &store, const httplib::Request &request, httplib::Response &response) {
    const auto video = store.video(idIn(request));
    if (!video || video->path.isEmpty()) return notFound(response, "No such video.\n");
    sendFile(video->path, video->bytesStored, "video/mp4", response);
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
    _vimeo = std::make_unique<VimeoService>(*_context);
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

Credential StandIn::vimeoCredential() {
    return VimeoService::credential();
}

QByteArray StandIn::foreignVideoId() {
    return VimeoService::foreignVideoId();
}

FaultQueue &StandIn::on(const QByteArray &operation) {
    return _context->faults.on(operation);
}

void StandIn::weather(const Weather &weather) {
    _context->faults.setWeather(weather);
}

void StandIn::quota(const std::optional<Quota> &quota) {
    _context->videos.setQuota(quota);
}

void StandIn::delay(std::chrono::milliseconds time) {
    _context->delay = time.count();
}

void StandIn::release() {
    _context->gate.release();
}

void StandIn::clearFaults() {
    _context->clear();
}

std::vector<Request> StandIn::requests() const {
    std::vector<Request> requests = _context->log.requests();
    for (Request &request : requests) {
        if (request.photoId != 0) request.photoSha256 = _context->photos.sha256(request.photoId);
    }
    return requests;
}

size_t StandIn::countOfAnsweredRequests() const {
    return _context->log.countOfAnswered();
}

std::vector<Photo> StandIn::photos() const {
    std::vector<Photo> photos = _context->photos.photos();
    for (Photo &photo : photos)
        photo.sha256 = _context->photos.sha256(photo.id);
    return photos;
}

std::vector<Album> StandIn::albums() const {
    return _context->photos.albums();
}

std::vector<Video> StandIn::videos() const {
    std::vector<Video> videos = _context->videos.videos();
    for (Video &video : videos)
        video.sha256 = _context->videos.sha256(video.ticketId);
    return videos;
}

QStringList StandIn::protocolErrors() const {
    return _context->protocolErrors.all();
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
    return _context->photos.open(folder, _options.albums, _options.keepBodies, error) &&
           _context->videos.open(folder, _options.keepBodies, error) && _context->protocolErrors.open(folder, error) &&
           _context->tokens.open(folder, error);
}

void StandIn::_addRoutes() {
    using httplib::Request;
    using httplib::Response;
    _flickr->addRoutes(*_server);
    _vimeo->addRoutes(*_server);
    _server->set_default_headers({{"X-Content-Type-Options", "nosniff"}});
    ServiceContext &context = *_context;
    _server->Get("/", [&](const Request &, Response &response) {
        response.set_header("Content-Security-Policy", pagePolicy().toStdString());
        response.set_content(page(context).toStdString(), "text/html; charset=utf-8");
    });
    _server->Get("/photos/(\\d{1,18})",
                 [&](const Request &request, Response &response) { sendPhoto(context.photos, request, response); });
    _server->Get("/videos/(\\d{1,18})",
                 [&](const Request &request, Response &response) { sendVideo(context.videos, request, response); });
    _server->Get("/api/state", [&](const Request &, Response &response) {
        response.set_content(stateJson(context).toStdString(), Json);
    });
    _server->Get("/api/revision", [&](const Request &, Response &response) {
        response.set_content(std::to_string(context.revision()) + "\n", "text/plain");
    });
    _server->Post("/control/faults",
                  [&](const Request &request, Response &response) { takePlan(context, request, response); });
}

} // namespace standin
