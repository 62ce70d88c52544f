// Reads a multipart/form-data body piece by piece (RFC 7578), strictly: every deviation is an error, nothing is
// guessed.
#pragma once

#include <QByteArray>

#include <optional>

namespace standin {

struct PartHeader {
    QByteArray name;
    std::optional<QByteArray> fileName;
    QByteArray contentType; // empty when the part has none
};

// Receives the parts in the order sent: began, data (any number of times), ended. Returning false refuses the body;
// the reader then reports `refusal()`.
class PartReceiver {
public:
    virtual ~PartReceiver() = default;
    virtual bool partBegan(const PartHeader &header) = 0;
    virtual bool partData(const char *data, qsizetype size) = 0;
    virtual bool partEnded() = 0;
    virtual QByteArray refusal() const = 0;
};

// Thread: one at a time.
class MultipartReader {
public:
    MultipartReader(const QByteArray &boundary, PartReceiver &receiver);

    // False from the first error on; further data is then ignored.
    bool feed(const char *data, qsizetype size);
    // To be called when the body has ended; false unless it ended right after the final boundary.
    bool finish();
    // Empty as long as all is well.
    QByteArray error() const { return _error; }

    // The boundary of a Content-Type header's value; nothing when it is not multipart/form-data with a legal boundary.
    static std::optional<QByteArray> boundaryOf(const QByteArray &contentType);

private:
    enum class State { Start, AfterDelimiter, Header, Data, Closing, Done };

    qsizetype _take(const char *data, qsizetype size);
    qsizetype _step(const char *data, qsizetype size);
    qsizetype _start(const char *data, qsizetype size);
    qsizetype _afterDelimiter(const char *data, qsizetype size);
    qsizetype _header(const char *data, qsizetype size);
    qsizetype _data(const char *data, qsizetype size);
    qsizetype _closing(const char *data, qsizetype size);
    bool _parseHeader(const QByteArray &block, PartHeader *header);
    bool _parseDisposition(const QByteArray &value, PartHeader *header);
    bool _deliver(const char *data, qsizetype size);
    qsizetype _refuse(const QByteArray &reason);

    const QByteArray _delimiter; // CRLF, two hyphens, boundary
    PartReceiver &_receiver;
    State _state = State::Start;
    QByteArray _carry; // bytes that cannot be judged before more arrive
    QByteArray _error;
};

} // namespace standin
