// Web services on the loopback interface that take photos as the real ones do and can be told to fail.
#pragma once

#include "StandIn/Faults.h"
#include "StandIn/OAuthCheck.h"
#include "StandIn/PhotoStore.h"
#include "StandIn/RequestLog.h"

#include <QTemporaryDir>

#include <chrono>
#include <memory>
#include <thread>
#include <vector>

namespace standin {

class FlickrService;
class HttpServer;
struct ServiceContext;

struct StandInOptions {
    int port = 0;             // 0: any free one
    QString stateFolder = {}; // empty: a temporary one, removed at the end
    int albums = 3;           // from the start, at least the three named ones
    bool keepBodies = true;   // false: photos are counted but not stored, and have neither path nor SHA-256
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
    // Of the one user that the Flickr half knows.
    static Credential flickrCredential();

    // "upload" for the upload endpoint, else the last word of a REST method: "getList", "addPhoto", "login".
    FaultQueue &on(const QByteArray &operation);
    // Before each answer of a service.
    void delay(std::chrono::milliseconds time);
    // Lets all requests go on that hang now.
    void release();
    void clearFaults();

    // All so far, in the order of arrival; SHA-256 is computed here.
    std::vector<Request> requests() const;
    std::vector<Photo> photos() const;
    std::vector<Album> albums() const;

private:
    bool _openState(QString *error);
    void _addRoutes();

    const StandInOptions _options;
    std::unique_ptr<QTemporaryDir> _temporary;
    std::unique_ptr<ServiceContext> _context;
    std::unique_ptr<FlickrService> _flickr;
    std::unique_ptr<HttpServer> _server;
    std::thread _thread;
    bool _stateIsOpen = false;
    int _port = 0;
};

} // namespace standin
