// The pages of a sign-in that a person sees.
#pragma once

#include <QByteArray>

namespace standin {

// Asks whether the application may use the account; answers with a POST of "oauth_token" and "decision" ("allow" or
// "refuse") to its own address.
QByteArray consentPage(const QByteArray &service, const QByteArray &username, const QByteArray &token);
// The code to type into the application.
QByteArray codePage(const QByteArray &service, const QByteArray &code);
QByteArray messagePage(const QByteArray &service, const QByteArray &message);

} // namespace standin
