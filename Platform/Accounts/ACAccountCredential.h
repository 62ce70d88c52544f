// What signs an account's requests.
#pragma once

#include <QString>

namespace korvane {

// OAuth 1.0a: the application's key pair and the person's token pair. All four are secrets and never logged.
struct ACAccountCredential {
    QString consumerKey;
    QString consumerSecret;
    QString token;
    QString tokenSecret;

    friend bool operator==(const ACAccountCredential &, const ACAccountCredential &) = default;
};

} // namespace korvane
