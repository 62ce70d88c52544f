#include "StandIn/SignInDesk.h"

#include "StandIn/ConsentPage.h"
#include "StandIn/RequestBody.h"

#include <QUrl>

namespace standin {

namespace {

const char *const Text = "text/plain";

QByteArray encodedForm(const Parameters &parameters) {
    QByteArrayList pairs;
    for (const auto &[name, value] : parameters)
        pairs.append(percentEncoded(name) + '=' + percentEncoded(value));
    return pairs.join('&');
}

bool isCallback(const QByteArray &callback) {
    const QUrl url(QString::fromUtf8(callback), QUrl::StrictMode);
    const bool isWeb = url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return callback == "oob" || (url.isValid() && isWeb && !url.host().isEmpty() && !url.hasFragment());
}

QByteArray parameterOf(const httplib::Request &request, const QByteArray &name) {
    return QByteArray::fromStdString(request.get_param_value(name.constData()));
}

} // namespace

OAuthCheck::Secrets accessSecretsOf(const ServiceContext &context, const Credential &application) {
    return [&tokens = context.tokens, key = application.consumerKey](const QByteArray &token) {
        return tokens.accessSecret(key, token);
    };
}

SignInDesk::SignInDesk(ServiceContext &context, OAuthCheck &check, const Credential &user, SignInManner manner)
    : _context(context), _check(check), _user(user), _manner(std::move(manner)) {}

void SignInDesk::addRoutes(HttpServer &server) {
    const auto path = [this](const char *endpoint) { return (_manner.path + endpoint).toStdString(); };
    server.Post(path("/request_token"), routeTo(*this, &SignInDesk::_requestToken, _context));
    server.Post(path("/access_token"), routeTo(*this, &SignInDesk::_accessToken, _context));
    server.Get(path("/authorize"), [this](const auto &request, auto &response) { _ask(request, response); });
    server.Post(path("/authorize"),
                [this](const httplib::Request &request, httplib::Response &response) { _decide(request, response); });
}

void SignInDesk::_requestToken(Exchange &exchange) {
    exchange.begin("request_token");
    RequestBody body(exchange.header("Content-Type"), nullptr);
    if (!exchange.readBody(body) || !exchange.passesFault()) return;
    if (const auto problem = _check.problem(exchange.signedRequest(body.parameters()), nullptr))
        return exchange.answer(401, Text, *problem);
    const auto oauth = OAuthCheck::parametersOfHeader(exchange.header("Authorization"));
    const QByteArray callback = valueOf(oauth.value_or(Parameters()), "oauth_callback");
    if (!isCallback(callback))
        return exchange.answer(400, Text, "oauth_problem=parameter_absent&oauth_parameters_absent=oauth_callback");
    const Token token = _context.tokens.addRequestToken(_user.consumerKey, callback);
    exchange.answer(200, Text,
                    encodedForm({{"oauth_callback_confirmed", "true"},
                                 {"oauth_token", token.token},
                                 {"oauth_token_secret", token.secret}}));
}

void SignInDesk::_ask(const httplib::Request &request, httplib::Response &response) {
    const QByteArray token = parameterOf(request, "oauth_token");
    if (parameterOf(request, _manner.permission) != "write") {
        _context.protocolErrors.add("GET " + _manner.path + "/authorize", "it does not ask for permission to write");
        return _show(response, 400, messagePage(_manner.service, "The application asks for nothing."));
    }
    if (!_context.tokens.callbackOf(_user.consumerKey, token))
        return _show(response, 400, messagePage(_manner.service, "This sign-in is not known, or it is over."));
    _show(response, 200, consentPage(_manner.service, _user.username, token));
}

void SignInDesk::_decide(const httplib::Request &request, httplib::Response &response) {
    const QByteArray token = parameterOf(request, "oauth_token");
    const auto callback = _context.tokens.callbackOf(_user.consumerKey, token);
    const bool isAllowed = parameterOf(request, "decision") == "allow";
    const auto verifier = isAllowed ? _context.tokens.allow(_user.consumerKey, token) : std::nullopt;
    if (!callback || (isAllowed && !verifier))
        return _show(response, 400, messagePage(_manner.service, "This sign-in is not known, or it is over."));
    if (!isAllowed) _context.tokens.refuse(_user.consumerKey, token);
    if (*callback == "oob")
        return _show(response, 200,
                     isAllowed ? codePage(_manner.service, *verifier)
                               : messagePage(_manner.service, "You refused. You can close this page."));
    const QByteArray outcome = isAllowed ? encodedForm({{"oauth_verifier", *verifier}}) : _manner.refusal;
    response.set_redirect((*callback + (callback->contains('?') ? '&' : '?') + encodedForm({{"oauth_token", token}}) +
                           (outcome.isEmpty() ? "" : "&") + outcome)
                              .toStdString(),
                          302);
}

void SignInDesk::_accessToken(Exchange &exchange) {
    exchange.begin("access_token");
    RequestBody body(exchange.header("Content-Type"), nullptr);
    if (!exchange.readBody(body) || !exchange.passesFault()) return;
    const auto requestSecret = [this](const QByteArray &token) {
        return _context.tokens.requestSecret(_user.consumerKey, token);
    };
    if (const auto problem = _check.problem(exchange.signedRequest(body.parameters()), requestSecret))
        return exchange.answer(401, Text, *problem);
    const Parameters oauth = *OAuthCheck::parametersOfHeader(exchange.header("Authorization"));
    QByteArray problem;
    const auto token = _context.tokens.exchange(_user.consumerKey, valueOf(oauth, "oauth_token"),
                                                valueOf(oauth, "oauth_verifier"), &problem);
    if (!token) return exchange.answer(401, Text, "oauth_problem=" + problem);
    exchange.answer(200, Text,
                    encodedForm(_manner.account +
                                Parameters{{"oauth_token", token->token}, {"oauth_token_secret", token->secret}}));
}

void SignInDesk::_show(httplib::Response &response, int status, const QByteArray &page) const {
    response.status = status;
    response.set_header("Content-Security-Policy",
                        "default-src 'none'; style-src 'unsafe-inline'; base-uri 'none'; frame-ancestors 'none'");
    response.set_header("Cache-Control", "no-store");
    response.set_content(page.toStdString(), "text/html; charset=utf-8");
}

} // namespace standin
