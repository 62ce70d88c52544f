// The user's accounts, stored for all programs of Korvane.
#pragma once

#include "Platform/Accounts/ACAccount.h"
#include "Platform/Foundation/NSError.h"

#include <memory>
#include <optional>
#include <vector>

namespace korvane {

// The list stands in the configuration folder's accounts.json, without secrets. Every call looks at the file; every
// look-up makes fresh account objects. Errors are of ACErrorDomain or those of the file. Thread: any.
class ACAccountStore {
public:
    ACAccountType accountTypeWithAccountTypeIdentifier(const QString &identifier) const;

    // In the order in which they were saved or put into use. Empty, with a log line and the error placed, if the list
    // cannot be read, or was damaged and no account has been saved since.
    std::vector<std::shared_ptr<ACAccount>> accountsWithAccountType(const ACAccountType &type,
                                                                    std::optional<NSError> *error = nullptr) const;
    std::shared_ptr<ACAccount> accountWithIdentifier(const QString &identifier) const; // null if there is none
    // The account of that type that was saved or put into use last, with which posts go out; null if there is none.
    std::shared_ptr<ACAccount> accountInUse(const QString &typeIdentifier) const;

    // Stores an account and its credential, and puts it into use; may take up to five seconds. An account of the same
    // type and user name keeps its identifier and gets the new credential. Null with the error placed on failure;
    // nothing is half stored then.
    std::shared_ptr<ACAccount> saveAccount(const ACAccountType &type, const QString &username,
                                           const ACAccountCredential &credential,
                                           std::optional<NSError> *error = nullptr);

    // Puts the account behind all others, so that posts of its service go out with it. False with the error placed if
    // there is none or the list cannot be written.
    bool useAccount(const QString &identifier, std::optional<NSError> *error = nullptr);

    // Removes the account and its credential. False with the error placed if there is none or the list cannot be
    // written.
    bool removeAccount(const QString &identifier, std::optional<NSError> *error = nullptr);
};

} // namespace korvane
