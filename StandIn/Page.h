// The web page that shows what the services received.
#pragma once

#include "StandIn/Exchange.h"

namespace standin {

// Self-contained HTML; everything that came from outside is escaped.
QByteArray page(const ServiceContext &context);

// The Content-Security-Policy to send with it.
QByteArray pagePolicy();

} // namespace standin
