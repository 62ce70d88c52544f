// Errors of accounts and credentials.
#pragma once

#include <QString>

namespace korvane {

extern const QString ACErrorDomain;

enum ACErrorCode : qint64 {
    ACErrorAccountMissing = 1,      // no account with that identifier
    ACErrorAccountTypeInvalid = 2,  // not a type that accounts can have
    ACErrorCredentialInvalid = 3,   // a value is missing, empty or unusable, or a credential file is not understood
    ACErrorCredentialNotStored = 4, // neither keyring nor file took the secret
    ACErrorAccountListDamaged = 5,  // the list of accounts does not have the form it is written in
};

} // namespace korvane
