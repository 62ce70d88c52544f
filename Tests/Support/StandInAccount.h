// The stand-in as the Flickr of a test, with its user's account.
#pragma once

#include "Platform/Accounts/ACAccountStore.h"
#include "StandIn/StandIn.h"
#include "Tests/Support/TemporaryHome.h"

#include <memory>

namespace korvane::test {

// Starts a stand-in, lets the environment point at it, and stores the account of its user.
class StandInAccount {
public:
    explicit StandInAccount(TemporaryHome &home, standin::StandInOptions options = {}) : server(options) {
        if (!server.start()) qFatal("the stand-in did not start");
        home.setEnvironment("KORVANE_FLICKR_URL", QByteArray::fromStdString(server.url().toStdString()));
        const standin::Credential user = standin::StandIn::flickrCredential();
        ACAccountStore store;
        account = store.saveAccount(store.accountTypeWithAccountTypeIdentifier(ACAccountTypeIdentifierFlickr),
                                    QString::fromUtf8(user.username),
                                    {QString::fromUtf8(user.consumerKey), QString::fromUtf8(user.consumerSecret),
                                     QString::fromUtf8(user.token), QString::fromUtf8(user.tokenSecret)});
        account->credential(); // says once where credentials are kept, before a test listens to the log
    }

    standin::StandIn server;
    std::shared_ptr<ACAccount> account;
};

} // namespace korvane::test
