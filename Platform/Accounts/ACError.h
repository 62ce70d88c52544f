// Errors of accounts, credentials and sign-ins.
#pragma once

#include <QString>

namespace korvane {

extern const QString ACErrorDomain;

enum ACErrorCode : qint64 {
    ACErrorAccountMissing = 1,      // no account with that identifier
    ACErrorAccountTypeInvalid = 2,  // not a type that accounts can have
    ACErrorCredentialInvalid = 3,   // a value is missing, empty or unusable, or a credential file is not understood
    ACErrorCredentialNotStored = 4, // neither keyring nor file took the secret
    ACErrorAccountListDamaged = 5,  // the list of accounts did not have the form it is written in

    // Of a sign-in; beside these, errors of NSURLErrorDomain where the service cannot be reached.
    ACErrorSignInRefused = 6,         // by the person
    ACErrorSignInCancelled = 7,       // given up here
    ACErrorSignInTimedOut = 8,        // the person did not answer in time
    ACErrorSignInCodeWrong = 9,       // typed codes or the call-back's were wrong
    ACErrorSignInExpired = 10,        // used already, or too old
    ACErrorSignInNotUnderstood = 11,  // an answer that makes no sense
    ACErrorSignInNotPossible = 12,    // the service is out of order, or says no without a reason that is known here
    ACErrorClockWrong = 13,           // this computer's, so that the service takes no signature
    ACErrorApplicationKeyRefused = 14 // the application's key is not known to the service, or its secret is not right
};

} // namespace korvane
