// An error: a domain, a code within it, and optional details.
#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

namespace korvane {

extern const QString NSLocalizedDescriptionKey;
extern const QString NSURLErrorDomain;
extern const QString NSPOSIXErrorDomain; // codes are errno values
extern const QString NSCocoaErrorDomain;

// Codes of NSURLErrorDomain that the URL send makes; the TLS codes run from -1200 to -1206.
enum NSURLErrorCode : qint64 {
    NSURLErrorUnknown = -1,
    NSURLErrorCancelled = -999,
    NSURLErrorTimedOut = -1001,
    NSURLErrorCannotFindHost = -1003,
    NSURLErrorCannotConnectToHost = -1004,
    NSURLErrorNetworkConnectionLost = -1005,
    NSURLErrorNotConnectedToInternet = -1009,
    NSURLErrorBadServerResponse = -1011,
    NSURLErrorDataLengthExceedsMaximum = -1103,
    NSURLErrorSecureConnectionFailed = -1200,
    NSURLErrorServerCertificateHasBadDate = -1201,
    NSURLErrorServerCertificateUntrusted = -1202,
    NSURLErrorServerCertificateHasUnknownRoot = -1203,
    NSURLErrorClientCertificateRequired = -1206,
};

class NSError {
public:
    NSError(QString domain, qint64 code, QVariantMap userInfo = {})
        : _domain(std::move(domain)), _code(code), _userInfo(std::move(userInfo)) {}

    static NSError errorWithDescription(const QString &domain, qint64 code, const QString &description);
    // NSPOSIXErrorDomain with the code; the description says what was tried on what and why it failed.
    static NSError errorWithErrno(int code, const QString &what);

    const QString &domain() const { return _domain; }
    qint64 code() const { return _code; }
    const QVariantMap &userInfo() const { return _userInfo; }

    // The text for people: the one in userInfo, else one made of domain and code.
    QString localizedDescription() const;
    // The text for logs: domain, code and description.
    QString description() const;

    friend bool operator==(const NSError &, const NSError &) = default;

private:
    QString _domain;
    qint64 _code;
    QVariantMap _userInfo;
};

// Stores an error where the caller gave a place for it.
inline void setError(std::optional<NSError> *place, std::optional<NSError> error) {
    if (place) *place = std::move(error);
}

} // namespace korvane
