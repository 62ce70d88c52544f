// A client of the stand-in that signs its requests on its own.
#pragma once

#include "Platform/Accounts/ACAccountCredential.h"
#include "Platform/Social/OAuthSigner.h"
#include "StandIn/StandIn.h"
#include "Tests/Support/Testing.h"

#include <QDateTime>

#include <httplib.h>

namespace korvane::test {

class SignedClient : public httplib::Client {
public:
    SignedClient(const standin::StandIn &server, standin::Credential user)
        : httplib::Client(server.url().toStdString()), _url(server.url()), _user(std::move(user)) {}

    // Of the user, with a fresh nonce each time.
    httplib::Headers authorization(const char *verb, const std::string &target,
                                   const httplib::Params &form = {}) const {
        OAuthParameters parameters = OAuthSigner::parametersOfQuery(QString::fromStdString(target).section(u'?', 1));
        for (const auto &[name, value] : form)
            parameters.append({QString::fromStdString(name), QString::fromStdString(value)});
        const auto text = [](const QByteArray &bytes) { return QString::fromUtf8(bytes); };
        static int nonce = 0;
        const QByteArray header = OAuthSigner::authorizationHeader(
            verb, *NSURL::URLWithString(_url + QString::fromStdString(target)), parameters,
            {text(_user.consumerKey), text(_user.consumerSecret), text(_user.token), text(_user.tokenSecret)},
            QDateTime::currentSecsSinceEpoch(), QString::number(++nonce));
        return {{"Authorization", header.toStdString()}};
    }
    httplib::Result postForm(const std::string &target, const httplib::Params &form) {
        return Post(target, authorization("POST", target, form), form);
    }
    QByteArray get(const std::string &path) { return QByteArray::fromStdString(Get(path)->body); }

private:
    const QString _url;
    const standin::Credential _user;
};

// A running stand-in and its client.
template <class Client>
class StandInTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(server.start());
        client.emplace(server);
    }

    standin::StandIn server{standin::StandInOptions{.photoLimit = 300'000}};
    std::optional<Client> client;
};

} // namespace korvane::test
