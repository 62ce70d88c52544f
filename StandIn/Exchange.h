// One request to a service and its answer, with the faults planned for it.
#pragma once

#include "StandIn/BodyReader.h"
#include "StandIn/Connection.h"
#include "StandIn/Faults.h"
#include "StandIn/Gate.h"
#include "StandIn/OAuthCheck.h"
#include "StandIn/PhotoStore.h"
#include "StandIn/ProtocolErrors.h"
#include "StandIn/RequestLog.h"
#include "StandIn/TokenStore.h"
#include "StandIn/VideoStore.h"

#include <atomic>

namespace standin {

// What the services share. Everything in it may be used from any thread.
struct ServiceContext {
    ServiceContext(bool keepRequests, qint64 largestPhoto) : log(keepRequests), photoLimit(largestPhoto) {}

    PhotoStore photos;
    VideoStore videos;
    RequestLog log;
    ProtocolErrors protocolErrors;
    TokenStore tokens;
    Faults faults;
    Gate gate;
    std::atomic<qint64> delay = 0; // milliseconds before each answer
    const qint64 photoLimit;       // bytes

    // Of what the page shows; grows with every change.
    qint64 revision() const { return photos.revision() + videos.revision(); }
    // Ends all that was planned, the weather, and a quota that was told.
    void clear() {
        faults.clear();
        videos.setQuota(std::nullopt);
    }
};

class Exchange {
public:
    Exchange(ServiceContext &context, const httplib::Request &request, httplib::Response &response,
             Connection &connection);
    ~Exchange();

    // Takes the next fault planned for the operation, or what the weather brings.
    void begin(const QByteArray &operation);
    const Fault &fault() const { return _fault; }
    // Reads the body to its end. False when there is nothing left to do: the connection broke or was to be broken, or
    // the body was refused (and that was answered).
    bool readBody(BodyReader &body);
    // Carries out a fault that comes before the service's work. False when there is nothing left to do.
    bool passesFault();
    void answer(int status, const QByteArray &contentType, const QByteArray &body);
    // Goes out with the answer.
    void setHeader(const char *name, const QByteArray &value);
    // Answers what no correct client sends, and notes that.
    void refuse(int status, const QByteArray &problem);

    // An empty value when there is no such header.
    QByteArray header(const char *name) const;
    // As the Content-Length says; nothing when it says none, or not clearly.
    std::optional<qint64> bodyLength() const;
    const QByteArray &method() const { return _record.method; }
    // Path and query as they stand in the request line.
    QByteArray target() const { return QByteArray::fromStdString(_request.target); }
    // All headers, sorted by name.
    const Parameters &headers() const { return _record.headers; }
    SignedRequest signedRequest(const Parameters &body) const;
    // Query parameters first, then the body's.
    const Parameters &parameters() const { return _record.parameters; }
    void notePhotoId(qint64 id) { _record.photoId = id; }

private:
    void _sendHalf(int status, const QByteArray &contentType, const QByteArray &body);
    void _drop();

    ServiceContext &_context;
    const httplib::Request &_request;
    httplib::Response &_response;
    Connection &_connection;
    Request _record;
    const size_t _recordIndex;
    Fault _fault;
    BodyReader *_body = nullptr;
};

// A route on which a service's function serves each request.
template <typename Service>
auto routeTo(Service &service, void (Service::*serve)(Exchange &), ServiceContext &context) {
    return [&service, serve, &context](const httplib::Request &request, httplib::Response &response,
                                       const httplib::ContentReader &) {
        Exchange exchange(context, request, response, *Connection::current());
        (service.*serve)(exchange);
    };
}

} // namespace standin
