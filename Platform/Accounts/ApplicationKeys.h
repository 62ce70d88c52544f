// The keys of the user's own application at a web service.
#pragma once

#include "Platform/Accounts/ACAccountType.h"
#include "Platform/Foundation/NSError.h"

#include <optional>

namespace korvane {

enum class SecretPlace;

// What OAuth calls consumer key and consumer secret: sign-ins are made in the name of an application, and each user
// registers one of their own. Stored like the credentials of accounts, in the keyring or the private file. Looking and
// storing may take up to five seconds. Thread: any.
struct ApplicationKeys {
    QString consumerKey;
    QString consumerSecret;

    // Why no service can know them, in words; empty if nothing speaks against them.
    QString problem() const;

    // Null where none are stored, and, with the error placed, where they cannot be had now.
    static std::optional<ApplicationKeys> stored(const ACAccountType &type, std::optional<NSError> *error = nullptr);
    // Where they are stored; null where none are, or where nobody can tell.
    static std::optional<SecretPlace> placeOfStored(const ACAccountType &type);
    // Stores or replaces. False with the error placed if they are unusable or cannot be stored.
    bool store(const ACAccountType &type, std::optional<NSError> *error = nullptr) const;
    // True also where none are stored. Accounts keep what they have been signed in with.
    static bool remove(const ACAccountType &type, std::optional<NSError> *error = nullptr);

    // The service's page where an application is registered.
    static QString registrationAddress(const ACAccountType &type);

    friend bool operator==(const ApplicationKeys &, const ApplicationKeys &) = default;
};

} // namespace korvane
