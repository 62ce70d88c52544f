// What becomes of an upload after a run, and what is judged alike for all web services.
#include "Service/Verdict.h"

#include "Platform/Foundation/LocalizedText.h"
#include "Platform/Foundation/NSLog.h"

namespace korvane {
namespace {

constexpr qsizetype longestShownAnswer = 200;

}

Verdict Verdict::waiting(WaitReason reason, const NSError &error, const QString &text) {
    return {UploadState::Waiting, reason, NSError::errorWithDescription(error.domain(), error.code(), text)};
}

Verdict Verdict::failed(const NSError &error, const QString &text) {
    return {UploadState::Failed, WaitReason::None, NSError::errorWithDescription(error.domain(), error.code(), text)};
}

Verdict Verdict::failed(const NSError &error) {
    return failed(error, error.localizedDescription());
}

std::optional<Verdict> Verdict::onUnbegunRun(const RunOutcome &outcome) {
    switch (outcome.end) {
    case RunOutcome::Unusable:
        return failed(*outcome.error);
    case RunOutcome::Hindered:
        return Verdict{UploadState::Waiting, WaitReason::NextTry, outcome.error};
    case RunOutcome::NoAccount:
        return Verdict{UploadState::Waiting, WaitReason::SignIn, outcome.error};
    case RunOutcome::Finished:
        break;
    }
    return std::nullopt;
}

Verdict Verdict::onTransport(const NSError &error, const QString &service) {
    switch (error.code()) {
    case NSURLErrorCannotFindHost:
    case NSURLErrorCannotConnectToHost:
    case NSURLErrorNotConnectedToInternet:
    case NSURLErrorNetworkConnectionLost:
    case NSURLErrorTimedOut:
        return waiting(WaitReason::Network, error,
                       localizedText("%1 cannot be reached: %2", service, error.localizedDescription()));
    default:
        return waiting(WaitReason::NextTry, error,
                       localizedText("The connection to %1 failed: %2", service, error.localizedDescription()));
    }
}

std::optional<Verdict> Verdict::onServerTrouble(const NSError &error, int status, const QString &service) {
    if (!isServerTrouble(status)) return std::nullopt;
    return waiting(WaitReason::NextTry, error,
                   localizedText("%1 is in trouble (HTTP status %2).", service, QString::number(status)));
}

bool isServerTrouble(int status) {
    return status >= 500 || status == 408 || status == 429;
}

QString shownAnswer(const QString &text) {
    return redacted(text.simplified().left(longestShownAnswer));
}

} // namespace korvane
