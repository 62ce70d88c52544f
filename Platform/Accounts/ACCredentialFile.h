// Ready credentials, as a file gives them.
#pragma once

#include "Platform/Accounts/ACAccountCredential.h"
#include "Platform/Foundation/NSData.h"

#include <optional>

namespace korvane {

// A JSON object with the texts "username", "consumerKey", "consumerSecret", "token" and "tokenSecret"; other keys are
// ignored. All five must be there, not empty and without control characters.
struct ACCredentialFile {
    static constexpr qint64 mostBytes = 64 * 1024;

    QString username;
    ACAccountCredential credential;

    // Null, with an error of ACErrorDomain placed that names what is wrong and quotes nothing of the file.
    static std::optional<ACCredentialFile> credentialFileWithData(const NSData &data,
                                                                  std::optional<NSError> *error = nullptr);
};

} // namespace korvane
