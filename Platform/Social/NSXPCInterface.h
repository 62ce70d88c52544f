// What a remote interface consists of: one operation that takes property-list records and is answered once.
#pragma once

#include "Platform/Foundation/NSError.h"

#include <QString>

#include <functional>
#include <optional>

namespace korvane {

// The reply to an operation. success: null counts as NO. Runs exactly once, on a thread of the caller's choosing.
using XPCTransferCompletion = std::function<void(std::optional<bool> success, const std::optional<NSError> &error)>;

struct NSXPCInterface {
    enum Argument { Record, Records };

    QString operation;
    Argument argument;
};

// The object path of a service: its name with slashes.
inline QString objectPathOfService(QString serviceName) {
    return u'/' + serviceName.replace(u'.', u'/');
}

} // namespace korvane
