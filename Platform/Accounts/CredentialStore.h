// Where the secrets of accounts and applications are kept: the keyring, or a private file where there is none.
#pragma once

#include "Platform/Accounts/ACAccountCredential.h"
#include "Platform/Foundation/NSError.h"

#include <optional>

namespace korvane {

enum class SecretPlace { Keyring, File };

// What a secret has to hold to be usable: an account's all four texts, an application's only its key pair.
enum class SecretOf { Account, Application };

// The file is the configuration folder's credentials.json, mode 0600, which it is given back where it has lost it; its
// first use is logged. It is used where there is no keyring, not where one does not answer or is locked.
// KORVANE_SECRETS=file in the environment keeps the keyring out of everything. Calls may take up to five seconds.
// Thread: any.
namespace CredentialStore {

// As the lists of what is stored name it; null for what is no such name.
QString nameOfPlace(SecretPlace place);
std::optional<SecretPlace> placeOfName(const QString &name);

// Null, with the error placed, if there is no usable secret of that identifier in that place, or it cannot be had now.
std::optional<ACAccountCredential> load(const QString &identifier, SecretPlace place, std::optional<NSError> *error,
                                        SecretOf kind = SecretOf::Account);

// Stores or replaces. The place it went to; null, with the error placed, if none took it.
std::optional<SecretPlace> store(const QString &identifier, const QString &label, const ACAccountCredential &credential,
                                 std::optional<NSError> *error);

// Removes what is there. A secret that could not be removed is logged.
void remove(const QString &identifier, SecretPlace place);

} // namespace CredentialStore

} // namespace korvane
