#include "StandIn/TokenStore.h"

#include <QRandomGenerator>
#include <QUuid>

namespace standin {

namespace {

QByteArray randomText() {
    return QUuid::createUuid().toByteArray(QUuid::Id128);
}

// Short enough to be typed.
QByteArray randomCode() {
    const QByteArray digits = QByteArray::number(QRandomGenerator::system()->bounded(100'000'000, 1'000'000'000));
    return digits.left(3) + '-' + digits.mid(3, 3) + '-' + digits.right(3);
}

QString text(const QByteArray &bytes) {
    return QString::fromUtf8(bytes);
}

} // namespace

bool TokenStore::open(const QString &folder, QString *error) {
    const std::lock_guard lock(_mutex);
    QList<QJsonObject> events;
    if (!_journal.open(folder + QStringLiteral("/tokens.jsonl"), &events, error)) return false;
    for (const QJsonObject &event : std::as_const(events)) {
        const auto value = [&](const char *key) { return event.value(QLatin1String(key)).toString().toUtf8(); };
        _accessSecrets[{value("application"), value("token")}] = value("secret");
    }
    return true;
}

Token TokenStore::addRequestToken(const QByteArray &application, const QByteArray &callback) {
    const std::lock_guard lock(_mutex);
    const Token token{randomText(), randomText()};
    _requests[{application, token.token}] = {.secret = token.secret, .callback = callback, .verifier = {}};
    return token;
}

std::optional<QByteArray> TokenStore::requestSecret(const QByteArray &application, const QByteArray &token) const {
    const std::lock_guard lock(_mutex);
    const auto found = _requests.find({application, token});
    return found == _requests.end() ? std::nullopt : std::optional(found->second.secret);
}

std::optional<QByteArray> TokenStore::callbackOf(const QByteArray &application, const QByteArray &token) const {
    const std::lock_guard lock(_mutex);
    const auto found = _requests.find({application, token});
    const bool isOpen = found != _requests.end() && found->second.verifier.isEmpty();
    return isOpen ? std::optional(found->second.callback) : std::nullopt;
}

std::optional<QByteArray> TokenStore::allow(const QByteArray &application, const QByteArray &token) {
    const std::lock_guard lock(_mutex);
    const auto found = _requests.find({application, token});
    if (found == _requests.end() || !found->second.verifier.isEmpty()) return std::nullopt;
    return found->second.verifier = randomCode();
}

void TokenStore::refuse(const QByteArray &application, const QByteArray &token) {
    const std::lock_guard lock(_mutex);
    _requests.erase({application, token});
}

std::optional<Token> TokenStore::exchange(const QByteArray &application, const QByteArray &token,
                                          const QByteArray &verifier, QByteArray *problem) {
    const std::lock_guard lock(_mutex);
    const auto found = _requests.find({application, token});
    const bool isKnown = found != _requests.end();
    if (isKnown && !verifier.isEmpty() && verifier == found->second.verifier) {
        const Token access{randomText(), randomText()};
        _requests.erase(found);
        _accessSecrets[{application, access.token}] = access.secret;
        _journal.append({{QStringLiteral("application"), text(application)},
                         {QStringLiteral("token"), text(access.token)},
                         {QStringLiteral("secret"), text(access.secret)}});
        return access;
    }
    *problem = !isKnown                           ? "token_rejected"
               : found->second.verifier.isEmpty() ? "permission_unknown"
                                                  : "verifier_invalid";
    if (isKnown && ++found->second.wrongVerifiers == MostWrongVerifiers) _requests.erase(found);
    return std::nullopt;
}

std::optional<QByteArray> TokenStore::accessSecret(const QByteArray &application, const QByteArray &token) const {
    const std::lock_guard lock(_mutex);
    const auto found = _accessSecrets.find({application, token});
    return found == _accessSecrets.end() ? std::nullopt : std::optional(found->second);
}

} // namespace standin
