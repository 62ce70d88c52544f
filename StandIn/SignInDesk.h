// Where applications get their tokens: OAuth 1.0a's three steps (RFC 5849 section 2) for one of the services.
#pragma once

#include "StandIn/Exchange.h"
#include "StandIn/HttpServer.h"
#include "StandIn/OAuthCheck.h"

namespace standin {

// In what the services differ.
struct SignInManner {
    QByteArray service;    // its name for people
    QByteArray path;       // of the endpoints "request_token", "authorize" and "access_token"
    QByteArray permission; // the parameter of "authorize" that must be "write"
    Parameters account;    // what the access token's answer tells about the account
    QByteArray refusal;    // what a refused person brings back in place of a verifier; may be empty
};

// The access tokens of that application, for its check.
OAuthCheck::Secrets accessSecretsOf(const ServiceContext &context, const Credential &application);

// Thread: any, once the routes are added. Must outlive the server.
class SignInDesk {
public:
    SignInDesk(ServiceContext &context, OAuthCheck &check, const Credential &user, SignInManner manner);

    void addRoutes(HttpServer &server);

private:
    void _requestToken(Exchange &exchange);
    void _ask(const httplib::Request &request, httplib::Response &response);
    void _decide(const httplib::Request &request, httplib::Response &response);
    void _accessToken(Exchange &exchange);
    void _show(httplib::Response &response, int status, const QByteArray &page) const;

    ServiceContext &_context;
    OAuthCheck &_check;
    const Credential _user;
    const SignInManner _manner;
};

} // namespace standin
