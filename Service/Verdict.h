// What becomes of an upload after a run, and what is judged alike for all web services.
#pragma once

#include "Service/RunOutcome.h"
#include "Service/UploadJob.h"

namespace korvane {

struct Verdict {
    UploadState state = UploadState::Done;    // Done, Waiting or Failed
    WaitReason waitReason = WaitReason::None; // with Waiting
    std::optional<NSError> error;             // for people: what happened and what to do
    bool holdsOthers = true;                  // with Network: the service's other uploads need not try just now

    // With the error's domain and code and a text for people.
    static Verdict waiting(WaitReason reason, const NSError &error, const QString &text);
    static Verdict failed(const NSError &error, const QString &text);
    // With the error's own text.
    static Verdict failed(const NSError &error);
    // Of a run that did not get to the web service; null for one that did.
    static std::optional<Verdict> onUnbegunRun(const RunOutcome &outcome);
    // Of an error of NSURLErrorDomain. service: its name for people.
    static Verdict onTransport(const NSError &error, const QString &service);
    // Of an HTTP status; null for one that speaks of no trouble of the service's own.
    static std::optional<Verdict> onServerTrouble(const NSError &error, int status, const QString &service);
};

// Whether the HTTP status speaks of a trouble of the service's own that will pass.
bool isServerTrouble(int status);
// What the service said, as far as it is fit to be shown: short, on one line, without secrets.
QString shownAnswer(const QString &text);

} // namespace korvane
