// Faults and delays planned over HTTP: POST /control/faults with one JSON object or an array of them.
//   {"on": OPERATION, "count": N, and one of "fail": STATUS, "answer": {"status", "type", "body"}, "dropAfterBytes": N,
//    "hang": true, "truncate": true, "dropBeforeAnswer": true, "delay": MILLISECONDS, "storeOnly": N ("chunk"),
//    "range": TEXT or null ("verify"; null leaves the header out), "ok": true}
//   {"weather": {"seed": N, "error": P, "reset": P, "loseTail": P, "delay": MILLISECONDS, "on": [OPERATION…]}}, where
//    only the seed must be there; what is left out is 0, or all operations of both services
//   {"quota": {"free": BYTES, "hd": true, "sd": true}} or {"quota": null} for the true one again
//   {"delay": MILLISECONDS} before each answer   {"release": true}   {"clear": true} ends all but the delay
// Operations are "request_token", "access_token", "upload", "getList", "addPhoto", "login"; "getQuota", "getTicket",
// "chunk", "verify", "complete", "setTitle", "setDescription", "addTags", "setPrivacy".
#pragma once

#include "StandIn/Exchange.h"

namespace standin {

// Carries out all of them, or none when one is not understood; the answer is then what is wrong, else empty.
QString plan(ServiceContext &context, const QByteArray &json);

} // namespace standin
