// Errors of the hand-over between programs.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QVariantMap>

namespace korvane {

extern const QString RemoteServiceErrorDomain;

enum RemoteServiceErrorCode : qint64 {
    RemoteServiceErrorUnreachable = 1,    // no bus, or the service cannot be started or does not answer
    RemoteServiceErrorOtherSettings = 2,  // the service that runs uploads to other hosts or from other folders
    RemoteServiceErrorUnusableRecord = 3, // a record that cannot cross between programs
    RemoteServiceErrorUnusableData = 4,   // the data that came with a message cannot be trusted
    RemoteServiceErrorNothingToShare = 5, // an empty batch
    RemoteServiceErrorNotAvailable = 6,   // the service cannot take posts just now
    RemoteServiceErrorUnknownEnd = 7, // the posts may have been taken: look at the uploads before sharing them again
};

// An error as it crosses between programs: "domain", "code" and, where there is one, "description".
QVariantMap dictionaryOfError(const NSError &error);
NSError errorOfDictionary(const QVariantMap &dictionary);

} // namespace korvane
