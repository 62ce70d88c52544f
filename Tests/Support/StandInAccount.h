// The stand-in as the web services of a test, with an account of each.
#pragma once

#include "Platform/Accounts/ACAccountStore.h"
#include "StandIn/StandIn.h"
#include "Tests/Support/TemporaryHome.h"

#include <memory>

namespace korvane::test {

// Starts a stand-in, lets the environment point at it, and stores the accounts of its users.
class StandInAccount {
public:
    explicit StandInAccount(TemporaryHome &home, standin::StandInOptions options = {}) : server(options) {
        if (!server.start()) qFatal("the stand-in did not start");
        home.setEnvironment("KORVANE_FLICKR_URL", server.url().toUtf8());
        home.setEnvironment("KORVANE_VIMEO_URL", server.url().toUtf8());
        account = _stored(ACAccountTypeIdentifierFlickr, standin::StandIn::flickrCredential());
        vimeoAccount = _stored(ACAccountTypeIdentifierVimeo, standin::StandIn::vimeoCredential());
    }

    standin::StandIn server;
    std::shared_ptr<ACAccount> account; // at Flickr
    std::shared_ptr<ACAccount> vimeoAccount;

private:
    static std::shared_ptr<ACAccount> _stored(const QString &type, const standin::Credential &user) {
        ACAccountStore store;
        const auto account =
            store.saveAccount(store.accountTypeWithAccountTypeIdentifier(type), QString::fromUtf8(user.username),
                              {QString::fromUtf8(user.consumerKey), QString::fromUtf8(user.consumerSecret),
                               QString::fromUtf8(user.token), QString::fromUtf8(user.tokenSecret)});
        account->credential(); // says once where credentials are kept, before a test listens to the log
        return account;
    }
};

} // namespace korvane::test
