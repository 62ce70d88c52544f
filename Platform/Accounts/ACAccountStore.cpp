// The user's accounts.
#include "Platform/Accounts/ACAccountStore.h"

#include "Platform/Accounts/ACError.h"
#include "Platform/Accounts/CredentialStore.h"
#include "Platform/Accounts/PlainLine.h"
#include "Platform/Foundation/Folders.h"
#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSLog.h"
#include "Platform/Preferences/LockedJSONFile.h"
#include "Platform/Preferences/LogOnce.h"

#include <QFile>
#include <QUuid>

#include <algorithm>

namespace korvane {

const QString ACErrorDomain = QStringLiteral("com.zorvex.korvane.accounts");

namespace {

const QString accountsKey = QStringLiteral("accounts");

// One account as the list holds it.
struct Entry {
    QString identifier;
    QString type;
    QString username;
    SecretPlace place = SecretPlace::File;

    QVariantMap map() const {
        return {{QStringLiteral("identifier"), identifier},
                {QStringLiteral("type"), type},
                {QStringLiteral("username"), username},
                {QStringLiteral("secret"), CredentialStore::nameOfPlace(place)}};
    }
    std::shared_ptr<ACAccount> account() const {
        return std::make_shared<ACAccount>(identifier, ACAccountType(type), username, place);
    }
};

// Null for an entry that is not ours: it is skipped, and kept when the list is written.
std::optional<Entry> entryOf(const QVariant &value) {
    const QVariantMap map = value.toMap();
    const auto text = [&map](const char *key) {
        const QVariant found = map.value(QLatin1String(key));
        return found.typeId() == QMetaType::QString ? found.toString() : QString();
    };
    const auto place = CredentialStore::placeOfName(text("secret"));
    if (text("identifier").isEmpty() || text("type").isEmpty() || text("username").isEmpty() || !place) {
        logOnce(QStringLiteral("An entry in the list of accounts is not understood and is skipped."));
        return std::nullopt;
    }
    return Entry{text("identifier"), text("type"), text("username"), *place};
}

QString problemOfList(const QVariantMap &values) {
    const QVariant list = values.value(accountsKey);
    return !list.isValid() || list.typeId() == QMetaType::QVariantList ? QString()
                                                                       : localizedText("\"accounts\" is not a list");
}

LockedJSONFile accountsFile() {
    return LockedJSONFile(configFolder() + QStringLiteral("/accounts.json"), problemOfList);
}

std::vector<Entry> entriesOf(const QVariantMap &values) {
    std::vector<Entry> entries;
    const QVariantList list = values.value(accountsKey).toList();
    for (const QVariant &value : list)
        if (auto entry = entryOf(value)) entries.push_back(*std::move(entry));
    return entries;
}

// Where accounts are missing since the list is damaged, which a person could take for a sign-out.
std::optional<NSError> damage(const QVariantMap &values) {
    const auto error = [](const QString &text) {
        return NSError::errorWithDescription(ACErrorDomain, ACErrorAccountListDamaged, text);
    };
    const LockedJSONFile file = accountsFile();
    if (!values.value(accountsKey).toList().isEmpty())
        return error(localizedText("No account in %1 is understood. Mend the file, or sign in again.", file.path()));
    const QString aside = file.asidePath();
    if (values.contains(accountsKey) || aside.isEmpty()) return std::nullopt;
    return error(localizedText("The list of accounts was damaged and is kept as %1. Sign in again.", aside));
}

std::vector<Entry> readEntries(std::optional<NSError> *error = nullptr) {
    std::optional<NSError> reason;
    const auto values = accountsFile().read(&reason);
    if (values) {
        auto entries = entriesOf(*values);
        if (entries.empty()) setError(error, damage(*values));
        return entries;
    }
    NSLog("The list of accounts could not be read: %@", reason->localizedDescription());
    setError(error, reason);
    return {};
}

// Where the entry of that identifier stands in the list, or its end.
qsizetype positionOf(const QVariantList &list, const QString &identifier) {
    const auto found = std::find_if(list.begin(), list.end(), [&](const QVariant &value) {
        return value.toMap().value(QStringLiteral("identifier")) == identifier;
    });
    return found - list.begin();
}

bool fail(std::optional<NSError> *error, ACErrorCode code, const QString &text) {
    setError(error, NSError::errorWithDescription(ACErrorDomain, code, text));
    return false;
}

bool check(const ACAccountType &type, const QString &username, const ACAccountCredential &credential,
           std::optional<NSError> *error) {
    if (!type.isKnown())
        return fail(error, ACErrorAccountTypeInvalid,
                    localizedText("Accounts of type \"%1\" cannot be stored.", type.identifier()));
    if (!isPlainLine(username))
        return fail(error, ACErrorCredentialInvalid,
                    localizedText("The user name is empty or holds control characters."));
    for (const QString *text :
         {&credential.consumerKey, &credential.consumerSecret, &credential.token, &credential.tokenSecret})
        if (!isPlainLine(*text))
            return fail(error, ACErrorCredentialInvalid,
                        localizedText("A part of the credential is empty or holds control characters."));
    return true;
}

} // namespace

ACAccountType ACAccountStore::accountTypeWithAccountTypeIdentifier(const QString &identifier) const {
    return ACAccountType(identifier);
}

std::vector<std::shared_ptr<ACAccount>> ACAccountStore::accountsWithAccountType(const ACAccountType &type,
                                                                                std::optional<NSError> *error) const {
    std::vector<std::shared_ptr<ACAccount>> accounts;
    for (const Entry &entry : readEntries(error))
        if (entry.type == type.identifier()) accounts.push_back(entry.account());
    return accounts;
}

std::shared_ptr<ACAccount> ACAccountStore::accountWithIdentifier(const QString &identifier) const {
    for (const Entry &entry : readEntries())
        if (entry.identifier == identifier) return entry.account();
    return nullptr;
}

std::shared_ptr<ACAccount> ACAccountStore::accountInUse(const QString &typeIdentifier) const {
    const auto accounts = accountsWithAccountType(ACAccountType(typeIdentifier));
    return accounts.empty() ? nullptr : accounts.back();
}

std::shared_ptr<ACAccount> ACAccountStore::saveAccount(const ACAccountType &type, const QString &username,
                                                       const ACAccountCredential &credential,
                                                       std::optional<NSError> *error) {
    if (!check(type, username, credential, error)) return nullptr;
    Entry entry{QUuid::createUuid().toString(QUuid::WithoutBraces), type.identifier(), username, SecretPlace::File};
    std::optional<Entry> replaced;
    bool stored = false;
    // The secret is stored under the list's lock, so that two programs adding one account agree on its identifier.
    const auto put = [&](QVariantMap &values) {
        for (const Entry &known : entriesOf(values))
            if (!replaced && known.type == entry.type && known.username == username) replaced = known;
        if (replaced) entry.identifier = replaced->identifier;
        const auto place = CredentialStore::store(
            entry.identifier, QStringLiteral("Korvane: %1 (%2)").arg(username, entry.type), credential, error);
        if (!place) return false;
        stored = true;
        entry.place = *place;
        QVariantList list = values.value(accountsKey).toList();
        if (replaced) list.removeAt(positionOf(list, entry.identifier));
        list.append(entry.map());
        values.insert(accountsKey, list);
        return true;
    };
    if (!accountsFile().update(put, error)) {
        if (stored && (!replaced || replaced->place != entry.place))
            CredentialStore::remove(entry.identifier, entry.place);
        return nullptr;
    }
    if (replaced && replaced->place != entry.place) CredentialStore::remove(entry.identifier, replaced->place);
    return entry.account();
}

bool ACAccountStore::useAccount(const QString &identifier, std::optional<NSError> *error) {
    const auto putLast = [&](QVariantMap &values) {
        QVariantList list = values.value(accountsKey).toList();
        const qsizetype position = positionOf(list, identifier);
        if (position == list.size())
            return fail(error, ACErrorAccountMissing, localizedText("There is no account \"%1\".", identifier));
        list.append(list.takeAt(position));
        values.insert(accountsKey, list);
        return true;
    };
    return accountsFile().update(putLast, error);
}

bool ACAccountStore::removeAccount(const QString &identifier, std::optional<NSError> *error) {
    std::optional<Entry> removed;
    const auto take = [&](QVariantMap &values) {
        for (const Entry &known : entriesOf(values))
            if (!removed && known.identifier == identifier) removed = known;
        if (!removed)
            return fail(error, ACErrorAccountMissing, localizedText("There is no account \"%1\".", identifier));
        QVariantList list = values.value(accountsKey).toList();
        list.removeAt(positionOf(list, identifier));
        values.insert(accountsKey, list);
        return true;
    };
    if (!accountsFile().update(take, error)) return false;
    CredentialStore::remove(identifier, removed->place);
    return true;
}

} // namespace korvane
