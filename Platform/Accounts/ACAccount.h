// An account at a web service.
#pragma once

#include "Platform/Accounts/ACAccountCredential.h"
#include "Platform/Accounts/ACAccountType.h"
#include "Platform/Foundation/UploadContext.h"

#include <memory>
#include <mutex>
#include <optional>

namespace korvane {

enum class SecretPlace;

// Made by ACAccountStore; the objects of one account are independent of each other. Thread: any.
class ACAccount {
public:
    ACAccount(QString identifier, ACAccountType type, QString username, SecretPlace place);

    const QString &identifier() const { return _identifier; } // stays the same as long as the account exists
    const QString &username() const { return _username; }
    const ACAccountType &accountType() const { return _type; }

    // Read from the keyring or the credentials file on first use, which may take up to five seconds, and kept from then
    // on. Null, with a log line and the error placed, where it cannot be had now (keyring locked or not there); the
    // next call tries again.
    std::optional<ACAccountCredential> credential(std::optional<NSError> *error = nullptr) const;

    // What the requests made for this object report to; null where nobody set one.
    std::shared_ptr<UploadContext> uploadContext() const;
    void setUploadContext(std::shared_ptr<UploadContext> context);

private:
    const QString _identifier;
    const ACAccountType _type;
    const QString _username;
    const SecretPlace _place;
    mutable std::mutex _credentialMutex; // held while the credential is read
    mutable std::optional<ACAccountCredential> _credential;
    mutable std::mutex _contextMutex;
    std::shared_ptr<UploadContext> _uploadContext;
};

} // namespace korvane
