// One request to a service and its answer, with the faults planned for it.
#pragma once

#include "StandIn/Connection.h"
#include "StandIn/Faults.h"
#include "StandIn/Gate.h"
#include "StandIn/OAuthCheck.h"
#include "StandIn/PhotoStore.h"
#include "StandIn/RequestBody.h"
#include "StandIn/RequestLog.h"

#include <atomic>

namespace standin {

// What the services share. Everything in it may be used from any thread.
struct ServiceContext {
    ServiceContext(bool keepRequests, qint64 largestPhoto) : log(keepRequests), photoLimit(largestPhoto) {}

    PhotoStore store;
    RequestLog log;
    Faults faults;
    Gate gate;
    std::atomic<qint64> delay = 0; // milliseconds before each answer
    const qint64 photoLimit;       // bytes
};

class Exchange {
public:
    Exchange(ServiceContext &context, const httplib::Request &request, httplib::Response &response,
             Connection &connection);
    ~Exchange();

    // Takes the next fault planned for the operation.
    void begin(const QByteArray &operation);
    // Reads the body to its end. False when there is nothing left to do: the connection broke or was to be broken, or
    // the body was refused (and that was answered).
    bool readBody(RequestBody &body);
    // Carries out a fault that comes before the service's work. False when there is nothing left to do.
    bool passesFault();
    void answer(int status, const QByteArray &contentType, const QByteArray &body);

    // An empty value when there is no such header.
    QByteArray header(const char *name) const;
    SignedRequest signedRequest(const Parameters &body) const;
    // Query parameters first, then the body's.
    const Parameters &parameters() const { return _record.parameters; }
    void notePhotoId(qint64 id) { _record.photoId = id; }

private:
    std::optional<qint64> _contentLength() const;
    void _noteBody(const RequestBody &body);
    void _sendHalf(int status, const QByteArray &contentType, const QByteArray &body);
    void _drop();

    ServiceContext &_context;
    const httplib::Request &_request;
    httplib::Response &_response;
    Connection &_connection;
    Request _record;
    const size_t _recordIndex;
    Fault _fault;
    RequestBody *_body = nullptr;
};

} // namespace standin
