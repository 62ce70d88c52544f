// A web service as sign-ins see it.
#pragma once

#include "Platform/Accounts/ACAccountType.h"
#include "Platform/Foundation/NSURL.h"

#include <optional>

namespace korvane {

// The endpoints of OAuth 1.0a as the services document them, at the hosts of KorvaneSettings.
struct SignInService {
    QString name; // for people
    NSURL requestTokenURL;
    NSURL accessTokenURL;
    // Takes the method "vimeo.test.login"; null where the access token's answer tells the user name.
    std::optional<NSURL> loginURL;
    QString authorizationAddress; // without the token

    // Null for a type that no web service of ours has.
    static std::optional<SignInService> serviceOf(const ACAccountType &type);
    // Where the person allows Korvane to write.
    NSURL authorizationURL(const QString &requestToken) const;
};

} // namespace korvane
