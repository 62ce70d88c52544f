// A web service as sign-ins see it.
#include "Platform/Accounts/SignInService.h"

#include "Platform/Preferences/KorvaneSettings.h"

#include <QUrl>

namespace korvane {
namespace {

NSURL url(const QString &text) {
    return *NSURL::URLWithString(text); // hosts are checked where they are read
}

} // namespace

std::optional<SignInService> SignInService::serviceOf(const ACAccountType &type) {
    if (type.identifier() == ACAccountTypeIdentifierFlickr) {
        const QString base = KorvaneSettings::flickrSignInHost() + QStringLiteral("/services/oauth/");
        return SignInService{type.serviceName(), url(base + QStringLiteral("request_token")),
                             url(base + QStringLiteral("access_token")), std::nullopt,
                             base + QStringLiteral("authorize?perms=write")};
    }
    if (type.identifier() != ACAccountTypeIdentifierVimeo) return std::nullopt;
    const QString base = KorvaneSettings::vimeoSignInHost();
    return SignInService{type.serviceName(), url(base + QStringLiteral("/oauth/request_token")),
                         url(base + QStringLiteral("/oauth/access_token")),
                         url(base + QStringLiteral("/api/rest/v2?format=json")),
                         base + QStringLiteral("/oauth/authorize?permission=write")};
}

NSURL SignInService::authorizationURL(const QString &requestToken) const {
    return url(authorizationAddress + QStringLiteral("&oauth_token=") +
               QString::fromLatin1(QUrl::toPercentEncoding(requestToken)));
}

} // namespace korvane
