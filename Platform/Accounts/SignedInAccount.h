// What a sign-in ends with.
#pragma once

#include "Platform/Accounts/ACAccountStore.h"

namespace korvane {

// Not stored anywhere until it is saved.
struct SignedInAccount {
    ACAccountType type;
    QString username;
    ACAccountCredential credential;

    // ACAccountStore::saveAccount(), which may take up to five seconds. Thread: any.
    std::shared_ptr<ACAccount> save(std::optional<NSError> *error = nullptr) const {
        return ACAccountStore().saveAccount(type, username, credential, error);
    }
};

} // namespace korvane
