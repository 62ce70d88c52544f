// Faults and delays planned over HTTP: POST /control/faults with one JSON object or an array of them.
//   {"on": OPERATION, "count": N, and one of "fail": STATUS, "answer": {"status", "type", "body"}, "dropAfterBytes": N,
//    "hang": true, "truncate": true, "dropBeforeAnswer": true, "ok": true}
//   {"delay": MILLISECONDS}   {"release": true}   {"clear": true}
#pragma once

#include "StandIn/Exchange.h"

namespace standin {

// Carries out all of them, or none when one is not understood; the answer is then what is wrong, else empty.
QString plan(ServiceContext &context, const QByteArray &json);

} // namespace standin
