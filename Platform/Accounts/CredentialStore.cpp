// Where the secrets of accounts are kept.
#include "Platform/Accounts/CredentialStore.h"

#include "Platform/Accounts/ACError.h"
#include "Platform/Accounts/SecretKeyring.h"
#include "Platform/Foundation/FileDescriptor.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSJSONSerialization.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Preferences/LockedJSONFile.h"
#include "Platform/Preferences/LogOnce.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace korvane {

using SecretKeyring::Outcome;

namespace {

LockedJSONFile credentialsFile() {
    return LockedJSONFile(configFolder() + QStringLiteral("/credentials.json"));
}

// Somebody, or a backup put back, may have opened the file to others. False with the error placed where it cannot be
// trusted to be this user's alone.
bool secureFile(std::optional<NSError> *error) {
    const QString path = credentialsFile().path();
    const FileDescriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status;
    if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return true; // reading it says why
    if (status.st_uid != ::geteuid()) {
        setError(error,
                 NSError::errorWithDescription(
                     ACErrorDomain, ACErrorCredentialInvalid,
                     localizedText("%1 belongs to another user. Move it away, then add the account again.", path)));
        return false;
    }
    if ((status.st_mode & 0077) == 0) return true;
    // Some file systems take a change of mode and do nothing.
    const bool isClosed = ::fchmod(file.get(), status.st_mode & 0700) == 0 && ::fstat(file.get(), &status) == 0 &&
                          (status.st_mode & 0077) == 0;
    logOnce(isClosed ? QStringLiteral("%1 could be read by other users; now only this user can.").arg(path)
                     : QStringLiteral("%1 can be read by other users, and that cannot be changed.").arg(path));
    return true;
}

bool keyringForbidden() {
    return qgetenv("KORVANE_SECRETS") == "file";
}

void sayThatTheFileIsUsed(const QString &reason) {
    const QString path = credentialsFile().path();
    logOnce(QStringLiteral("Credentials are kept in %1, readable by this user alone (%2).").arg(path, reason), path);
}

QVariantMap mapOf(const ACAccountCredential &credential) {
    return {{QStringLiteral("consumerKey"), credential.consumerKey},
            {QStringLiteral("consumerSecret"), credential.consumerSecret},
            {QStringLiteral("token"), credential.token},
            {QStringLiteral("tokenSecret"), credential.tokenSecret}};
}

QString addAgain(SecretOf kind) {
    return kind == SecretOf::Account ? localizedText("Add the account again.") : localizedText("Enter the keys again.");
}

std::optional<ACAccountCredential> credentialOf(const QVariantMap &map, SecretOf kind, std::optional<NSError> *error) {
    QStringList needed{QStringLiteral("consumerKey"), QStringLiteral("consumerSecret")};
    if (kind == SecretOf::Account) needed += {QStringLiteral("token"), QStringLiteral("tokenSecret")};
    for (const QString &key : std::as_const(needed)) {
        if (map.value(key).typeId() == QMetaType::QString && !map.value(key).toString().isEmpty()) continue;
        setError(error, NSError::errorWithDescription(
                            ACErrorDomain, ACErrorCredentialInvalid,
                            localizedText("The stored credential has no usable \"%1\". %2", key, addAgain(kind))));
        return std::nullopt;
    }
    const auto text = [&map](const char *key) { return map.value(QLatin1String(key)).toString(); };
    return ACAccountCredential{text("consumerKey"), text("consumerSecret"), text("token"), text("tokenSecret")};
}

std::nullopt_t missing(std::optional<NSError> *error, const QString &text) {
    setError(error, NSError::errorWithDescription(ACErrorDomain, ACErrorCredentialInvalid, text));
    return std::nullopt;
}

std::optional<ACAccountCredential> loadFromKeyring(const QString &identifier, SecretOf kind,
                                                   std::optional<NSError> *error) {
    if (keyringForbidden())
        return missing(error, localizedText("It is in the keyring, which KORVANE_SECRETS=file forbids to use. %1",
                                            addAgain(kind)));
    const SecretKeyring::Answer answer = SecretKeyring::load(identifier);
    switch (answer.outcome) {
    case Outcome::Done:
        return credentialOf(NSJSONSerialization::JSONObjectWithData(answer.text.toUtf8()).value_or(QVariant()).toMap(),
                            kind, error);
    case Outcome::Locked:
        return missing(error, localizedText("The keyring is locked. Unlock it and try again."));
    case Outcome::Silent:
        return missing(error, localizedText("The keyring does not answer. Try again, or log out and in again."));
    case Outcome::Missing:
        return missing(error, localizedText("The keyring does not hold it any more. %1", addAgain(kind)));
    default:
        return missing(error, localizedText("The keyring cannot be used: %1.", answer.text));
    }
}

std::optional<ACAccountCredential> loadFromFile(const QString &identifier, SecretOf kind,
                                                std::optional<NSError> *error) {
    const auto values = secureFile(error) ? credentialsFile().read(error) : std::nullopt;
    if (!values) return std::nullopt;
    sayThatTheFileIsUsed(QStringLiteral("they were not stored in a keyring"));
    if (!values->contains(identifier))
        return missing(error, localizedText("%1 does not hold it. %2", credentialsFile().path(), addAgain(kind)));
    return credentialOf(values->value(identifier).toMap(), kind, error);
}

std::optional<SecretPlace> storeInFile(const QString &identifier, const ACAccountCredential &credential,
                                       const QString &reason, std::optional<NSError> *error) {
    sayThatTheFileIsUsed(reason);
    const auto insert = [&](QVariantMap &values) {
        values.insert(identifier, mapOf(credential));
        return true;
    };
    if (!secureFile(error) || !credentialsFile().update(insert, error)) return std::nullopt;
    return SecretPlace::File;
}

} // namespace

