// Web services on the loopback interface that take photos and videos as the real ones do and can be told to fail.
#pragma once

#include "StandIn/Faults.h"
#include "StandIn/OAuthCheck.h"
#include "StandIn/PhotoStore.h"
#include "StandIn/RequestLog.h"
#include "StandIn/VideoStore.h"

#include <QTemporaryDir>

#include <chrono>
#include <memory>
#include <thread>
#include <vector>

namespace standin {

class FlickrService;
class HttpServer;
class VimeoService;
struct ServiceContext;

struct StandInOptions {
    int port = 0;             // 0: any free one
    QString stateFolder = {}; // empty: a temporary one, removed at the end
    int albums = 3;           // from the start, at least the three named ones
    bool keepBodies = true;   // false: photos and videos are counted but not stored; no path, no SHA-256
    bool keepRequests = true; // false: requests() stays empty
    std::chrono::milliseconds delay{0};
    qint64 photoLimit = 200 * 1024 * 1024; // bytes; larger photos are refused with error 8
};

// Thread: any, except start() and stop(), which belong to one thread.
class StandIn {
public:
    explicit StandIn(const StandInOptions &options = {});
    ~StandIn(); // stops

    StandIn(const StandIn &) = delete;
    StandIn &operator=(const StandIn &) = delete;

    // False with a reason when the state or the port cannot be had. After stop() it may be started again: same port,
    // same state.
    bool start(QString *error = nullptr);
    // Breaks off all connections.
    void stop();

    // "http://127.0.0.1:PORT", without a slash at the end.
    QString url() const;
    // Of the one user that each half knows. Its key pair is that of the only application; sign-ins give further tokens.
    static Credential flickrCredential();
    static Credential vimeoCredential();
    // A video_id that exists and belongs to another user.
    static QByteArray foreignVideoId();

    // "request_token" and "access_token" of a sign-in, "upload" for photos' upload endpoint, "chunk" and "verify" for a
    // ticket's, else the last word of a REST method: "getList", "addPhoto", "login", "getQuota", "getTicket",
    // "complete", "setTitle", "setDescription", "addTags", "setPrivacy".
    FaultQueue &on(const QByteArray &operation);
    // For all requests that no fault is planned for.
    void weather(const Weather &weather);
    // What a quota request is told; nothing: the truth again.
    void quota(const std::optional<Quota> &quota);
    // Before each answer of a service.
    void delay(std::chrono::milliseconds time);
    // Lets all requests go on that hang now.
    void release();
    // Ends faults, weather and a told quota.
    void clearFaults();

    // All so far, in the order of arrival; SHA-256 is computed here.
    std::vector<Request> requests() const;
    size_t countOfAnsweredRequests() const;
    std::vector<Photo> photos() const;
    std::vector<Album> albums() const;
    // From their tickets on.
    std::vector<Video> videos() const;
    // The requests that no correct client sends, a line each.
    QStringList protocolErrors() const;

private:
    bool _openState(QString *error);
    void _addRoutes();

    const StandInOptions _options;
    std::unique_ptr<QTemporaryDir> _temporary;
    std::unique_ptr<ServiceContext> _context;
    std::unique_ptr<FlickrService> _flickr;
    std::unique_ptr<VimeoService> _vimeo;
    std::unique_ptr<HttpServer> _server;
    std::thread _thread;
    bool _stateIsOpen = false;
    int _port = 0;
};

} // namespace standin
