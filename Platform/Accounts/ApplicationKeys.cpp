// The keys of the user's own application at a web service.
#include "Platform/Accounts/ApplicationKeys.h"

#include "Platform/Accounts/ACError.h"
#include "Platform/Accounts/CredentialStore.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Preferences/LockedJSONFile.h"

#include <algorithm>

namespace korvane {
namespace {

constexpr qsizetype longestKey = 256;

// Says for each type of account where the keys are: {"com.zorvex.flickr": "keyring" or "file"}.
LockedJSONFile placesFile() {
    return LockedJSONFile(configFolder() + QStringLiteral("/application-keys.json"));
}

QString identifierOf(const ACAccountType &type) {
    return QStringLiteral("application of ") + type.identifier();
}

SecretPlace placeOf(const QVariant &value) {
    return CredentialStore::placeOfName(value.toString()).value_or(SecretPlace::File);
}

bool isUsable(const QString &text) {
    return !text.isEmpty() && text.size() <= longestKey &&
           std::all_of(text.begin(), text.end(), [](QChar c) { return c > u' ' && c < QChar(0x7f); });
}

} // namespace

QString ApplicationKeys::problem() const {
    if (!isUsable(consumerKey))
        return localizedText("The application's key is empty, too long, or holds spaces or special characters.");
    if (!isUsable(consumerSecret))
        return localizedText("The application's secret is empty, too long, or holds spaces or special characters.");
    return {};
}

std::optional<ApplicationKeys> ApplicationKeys::stored(const ACAccountType &type, std::optional<NSError> *error) {
    const auto places = placesFile().read(error);
    if (!places || !places->contains(type.identifier())) return std::nullopt;
    const auto secret = CredentialStore::load(identifierOf(type), placeOf(places->value(type.identifier())), error,
                                              SecretOf::Application);
    if (!secret) return std::nullopt;
    return ApplicationKeys{secret->consumerKey, secret->consumerSecret};
}

bool ApplicationKeys::store(const ACAccountType &type, std::optional<NSError> *error) const {
    const QString wrong = type.isKnown() ? problem() : localizedText("There is no such web service.");
    if (!wrong.isEmpty()) {
        setError(error, NSError::errorWithDescription(ACErrorDomain, ACErrorCredentialInvalid, wrong));
        return false;
    }
    std::optional<SecretPlace> before;
    std::optional<SecretPlace> place;
    const auto put = [&](QVariantMap &values) {
        if (values.contains(type.identifier())) before = placeOf(values.value(type.identifier()));
        place = CredentialStore::store(identifierOf(type),
                                       QStringLiteral("Korvane: application keys (%1)").arg(type.identifier()),
                                       {consumerKey, consumerSecret, {}, {}}, error);
        if (!place) return false;
        values.insert(type.identifier(), CredentialStore::nameOfPlace(*place));
        return true;
    };
    const bool isDone = placesFile().update(put, error);
    if (isDone && before && before != place) CredentialStore::remove(identifierOf(type), *before);
    if (!isDone && place && before != place) CredentialStore::remove(identifierOf(type), *place);
    return isDone;
}

std::optional<SecretPlace> ApplicationKeys::placeOfStored(const ACAccountType &type) {
    const auto places = placesFile().read();
    if (!places || !places->contains(type.identifier())) return std::nullopt;
    return placeOf(places->value(type.identifier()));
}

bool ApplicationKeys::remove(const ACAccountType &type, std::optional<NSError> *error) {
    std::optional<SecretPlace> place;
    const auto take = [&](QVariantMap &values) {
        if (values.contains(type.identifier())) place = placeOf(values.take(type.identifier()));
        return true;
    };
    if (!placesFile().update(take, error)) return false;
    if (place) CredentialStore::remove(identifierOf(type), *place);
    return true;
}

QString ApplicationKeys::registrationAddress(const ACAccountType &type) {
    return type == ACAccountType(ACAccountTypeIdentifierVimeo)
               ? QStringLiteral("https://developer.vimeo.com/apps")
               : QStringLiteral("https://www.flickr.com/services/apps/create/");
}

} // namespace korvane