QString CredentialStore::nameOfPlace(SecretPlace place) {
    return place == SecretPlace::Keyring ? QStringLiteral("keyring") : QStringLiteral("file");
}

std::optional<SecretPlace> CredentialStore::placeOfName(const QString &name) {
    for (const SecretPlace place : {SecretPlace::Keyring, SecretPlace::File})
        if (nameOfPlace(place) == name) return place;
    return std::nullopt;
}

std::optional<ACAccountCredential> CredentialStore::load(const QString &identifier, SecretPlace place,
                                                         std::optional<NSError> *error, SecretOf kind) {
    return place == SecretPlace::Keyring ? loadFromKeyring(identifier, kind, error)
                                         : loadFromFile(identifier, kind, error);
}

std::optional<SecretPlace> CredentialStore::store(const QString &identifier, const QString &label,
                                                  const ACAccountCredential &credential,
                                                  std::optional<NSError> *error) {
    if (keyringForbidden()) return storeInFile(identifier, credential, QStringLiteral("KORVANE_SECRETS=file"), error);
    const QString secret =
        QString::fromUtf8(NSJSONSerialization::dataWithJSONObject(mapOf(credential)).value_or(QByteArray()));
    const SecretKeyring::Answer answer = SecretKeyring::store(identifier, label, secret);
    if (answer.outcome == Outcome::Done) return SecretPlace::Keyring;
    if (answer.outcome == Outcome::Unavailable) return storeInFile(identifier, credential, answer.text, error);
    // A keyring that is there but locked or busy is no reason to write secrets to a file unasked.
    const QString text =
        answer.outcome == Outcome::Silent
            ? localizedText("The credential was not stored: the keyring does not answer. Try again, log out and in "
                            "again, or set KORVANE_SECRETS=file to keep credentials in a file.")
            : localizedText("The credential was not stored: %1. Unlock the keyring and try again, or set "
                            "KORVANE_SECRETS=file to keep credentials in a file.",
                            answer.text);
    setError(error, NSError::errorWithDescription(ACErrorDomain, ACErrorCredentialNotStored, text));
    return std::nullopt;
}

void CredentialStore::remove(const QString &identifier, SecretPlace place) {
    if (place == SecretPlace::File) {
        std::optional<NSError> error;
        const auto erase = [&identifier](QVariantMap &values) {
            values.remove(identifier);
            return true;
        };
        if (!secureFile(&error) || !credentialsFile().update(erase, &error))
            NSLog("The credential of account %@ was not removed: %@", identifier, error->localizedDescription());
        return;
    }
    const SecretKeyring::Answer answer =
        keyringForbidden() ? SecretKeyring::Answer{Outcome::Failed, QStringLiteral("KORVANE_SECRETS=file")}
                           : SecretKeyring::remove(identifier);
    if (answer.outcome != Outcome::Done && answer.outcome != Outcome::Missing)
        NSLog("The credential of account %@ stays in the keyring: %@", identifier, answer.text);
}

} // namespace korvane
