// An account at a web service.
#include "Platform/Accounts/ACAccount.h"

#include "Platform/Accounts/CredentialStore.h"
#include "Platform/Foundation/NSLog.h"

namespace korvane {

ACAccount::ACAccount(QString identifier, ACAccountType type, QString username, SecretPlace place)
    : _identifier(std::move(identifier)), _type(std::move(type)), _username(std::move(username)), _place(place) {}

std::optional<ACAccountCredential> ACAccount::credential(std::optional<NSError> *error) const {
    const std::lock_guard lock(_credentialMutex);
    if (_credential) return _credential;
    std::optional<NSError> reason;
    _credential = CredentialStore::load(_identifier, _place, &reason);
    if (_credential) return _credential;
    NSLog("The credential of account %@ (%@) cannot be used: %@", _username, _identifier,
          reason->localizedDescription());
    setError(error, reason);
    return std::nullopt;
}

std::shared_ptr<UploadContext> ACAccount::uploadContext() const {
    const std::lock_guard lock(_contextMutex);
    return _uploadContext;
}

void ACAccount::setUploadContext(std::shared_ptr<UploadContext> context) {
    const std::lock_guard lock(_contextMutex);
    _uploadContext = std::move(context);
}

} // namespace korvane
